// A text is a secure web address exactly if the rules say so that are written a second time for
// the tests.

#include "data/WebAddress.h"
#include "tests/support/PlainRules.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    if (vasker::secureURL(text) != vasker::plainSecureURL(text)) {
        std::abort();
    }
    return 0;
}
