// The read() that the file reader calls is the one below, so that a test can make it fail.

#include "data/FileReader.h"

#include "data/Cancelled.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <functional>
#include <system_error>

namespace {

/// Called in place of read() while it is set.
std::function<ssize_t(int, void*, std::size_t)> injectedRead;

ssize_t readBySystem(int descriptor, void* into, std::size_t size) {
    return ::syscall(SYS_read, descriptor, into, size);
}

} // namespace

extern "C" ssize_t read(int descriptor, void* into, std::size_t size) {
    return injectedRead ? injectedRead(descriptor, into, size)
                        : readBySystem(descriptor, into, size);
}

namespace vasker {
namespace {

constexpr std::size_t ample = 100'000'000;

class FileReader : public testing::Test {
  protected:
    FileReader() {
        std::string name = testing::TempDir() + "file-reader-XXXXXX";
        m_folder = ::mkdtemp(name.data());
    }
    ~FileReader() override {
        injectedRead = nullptr;
        std::filesystem::remove_all(m_folder);
    }

    [[nodiscard]] std::string path(const std::string& name = "file") const {
        return m_folder + '/' + name;
    }
    /// The path of a file with this content.
    std::string write(const std::string& bytes) const {
        std::ofstream(path(), std::ios::binary) << bytes;
        return path();
    }

  private:
    std::string m_folder;
};

/// The system's description of why the file at `path` is not read; empty if it is read.
std::string failureOf(const std::string& path) {
    try {
        static_cast<void>(readWholeFile(path, ample));
        return "";
    } catch (const std::system_error& error) {
        return error.code().message();
    }
}

std::string bytesOfSize(std::size_t size) {
    std::string bytes(size, '\0');
    for (std::size_t at = 0; at < size; ++at) {
        bytes[at] = static_cast<char>(at % 251);
    }
    return bytes;
}

TEST_F(FileReader, AFileIsReadWhole) {
    for (const std::size_t size : {0U, 1U, 4'096U, 1'048'576U, 3'000'000U}) {
        const std::string bytes = bytesOfSize(size);
        EXPECT_EQ(readWholeFile(write(bytes), ample), bytes) << size;
    }
}

TEST_F(FileReader, OfALongerFileNoMoreThanTheLimitIsRead) {
    write(bytesOfSize(3'000'000));
    EXPECT_EQ(readWholeFile(path(), 2'000'000), bytesOfSize(2'000'000));
    EXPECT_EQ(readWholeFile(path(), 3'000'000), bytesOfSize(3'000'000));
    EXPECT_EQ(readWholeFile(path(), 1), std::string(1, '\0'));
    EXPECT_EQ(readWholeFile(path(), 0), "");
}

TEST_F(FileReader, MemoryIsKeptForTheFileAndThePaddingOfAParserOnly) {
    const std::string bytes = readWholeFile(write(bytesOfSize(3'000'000)), ample);
    EXPECT_GE(bytes.capacity(), 3'000'064U);
    EXPECT_LT(bytes.capacity(), 3'001'000U);
}

TEST_F(FileReader, ASymbolicLinkLeadsToItsFile) {
    std::filesystem::create_symlink(write("bytes"), path("link"));
    EXPECT_EQ(readWholeFile(path("link"), ample), "bytes");
}

TEST_F(FileReader, AFileThatCannotBeOpenedIsDescribedAsTheSystemDoes) {
    EXPECT_EQ(failureOf(path("missing")), "No such file or directory");
    EXPECT_EQ(failureOf(write("bytes") + "/below"), "Not a directory");
    EXPECT_EQ(failureOf(""), "No such file or directory");
}

TEST_F(FileReader, ADirectoryIsRefused) {
    EXPECT_EQ(failureOf(std::filesystem::path(path()).parent_path()), "Is a directory");
}

TEST_F(FileReader, AFIFOIsRefusedWithoutWaitingForAWriter) {
    ASSERT_EQ(::mkfifo(path("fifo").c_str(), 0600), 0);
    EXPECT_EQ(failureOf(path("fifo")), "Operation not supported");
}

TEST_F(FileReader, ADeviceIsRefused) {
    EXPECT_EQ(failureOf("/dev/zero"), "Operation not supported");
    EXPECT_EQ(failureOf("/dev/null"), "Operation not supported");
}

TEST_F(FileReader, ReadsThatReturnFewerBytesAreContinued) {
    const std::string bytes = bytesOfSize(5'000);
    injectedRead = [](int descriptor, void* into, std::size_t size) {
        return readBySystem(descriptor, into, std::min<std::size_t>(size, 7));
    };
    EXPECT_EQ(readWholeFile(write(bytes), ample), bytes);
}

TEST_F(FileReader, AnInterruptedReadIsRepeated) {
    int interruptions = 3;
    injectedRead = [&](int descriptor, void* into, std::size_t size) -> ssize_t {
        if (interruptions-- > 0) {
            errno = EINTR;
            return -1;
        }
        return readBySystem(descriptor, into, size);
    };
    EXPECT_EQ(readWholeFile(write("bytes"), ample), "bytes");
}

TEST_F(FileReader, AnErrorInTheMiddleOfTheFileIsDescribedAsTheSystemDoes) {
    bool isFirst = true;
    injectedRead = [&](int descriptor, void* into, std::size_t size) -> ssize_t {
        if (std::exchange(isFirst, false)) {
            return readBySystem(descriptor, into, size);
        }
        errno = EIO;
        return -1;
    };
    EXPECT_EQ(failureOf(write(bytesOfSize(2'000'000))), "Input/output error");
}

TEST_F(FileReader, AFileThatGrowsWhileItIsReadIsRefused) {
    injectedRead = [&](int descriptor, void* into, std::size_t size) {
        const ssize_t count = readBySystem(descriptor, into, size);
        if (count > 0 && std::filesystem::file_size(path()) == 2'000'000) {
            std::ofstream(path(), std::ios::app) << "more";
        }
        return count;
    };
    EXPECT_EQ(failureOf(write(bytesOfSize(2'000'000))), "Device or resource busy");
}

TEST_F(FileReader, AFileThatShrinksWhileItIsReadIsRefused) {
    injectedRead = [&](int descriptor, void* into, std::size_t size) {
        const ssize_t count = readBySystem(descriptor, into, size);
        std::filesystem::resize_file(path(), 10);
        return count;
    };
    EXPECT_EQ(failureOf(write(bytesOfSize(2'000'000))), "Device or resource busy");
}

TEST_F(FileReader, AFileThatNeverEndsIsReadToTheLimit) {
    injectedRead = [](int, void*, std::size_t size) { return static_cast<ssize_t>(size); };
    EXPECT_EQ(readWholeFile(write("bytes"), 5'000'000).size(), 5'000'000U);
}

TEST_F(FileReader, AStopEndsTheReadingBeforeTheNextStep) {
    std::stop_source stop;
    int reads = 0;
    injectedRead = [&](int, void*, std::size_t size) {
        if (++reads == 2) {
            stop.request_stop();
        }
        return static_cast<ssize_t>(size);
    };
    EXPECT_THROW(static_cast<void>(readWholeFile(write("bytes"), ample, stop.get_token())),
                 Cancelled);
    EXPECT_EQ(reads, 2);
}

} // namespace
} // namespace vasker
