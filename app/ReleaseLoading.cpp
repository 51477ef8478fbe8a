#include "app/ReleaseLoading.h"

#include "data/OpenMapRelease.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <exception>
#include <system_error>

namespace vasker {

namespace {

class OpenFile {
  public:
    explicit OpenFile(const std::string& path)
        : m_descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
        if (m_descriptor < 0) {
            fail();
        }
    }
    ~OpenFile() { ::close(m_descriptor); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    /// The next bytes, at most `size`; none at the end.
    std::size_t read(char* into, std::size_t size) const {
        ssize_t count = 0;
        do {
            count = ::read(m_descriptor, into, size);
        } while (count < 0 && errno == EINTR);
        if (count < 0) {
            fail();
        }
        return static_cast<std::size_t>(count);
    }

  private:
    [[noreturn]] static void fail() { throw std::system_error(errno, std::generic_category()); }
    int m_descriptor;
};

// One byte more than a release may have settles that it is too large; the rest is never read.
constexpr std::size_t readLimit = OpenMapRelease::maximumFileSize + 1;
constexpr std::size_t readStep = 1 << 20;

std::string wholeFile(const std::string& path) {
    const OpenFile file(path);
    std::string bytes;
    for (std::size_t filled = 0;;) {
        bytes.resize(std::min(filled + readStep, readLimit));
        const std::size_t count = file.read(bytes.data() + filled, bytes.size() - filled);
        filled += count;
        if (count == 0 || filled == readLimit) {
            bytes.resize(filled);
            return bytes;
        }
    }
}

} // namespace

LoadOutcome
loadRelease(const std::string& path, const std::string& expectedSHA256, const TextLocale& locale) {
    try {
        auto release = std::make_shared<const OpenMapRelease>(
            OpenMapRelease::decode(wholeFile(path), expectedSHA256));
        return std::make_shared<const LoadedRelease>(std::move(release), locale);
    } catch (const std::system_error& error) {
        return LoadFailure{error.code().message()};
    } catch (const std::exception& error) {
        return LoadFailure{error.what()};
    }
}

} // namespace vasker
