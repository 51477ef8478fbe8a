#pragma once
// Writes settings on a thread of its own: a disk that is slow or hangs holds nobody up.

#include "platform/files/PreferenceFile.h"

#include <QObject>
#include <QString>

#include <memory>

namespace vasker {

class PreferenceWriter : public QObject {
    Q_OBJECT

  public:
    using Values = PreferenceFile::Values;

    explicit PreferenceWriter(PreferenceFile file, QObject* parent = nullptr);

    /// Has `value` written under `key`, in the order of the calls, and returns at once. What comes
    /// while the disk is busy is written together, of each key the last value. The end of the
    /// program waits for it (finishBackgroundWork), also if this object is gone by then.
    void write(const QString& key, const QString& value);
    /// Whether an ended() is to come.
    [[nodiscard]] bool isBusy() const noexcept { return m_runs > 0; }

  Q_SIGNALS:
    /// Nothing is left to write for now; the file holds `written`. Of what was to be written
    /// before, anything else could not be.
    void ended(const vasker::PreferenceFile::Values& written);

  private:
    struct Queue;

    std::shared_ptr<Queue> m_queue;
    int m_runs = 0; ///< of the thread, of which the end was not told yet
};

} // namespace vasker
