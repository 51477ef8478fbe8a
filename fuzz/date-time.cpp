// A text is an internet date-time exactly if the rules say so that are written a second time for
// the tests.

#include "data/InternetDateTime.h"
#include "tests/support/PlainRules.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    if (vasker::isInternetDateTime(text) != vasker::plainIsInternetDateTime(text)) {
        std::abort();
    }
    return 0;
}
