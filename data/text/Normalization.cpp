#include "data/text/Normalization.h"

#include "data/text/IcuText.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>

#include <array>
#include <string>

namespace vasker {

namespace {

constexpr int32_t longestUnorderedRun = 64;
constexpr int32_t longestShortRun = 30;

const icu::Normalizer2& formC() {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* const form = icu::Normalizer2::getNFCInstance(status);
    requireSuccess(status);
    return *form;
}

const icu::Normalizer2& formD() {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* const form = icu::Normalizer2::getNFDInstance(status);
    requireSuccess(status);
    return *form;
}

icu::UnicodeString normalized(const icu::UnicodeString& text, const icu::Normalizer2& form) {
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString result = form.normalize(text, status);
    requireSuccess(status);
    return complete(std::move(result));
}

/// Whether a code point of combining class 0 decomposes into marks of other classes. Only some
/// vowel signs of Tibetan do.
bool decomposesIntoMarks(UChar32 codePoint) {
    return codePoint >= 0xF73 && codePoint <= 0xF81 && u_getCombiningClass(codePoint) == 0 &&
           u_getIntPropertyValue(codePoint, UCHAR_LEAD_CANONICAL_COMBINING_CLASS) != 0;
}

bool isMark(UChar32 codePoint) {
    constexpr UChar32 firstMark = 0x300;
    return codePoint >= firstMark &&
           (u_getCombiningClass(codePoint) != 0 || decomposesIntoMarks(codePoint));
}

icu::UnicodeString inCanonicalOrder(const icu::UnicodeString& marks) {
    std::array<std::u16string, 256> byCombiningClass;
    const auto add = [&](UChar32 mark) {
        std::u16string& ofClass = byCombiningClass.at(u_getCombiningClass(mark));
        if (U_IS_BMP(mark)) {
            ofClass += static_cast<char16_t>(mark);
        } else {
            ofClass += static_cast<char16_t>(U16_LEAD(mark));
            ofClass += static_cast<char16_t>(U16_TRAIL(mark));
        }
    };
    for (int32_t at = 0; at < marks.length(); at = marks.moveIndex32(at, 1)) {
        const UChar32 mark = marks.char32At(at);
        if (!decomposesIntoMarks(mark)) {
            add(mark);
            continue;
        }
        icu::UnicodeString parts;
        formD().getDecomposition(mark, parts);
        for (int32_t part = 0; part < parts.length(); part = parts.moveIndex32(part, 1)) {
            add(parts.char32At(part));
        }
    }
    icu::UnicodeString ordered;
    for (const std::u16string& ofClass : byCombiningClass) {
        ordered.append(ofClass.data(), static_cast<int32_t>(ofClass.size()));
    }
    return complete(std::move(ordered));
}

/// `text` with each run of more than `length` code units of marks replaced by `replacement(run)`.
template <typename Replacement>
icu::UnicodeString withLongRunsReplaced(const icu::UnicodeString& text,
                                        int32_t length,
                                        const Replacement& replacement) {
    icu::UnicodeString result;
    int32_t copied = 0;
    int32_t runBegin = 0;
    for (int32_t at = 0; at <= text.length();) {
        const UChar32 codePoint = text.char32At(at); // no mark at the end of the text
        const int32_t next = at + U16_LENGTH(codePoint);
        if (!isMark(codePoint)) {
            if (at - runBegin > length) {
                result.append(text, copied, runBegin - copied);
                result.append(replacement(text.tempSubStringBetween(runBegin, at)));
                copied = at;
            }
            runBegin = next;
        }
        at = next;
    }
    return copied == 0 ? text : complete(result.append(text, copied, text.length() - copied));
}

} // namespace

icu::UnicodeString withOrderedMarks(const icu::UnicodeString& text) {
    return withLongRunsReplaced(text, longestUnorderedRun, inCanonicalOrder);
}

icu::UnicodeString withShortRuns(const icu::UnicodeString& text) {
    return withLongRunsReplaced(text, longestShortRun, [](const icu::UnicodeString& marks) {
        return icu::UnicodeString(marks, 0, longestShortRun);
    });
}

icu::UnicodeString composed(const icu::UnicodeString& text) {
    return normalized(text, formC());
}

icu::UnicodeString decomposed(const icu::UnicodeString& text) {
    return normalized(text, formD());
}

bool hasCompositionBoundaryBefore(UChar32 codePoint) {
    return formC().hasBoundaryBefore(codePoint) != 0;
}

} // namespace vasker
