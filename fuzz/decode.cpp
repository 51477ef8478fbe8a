// Any bytes are decoded, refused or an error of the JSON library, within bounded time and memory,
// and the rules that are written a second time for the tests say the same of the values; what is
// accepted reads back from its own encoding, and its index answers.

#include "data/Digest.h"
#include "data/OpenMapRelease.h"
#include "data/ReleaseIndex.h"
#include "data/ReleaseReader.h"
#include "data/ReleaseWriter.h"
#include "tests/support/PlainRules.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <memory>
#include <string_view>

using vasker::OpenMapRelease;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    std::shared_ptr<const OpenMapRelease> release;
    try {
        release =
            std::make_shared<OpenMapRelease>(OpenMapRelease::decode(bytes, vasker::sha256(bytes)));
    } catch (const OpenMapRelease::Refusal& refusal) {
        const bool isOfValues = refusal.invalid() >= OpenMapRelease::Invalid::records;
        if (isOfValues && vasker::plainVerdict(vasker::readRelease(bytes)) != refusal.invalid()) {
            std::abort();
        }
        return 0;
    } catch (const std::exception&) {
        return 0;
    }
    if (vasker::plainVerdict(*release)) {
        std::abort();
    }
    const std::string written = vasker::encode(*release);
    if (OpenMapRelease::decode(written, vasker::sha256(written)) != *release) {
        std::abort();
    }
    const vasker::ReleaseIndex index(release, vasker::TextLocale("en"));
    const std::string& name = release->assets.front().name;
    if (index.filtered("", "all").size() != release->assets.size() ||
        index.filtered(name, "all").empty()) {
        std::abort();
    }
    return 0;
}
