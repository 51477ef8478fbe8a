#include "data/text/Capitalization.h"

#include "data/text/IcuText.h"

#include <unicode/casemap.h>
#include <unicode/uchar.h>

namespace vasker {

namespace {

icu::UnicodeString inTitleCase(const icu::UnicodeString& word) {
    const int32_t capacity = 3 * word.length(); // no code unit becomes more than three
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString result;
    const int32_t length =
        icu::CaseMap::toTitle("",
                              U_TITLECASE_WHOLE_STRING | U_TITLECASE_NO_BREAK_ADJUSTMENT,
                              nullptr,
                              word.getBuffer(),
                              word.length(),
                              result.getBuffer(capacity),
                              capacity,
                              nullptr,
                              status);
    result.releaseBuffer(length);
    requireSuccess(status);
    return result;
}

} // namespace

std::string capitalized(std::string_view text) {
    const icu::UnicodeString source = utf8ToUtf16(text);
    icu::UnicodeString result;
    int32_t wordBegin = 0;
    for (int32_t at = 0; at < source.length(); at = source.moveIndex32(at, 1)) {
        if (u_isUWhiteSpace(source.char32At(at)) != 0) {
            result += inTitleCase(source.tempSubStringBetween(wordBegin, at));
            result += source.char32At(at);
            wordBegin = source.moveIndex32(at, 1);
        }
    }
    result += inTitleCase(source.tempSubString(wordBegin));
    return utf16ToUtf8(result);
}

} // namespace vasker
