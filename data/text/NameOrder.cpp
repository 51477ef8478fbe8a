#include "data/text/NameOrder.h"

#include "data/text/IcuText.h"
#include "data/text/Normalization.h"

#include <unicode/coll.h>
#include <unicode/sortkey.h>

namespace vasker {

namespace {

/// ICU takes quadratic time for long runs of combining marks: it looks for contractions among them,
/// and in some locales it sorts them.
icu::UnicodeString comparable(std::string_view name) {
    return withShortRuns(utf8ToUtf16(name));
}

} // namespace

struct NameOrder::Collator {
    std::unique_ptr<icu::Collator> rules;
};

NameOrder::NameOrder(const TextLocale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> rules(
        icu::Collator::createInstance(icu::Locale(locale.id().c_str()), status));
    requireSuccess(status);
    rules->setAttribute(UCOL_NUMERIC_COLLATION, UCOL_ON, status);
    rules->setAttribute(UCOL_STRENGTH, UCOL_TERTIARY, status);
    requireSuccess(status);
    m_collator = std::make_unique<const Collator>(Collator{std::move(rules)});
}

NameOrder::~NameOrder() = default;

bool NameOrder::precedes(std::string_view a, std::string_view b) const {
    UErrorCode status = U_ZERO_ERROR;
    const auto order = m_collator->rules->compare(comparable(a), comparable(b), status);
    requireSuccess(status);
    return order == UCOL_LESS;
}

std::string NameOrder::sortKey(std::string_view name) const {
    UErrorCode status = U_ZERO_ERROR;
    icu::CollationKey key;
    m_collator->rules->getCollationKey(comparable(name), key, status);
    requireSuccess(status);
    int32_t size = 0;
    const uint8_t* const bytes = key.getByteArray(size);
    return {reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size)};
}

} // namespace vasker
