#include "app/ReleaseLoading.h"

#include "data/FileReader.h"
#include "data/OpenMapRelease.h"

#include <exception>
#include <new>
#include <system_error>

namespace vasker {

namespace {

// One byte more than a release may have shows that the file is too large.
constexpr std::size_t readLimit = OpenMapRelease::maximumFileSize + 1;

} // namespace

LoadOutcome loadRelease(const std::string& path,
                        const std::string& expectedSHA256,
                        const TextLocale& locale,
                        const std::stop_token& stop) {
    try {
        auto release = std::make_shared<const OpenMapRelease>(
            OpenMapRelease::decode(readWholeFile(path, readLimit, stop), expectedSHA256, stop));
        return std::make_shared<const LoadedRelease>(std::move(release), locale, stop);
    } catch (const std::system_error& error) {
        return LoadFailure{error.code().message()};
    } catch (const std::bad_alloc&) {
        return LoadFailure{std::make_error_code(std::errc::not_enough_memory).message()};
    } catch (const std::exception& error) {
        return LoadFailure{error.what()};
    }
}

} // namespace vasker
