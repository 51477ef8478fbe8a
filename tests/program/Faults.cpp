// Preloaded into the program, makes files fail. The environment variable VASKER_FAULTS names a file
// with a fault on each line, which may change while the program runs:
//
//     CALL OUTCOME PATTERN
//
// CALL: open, read, write, sync or rename. OUTCOME: the name of an error, such as EIO; a number: no
// more bytes at once; "wait": half of the bytes, and a rename not at all, then the call never
// returns; "stay": the whole of it, then the same. PATTERN: of the file's path, as the shell knows
// them; of a rename, the new one. Each fault that happens adds its line to the file
// VASKER_FAULTS.met.

#include <fcntl.h>
#include <fnmatch.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstdarg>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>

namespace {

constexpr std::array<std::pair<std::string_view, int>, 5> errors{
    {{"EIO", EIO}, {"ENOSPC", ENOSPC}, {"EMFILE", EMFILE}, {"EACCES", EACCES}, {"EROFS", EROFS}}};

struct Fault {
    std::string line;
    int error = 0;
    std::size_t mostBytes = 0; ///< 0: no bound
    bool isHalf = false;
    bool isEndless = false;
};

/// What a raw call returns: the C library's own functions are replaced here.
ssize_t outcomeOf(long result) {
    return static_cast<ssize_t>(result);
}

std::string contentOf(const char* path) {
    std::string content(4096, '\0');
    const long file = ::syscall(SYS_openat, AT_FDCWD, path, O_RDONLY | O_CLOEXEC, 0);
    const long size = file < 0 ? 0 : ::syscall(SYS_read, file, content.data(), content.size());
    ::syscall(SYS_close, file);
    content.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    return content;
}

std::string_view takeWord(std::string_view& text, char end) {
    const std::size_t size = std::min(text.find(end), text.size());
    const std::string_view word = text.substr(0, size);
    text.remove_prefix(std::min(size + 1, text.size()));
    return word;
}

Fault faultOf(std::string_view line, std::string_view outcome) {
    Fault fault{.line = std::string(line) + '\n'};
    fault.isHalf = outcome == "wait";
    fault.isEndless = fault.isHalf || outcome == "stay";
    std::from_chars(outcome.data(), outcome.data() + outcome.size(), fault.mostBytes);
    for (const auto& [name, number] : errors) {
        fault.error = name == outcome ? number : fault.error;
    }
    if (!fault.isEndless && fault.mostBytes == 0 && fault.error == 0) {
        std::abort(); // a fault that cannot happen would prove nothing
    }
    return fault;
}

void tell(const char* faults, const Fault& fault) {
    const std::string path = std::string(faults) + ".met";
    constexpr int flags = O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC;
    const long file = ::syscall(SYS_openat, AT_FDCWD, path.c_str(), flags, 0600);
    ::syscall(SYS_write, file, fault.line.data(), fault.line.size());
    ::syscall(SYS_close, file);
}

/// The fault that is to happen to this call; one without an effect where there is none.
Fault faultAt(std::string_view call, const char* path) {
    const int errorBefore = errno;
    Fault fault;
    if (const char* const faults = std::getenv("VASKER_FAULTS")) {
        const std::string content = contentOf(faults);
        for (std::string_view rest = content; !rest.empty() && fault.line.empty();) {
            const std::string_view line = takeWord(rest, '\n');
            std::string_view words = line;
            const std::string_view name = takeWord(words, ' ');
            const std::string_view outcome = takeWord(words, ' ');
            if (name == call && ::fnmatch(std::string(words).c_str(), path, 0) == 0) {
                fault = faultOf(line, outcome);
                tell(faults, fault);
            }
        }
    }
    errno = fault.error != 0 ? fault.error : errorBefore;
    return fault;
}

Fault faultAt(std::string_view call, int descriptor) {
    const int errorBefore = errno;
    std::array<char, 4096> path{};
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const ssize_t size = ::readlink(link.c_str(), path.data(), path.size() - 1);
    errno = errorBefore;
    return faultAt(call, size < 0 ? "" : path.data());
}

[[noreturn]] void hang() {
    for (;;) {
        ::pause();
    }
}

std::size_t sizeUnder(const Fault& fault, std::size_t size) {
    const std::size_t most = fault.mostBytes != 0 ? fault.mostBytes : size;
    return std::min(fault.isHalf ? size / 2 : size, most);
}

/// Transfers bytes by `call(size)` as the fault wants it.
template <typename Call>
ssize_t transfer(const Fault& fault, std::size_t size, Call call) {
    if (fault.error != 0) {
        return -1;
    }
    const long result = call(sizeUnder(fault, size));
    if (fault.isEndless) {
        hang();
    }
    return outcomeOf(result);
}

int openAt(int folder, const char* path, int flags, mode_t mode) {
    const Fault fault = faultAt("open", path);
    if (fault.isEndless) {
        hang();
    }
    return fault.error != 0 ? -1
                            : static_cast<int>(::syscall(SYS_openat, folder, path, flags, mode));
}

bool makesFile(int flags) {
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
}

int synchronize(long call, int descriptor) {
    const Fault fault = faultAt("sync", descriptor);
    if (fault.isEndless) {
        hang();
    }
    return fault.error != 0 ? -1 : static_cast<int>(::syscall(call, descriptor));
}

/// Renames by `call` as the fault wants it.
template <typename Call>
int renameTo(const char* to, Call call) {
    const Fault fault = faultAt("rename", to);
    if (fault.isHalf) {
        hang();
    }
    const int result = fault.error != 0 ? -1 : static_cast<int>(call());
    if (fault.isEndless) {
        hang();
    }
    return result;
}

} // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = makesFile(flags) ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return openAt(AT_FDCWD, path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = makesFile(flags) ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return openAt(AT_FDCWD, path, flags, mode);
}

ssize_t read(int descriptor, void* bytes, std::size_t size) {
    return transfer(faultAt("read", descriptor), size, [&](std::size_t some) {
        return ::syscall(SYS_read, descriptor, bytes, some);
    });
}

ssize_t pread64(int descriptor, void* bytes, std::size_t size, off64_t from) {
    return transfer(faultAt("read", descriptor), size, [&](std::size_t some) {
        return ::syscall(SYS_pread64, descriptor, bytes, some, from);
    });
}

ssize_t write(int descriptor, const void* bytes, std::size_t size) {
    return transfer(faultAt("write", descriptor), size, [&](std::size_t some) {
        return ::syscall(SYS_write, descriptor, bytes, some);
    });
}

ssize_t pwrite64(int descriptor, const void* bytes, std::size_t size, off64_t from) {
    return transfer(faultAt("write", descriptor), size, [&](std::size_t some) {
        return ::syscall(SYS_pwrite64, descriptor, bytes, some, from);
    });
}

int fsync(int descriptor) {
    return synchronize(SYS_fsync, descriptor);
}

int fdatasync(int descriptor) {
    return synchronize(SYS_fdatasync, descriptor);
}

int rename(const char* from, const char* to) noexcept {
    return renameTo(to, [&] { return ::syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0); });
}

int renameat2(
    int fromFolder, const char* from, int toFolder, const char* to, unsigned int flags) noexcept {
    return renameTo(
        to, [&] { return ::syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags); });
}

} // extern "C"
