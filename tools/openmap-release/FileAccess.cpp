#include "tools/openmap-release/FileAccess.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <list>
#include <optional>
#include <system_error>
#include <utility>

namespace vasker {
namespace {

class Descriptor {
  public:
    explicit Descriptor(int number) : m_number(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor(Descriptor&&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;
    ~Descriptor() {
        if (m_number >= 0) {
            ::close(m_number);
        }
    }
    [[nodiscard]] int number() const noexcept { return m_number; }

  private:
    int m_number;
};

void writeAll(int descriptor, std::string_view bytes, const std::string& path) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            throw FileError(path, errno);
        }
        bytes.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
}

std::string readAll(int descriptor, const std::string& path, std::size_t limit) {
    constexpr std::size_t step = 1U << 20U;
    std::string bytes;
    while (bytes.size() < limit) {
        const std::size_t start = bytes.size();
        bytes.resize(start + std::min(step, limit - start));
        const ssize_t count = ::read(descriptor, bytes.data() + start, bytes.size() - start);
        if (count < 0 && errno != EINTR) {
            throw FileError(path, errno);
        }
        bytes.resize(start + (count < 0 ? 0 : static_cast<std::size_t>(count)));
        if (count == 0) {
            break;
        }
    }
    return bytes;
}

std::string resolved(const std::string& path) {
    std::error_code error;
    const std::filesystem::path target = std::filesystem::canonical(path, error);
    return error ? path : target.string();
}

/// One file on its way to its place.
class Replacement {
  public:
    explicit Replacement(const FileContent& content)
        : m_named(content.path), m_target(resolved(content.path)), m_bytes(content.bytes) {}
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;
    Replacement(Replacement&&) = delete;
    Replacement& operator=(Replacement&&) = delete;
    ~Replacement() {
        forget(m_fresh);
        forget(m_former);
    }

    /// Writes the new file and keeps a second name for the old one.
    void prepare() {
        struct stat former {};
        const bool exists = ::stat(m_target.c_str(), &former) == 0;
        if (!exists && errno != ENOENT) {
            throw FileError(m_named, errno);
        }
        if (exists && S_ISDIR(former.st_mode)) {
            throw FileError(m_named, EISDIR);
        }
        if (exists && !S_ISREG(former.st_mode)) {
            m_isDirect = true;
            return;
        }
        if (exists && ::access(m_target.c_str(), W_OK) != 0) {
            throw FileError(m_named, errno);
        }
        writeFresh(exists ? former.st_mode & 07777U : modeOfNewFiles());
        if (exists) {
            keepFormer();
        }
    }

    void moveIn() {
        if (m_isDirect) {
            const Descriptor device(::open(m_target.c_str(), O_WRONLY | O_CLOEXEC));
            if (device.number() < 0) {
                throw FileError(m_named, errno);
            }
            writeAll(device.number(), m_bytes, m_named);
            return;
        }
        if (::rename(m_fresh->c_str(), m_target.c_str()) != 0) {
            throw FileError(m_named, errno);
        }
        m_fresh.reset();
    }

    void moveBack() noexcept {
        if (m_isDirect) {
            return;
        }
        if (m_former && ::rename(m_former->c_str(), m_target.c_str()) == 0) {
            m_former.reset();
        } else if (!m_former) {
            ::unlink(m_target.c_str());
        }
    }

  private:
    static mode_t modeOfNewFiles() {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        return 0666U & ~mask;
    }

    static void forget(const std::optional<std::string>& path) noexcept {
        if (path) {
            ::unlink(path->c_str());
        }
    }

    void writeFresh(mode_t mode) {
        std::string name = m_target + ".XXXXXX";
        const Descriptor fresh(::mkostemp(name.data(), O_CLOEXEC));
        if (fresh.number() < 0) {
            throw FileError(m_named, errno);
        }
        m_fresh = name;
        writeAll(fresh.number(), m_bytes, m_named);
        if (::fchmod(fresh.number(), mode) != 0 || ::fsync(fresh.number()) != 0) {
            throw FileError(m_named, errno);
        }
    }

    void keepFormer() {
        const std::string name = *m_fresh + ".former";
        std::error_code error;
        std::filesystem::create_hard_link(m_target, name, error);
        if (error) {
            std::filesystem::copy_file(m_target, name, error);
        }
        if (error) {
            throw FileError(m_named, error.value());
        }
        m_former = name;
    }

    std::string m_named;
    std::string m_target;
    std::string_view m_bytes;
    std::optional<std::string> m_fresh;
    std::optional<std::string> m_former;
    bool m_isDirect = false;
};

} // namespace

FileError::FileError(const std::string& path, int errorNumber)
    : std::runtime_error(path + ": " + std::generic_category().message(errorNumber)) {}

std::string readFile(const std::string& path, std::size_t limit) {
    if (path == standardStream) {
        return readAll(STDIN_FILENO, "standard input", limit);
    }
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (file.number() < 0) {
        throw FileError(path, errno);
    }
    return readAll(file.number(), path, limit);
}

void writeFiles(std::span<const FileContent> files) {
    std::list<Replacement> replacements;
    for (const FileContent& content : files) {
        replacements.emplace_back(content).prepare();
    }
    auto next = replacements.begin();
    try {
        for (; next != replacements.end(); ++next) {
            next->moveIn();
        }
    } catch (const FileError&) {
        while (next != replacements.begin()) {
            --next;
            next->moveBack();
        }
        throw;
    }
}

} // namespace vasker
