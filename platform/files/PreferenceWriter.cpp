#include "platform/files/PreferenceWriter.h"

#include "platform/Background.h"

#include <mutex>
#include <system_error>
#include <utility>

namespace vasker {

/// Shared with the thread that serves it.
struct PreferenceWriter::Queue {
    PreferenceFile file;
    std::mutex mutex;
    Values waiting;        ///< guarded by mutex
    bool isServed = false; ///< guarded by mutex

    explicit Queue(PreferenceFile served) : file(std::move(served)) {}

    /// Writes until nothing waits; what the file holds then of it.
    Values serve() {
        Values written;
        while (true) {
            Values values;
            {
                const std::scoped_lock lock(mutex);
                values = std::exchange(waiting, {});
                if (values.isEmpty()) {
                    isServed = false;
                    return written;
                }
            }
            if (file.set(values)) {
                written.insert(values);
            }
        }
    }
};

PreferenceWriter::PreferenceWriter(PreferenceFile file, QObject* parent)
    : QObject(parent), m_queue(std::make_shared<Queue>(std::move(file))) {}

void PreferenceWriter::write(const QString& key, const QString& value) {
    {
        const std::scoped_lock lock(m_queue->mutex);
        m_queue->waiting.insert(key, value);
        if (std::exchange(m_queue->isServed, true)) {
            return;
        }
    }
    try {
        runInBackground(
            this,
            [queue = m_queue](const std::stop_token&) { return queue->serve(); },
            [this](const Values& written) {
                --m_runs;
                Q_EMIT ended(written);
            },
            AtExit::finish);
        ++m_runs;
    } catch (const std::system_error&) {
        // There is no thread: it waits for the next call.
        const std::scoped_lock lock(m_queue->mutex);
        m_queue->isServed = false;
    }
}

} // namespace vasker
