// The first line of the bytes is a query, the others are names. The index answers as the
// definitions do, folding is what Unicode's algorithms make of a whole text and changes nothing a
// second time, and names are in the order of their sort keys.

#include "data/Classification.h"
#include "data/text/CaseFolding.h"
#include "data/text/NameOrder.h"
#include "tests/support/ReleaseBuilder.h"

#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <utility>
#include <vector>

using namespace vasker;

namespace {

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        lines.push_back(text.substr(0, end));
        text = end == text.npos ? "" : text.substr(end + 1);
    }
    return lines;
}

/// Folding without shortcuts; quadratic in the length of a run of combining marks.
std::string foldedAtOnce(std::string_view text, const TextLocale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* const formC = icu::Normalizer2::getNFCInstance(status);
    const icu::Normalizer2* const formD = icu::Normalizer2::getNFDInstance(status);
    const icu::UnicodeString utf16 =
        icu::UnicodeString::fromUTF8({text.data(), static_cast<int32_t>(text.size())});
    icu::UnicodeString result = (locale.hasDotlessI() ? formC : formD)->normalize(utf16, status);
    result.foldCase(locale.hasDotlessI() ? U_FOLD_CASE_EXCLUDE_SPECIAL_I : U_FOLD_CASE_DEFAULT);
    std::string utf8;
    formC->normalize(result, status).toUTF8String(utf8);
    require(U_SUCCESS(status));
    return utf8;
}

void checkFolding(std::string_view text, const TextLocale& locale) {
    const std::string once = folded(text, locale);
    require(once == foldedAtOnce(text, locale));
    require(folded(once, locale) == once);
}

void checkOrder(const std::vector<std::string_view>& names, const TextLocale& locale) {
    const NameOrder order(locale);
    std::string_view before;
    std::string keyBefore = order.sortKey(before);
    for (const std::string_view name : names) {
        const std::string key = order.sortKey(name);
        require(order.precedes(before, name) == (keyBefore < key));
        require(order.precedes(name, before) == (key < keyBefore));
        before = name;
        keyBefore = key;
    }
}

void checkIndex(std::string_view query,
                const std::vector<std::string_view>& names,
                const TextLocale& locale) {
    const auto release = std::make_shared<OpenMapRelease>(makeRelease());
    for (const std::string_view name : names) {
        OpenMapRelease::Asset asset = makeAsset(release->assets.size());
        asset.name = name;
        asset.kind = name.substr(0, name.size() / 2);
        release->assets.push_back(asset);
    }
    const ReleaseIndex index(release, locale);
    require(index.kinds() == kinds(*release));
    const std::vector<AssetIndex> found = filtered(*release, query, "all", locale);
    require(index.filtered(query, "all") == found);
    const std::vector<std::size_t> counts = index.counts(index.matchingRanks(query));
    for (std::size_t kind = 0; kind < counts.size(); ++kind) {
        const auto isOfKind = [&](AssetIndex each) {
            return release->assets[each].kind == index.kinds()[kind];
        };
        require(std::cmp_equal(counts[kind], std::ranges::count_if(found, isOfKind)));
    }
    const std::string& kind = index.kinds().back();
    require(index.filtered(query, kind) == filtered(*release, query, kind, locale));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::array<TextLocale, 3> locales = {
        TextLocale("en_CA"), TextLocale("tr_TR"), TextLocale("vi_VN")};
    if (size == 0) {
        return 0;
    }
    const TextLocale& locale = locales[data[0] % locales.size()];
    const auto lines = linesOf({reinterpret_cast<const char*>(data) + 1, size - 1});
    for (const std::string_view line : lines) {
        checkFolding(line, locale);
    }
    if (!lines.empty()) {
        const std::vector<std::string_view> names(lines.begin() + 1, lines.end());
        checkOrder(names, locale);
        checkIndex(lines.front(), names, locale);
    }
    return 0;
}
