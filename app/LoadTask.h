#pragma once
// One piece of background loading whose result comes back to the user-interface thread. Destroying
// the task earlier drops the result; the work then ends by itself and disturbs nobody.

#include "app/BackgroundThreads.h"
#include "app/ReleaseLoading.h"

#include <QObject>

#include <functional>
#include <memory>

namespace vasker {

class LoadTask : public QObject {
    Q_OBJECT

  public:
    /// Starts `work`, which must own all that it uses. Throws std::system_error where the system
    /// has no thread or no event descriptor to give.
    LoadTask(BackgroundThreads& threads, std::function<LoadOutcome()> work, QObject* parent);
    ~LoadTask() override;

  Q_SIGNALS:
    /// On the user-interface thread, once.
    void finished(const vasker::LoadOutcome& outcome);

  private:
    class Mailbox;
    void deliver();
    std::shared_ptr<Mailbox> m_mailbox;
};

} // namespace vasker
