#include "data/text/CodePointOrder.h"

#include "data/text/IcuText.h"
#include "data/text/Normalization.h"

namespace vasker {

std::string codePointSortKey(std::string_view text) {
    return utf16ToUtf8(
        composed(withOrderedMarks(utf8ToUtf16(text)))); // bytes of UTF-8 order as code points do
}

} // namespace vasker
