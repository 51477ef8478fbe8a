#include "platform/files/PreferenceFile.h"

#include "platform/files/RegularFile.h"
#include "platform/files/WholeFile.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <thread>

namespace vasker {

namespace {

using namespace std::chrono_literals;

// A few settings; a file beyond this is another's.
constexpr qint64 maximumFileSize = 1'000'000;
constexpr auto lockPatience = 1s;
constexpr auto betweenTries = 2ms;

/// The lock that every change of a file in `folder` takes. It is the folder's, because the file
/// itself is replaced; the system gives it back when the program ends, however it does.
class FolderLock {
  public:
    explicit FolderLock(const QString& folder)
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): open() has no other form
        : m_descriptor(
              ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    ~FolderLock() {
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
        }
    }

    /// False where another program holds it all the time. Where the file system has no locks,
    /// nobody can have it: true.
    [[nodiscard]] bool take() const {
        const QDeadlineTimer end(lockPatience);
        while (::flock(m_descriptor, LOCK_EX | LOCK_NB) != 0) {
            if (errno != EWOULDBLOCK && errno != EINTR) {
                return true;
            }
            if (end.hasExpired()) {
                return false;
            }
            std::this_thread::sleep_for(betweenTries);
        }
        return true;
    }

  private:
    int m_descriptor;
};

QByteArray lineStart(const QString& key) {
    return key.toUtf8() + '=';
}

} // namespace

std::optional<PreferenceFile::Lines> PreferenceFile::read() const {
    const std::optional<QByteArray> bytes = readRegularFile(m_path, maximumFileSize);
    if (!bytes) {
        return std::nullopt;
    }
    Lines lines = bytes->split('\n');
    if (lines.last().isEmpty()) {
        lines.removeLast();
    }
    return lines;
}

std::optional<PreferenceFile::Lines> PreferenceFile::set(const Values& values) const {
    const QString folder = QFileInfo(m_path).absolutePath();
    if (!QDir().mkpath(folder)) {
        return std::nullopt;
    }
    const FolderLock lock(folder);
    if (!lock.take()) {
        return std::nullopt;
    }
    const std::optional<Lines> held = read();
    if (!held && QFileInfo::exists(m_path)) {
        return std::nullopt; // it would be lost
    }
    const Lines changed = with(held.value_or(Lines()), values);
    const QString fault = writeWhole(m_path, [&](QIODevice& file) {
        return file.write(changed.join('\n') + '\n') < 0 ? file.errorString() : QString();
    });
    return fault.isEmpty() ? std::optional(changed) : std::nullopt;
}

std::optional<QString> PreferenceFile::value(const Lines& lines, const QString& key) {
    const QByteArray start = lineStart(key);
    const auto line = std::find_if(lines.crbegin(), lines.crend(), [&](const QByteArray& each) {
        return each.startsWith(start);
    });
    return line == lines.crend() ? std::nullopt
                                 : std::optional(QString::fromUtf8(line->mid(start.size())));
}

PreferenceFile::Lines PreferenceFile::with(Lines lines, const Values& values) {
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        const QByteArray start = lineStart(value.key());
        lines.removeIf([&](const QByteArray& line) { return line.startsWith(start); });
        lines.append(start + value->toUtf8());
    }
    return lines;
}

} // namespace vasker
