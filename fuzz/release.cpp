// Releases in which the bytes decide what is unusual: what decode() says of them is what the rules
// say that are written a second time for the tests, and a valid one reads back as it was written.

#include "data/Digest.h"
#include "data/ReleaseWriter.h"
#include "tests/support/PlainRules.h"
#include "tests/support/ReleaseFromBytes.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using vasker::OpenMapRelease;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const OpenMapRelease release = vasker::releaseFrom({data, size});
    const std::string json = vasker::encode(release);
    if (json.size() > OpenMapRelease::maximumFileSize) {
        return 0;
    }
    try {
        if (OpenMapRelease::decode(json, vasker::sha256(json)) != release ||
            vasker::plainVerdict(release)) {
            std::abort();
        }
    } catch (const OpenMapRelease::Refusal& refusal) {
        if (vasker::plainVerdict(release) != refusal.invalid()) {
            std::abort();
        }
    }
    return 0;
}
