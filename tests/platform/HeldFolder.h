#pragma once
// The lock of a folder, as another program holds it while it writes there.

#include <QFile>
#include <QString>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

namespace vasker {

class HeldFolder {
  public:
    explicit HeldFolder(const QString& path)
        : m_folder(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC)) {
        EXPECT_EQ(flock(m_folder, LOCK_EX), 0);
    }
    HeldFolder(const HeldFolder&) = delete;
    HeldFolder& operator=(const HeldFolder&) = delete;
    ~HeldFolder() { ::close(m_folder); }

  private:
    int m_folder;
};

} // namespace vasker
