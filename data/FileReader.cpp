#include "data/FileReader.h"

#include "data/Cancelled.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace vasker {

namespace {

constexpr std::size_t readStep = 1U << 20U;
constexpr std::size_t paddingForParsers = 64;

[[noreturn]] void fail(std::errc error) {
    throw std::system_error(std::make_error_code(error));
}

[[noreturn]] void failAsTheSystemSays() {
    throw std::system_error(errno, std::generic_category());
}

class RegularFile {
  public:
    explicit RegularFile(const std::string& path)
        // Without O_NONBLOCK, opening a FIFO waits for a writer.
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): open() has no other form
        : m_descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK)) {
        if (m_descriptor < 0) {
            failAsTheSystemSays();
        }
    }
    RegularFile(const RegularFile&) = delete;
    RegularFile& operator=(const RegularFile&) = delete;
    ~RegularFile() { ::close(m_descriptor); }

    [[nodiscard]] struct stat status() const {
        struct stat status {};
        if (::fstat(m_descriptor, &status) != 0) {
            failAsTheSystemSays();
        }
        if (!S_ISREG(status.st_mode)) {
            fail(S_ISDIR(status.st_mode) ? std::errc::is_a_directory : std::errc::not_supported);
        }
        return status;
    }

    /// Reads at most `size` bytes and returns how many; 0 at the end of the file.
    std::size_t read(char* into, std::size_t size) const {
        ssize_t count = 0;
        do {
            count = ::read(m_descriptor, into, size);
        } while (count < 0 && errno == EINTR);
        if (count < 0) {
            failAsTheSystemSays();
        }
        return static_cast<std::size_t>(count);
    }

  private:
    int m_descriptor;
};

bool hasChanged(const struct stat& before, const struct stat& after) {
    return before.st_size != after.st_size || before.st_mtim.tv_sec != after.st_mtim.tv_sec ||
           before.st_mtim.tv_nsec != after.st_mtim.tv_nsec;
}

} // namespace

std::string readWholeFile(const std::string& path, std::size_t limit, const std::stop_token& stop) {
    const RegularFile file(path);
    const struct stat before = file.status();

    std::string bytes;
    bytes.reserve(std::min(limit, static_cast<std::size_t>(before.st_size)) + paddingForParsers);
    while (bytes.size() < limit) {
        throwIfCancelled(stop);
        const std::size_t filled = bytes.size();
        const std::size_t room = bytes.capacity() - filled;
        const std::size_t step = std::min({limit - filled, readStep, room > 0 ? room : readStep});
        bytes.resize(filled + step);
        const std::size_t count = file.read(bytes.data() + filled, step);
        bytes.resize(filled + count);
        if (count == 0) {
            if (hasChanged(before, file.status())) {
                fail(std::errc::device_or_resource_busy);
            }
            break;
        }
    }
    return bytes;
}

} // namespace vasker
