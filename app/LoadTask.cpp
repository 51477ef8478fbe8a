#include "app/LoadTask.h"

#include <QSocketNotifier>

#include <sys/eventfd.h>
#include <unistd.h>

#include <cerrno>
#include <mutex>
#include <optional>
#include <system_error>

namespace vasker {

// Holds the outcome between the two threads and rings when it has arrived. Both own it, so that
// either may go first. An event descriptor rings into the event loop without a shared QObject.
class LoadTask::Mailbox {
  public:
    Mailbox() : m_bell(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
        if (m_bell < 0) {
            throw std::system_error(errno, std::generic_category());
        }
    }
    ~Mailbox() { ::close(m_bell); }
    Mailbox(const Mailbox&) = delete;
    Mailbox& operator=(const Mailbox&) = delete;

    [[nodiscard]] int bell() const noexcept { return m_bell; }

    void put(LoadOutcome outcome) {
        const std::scoped_lock lock(m_mutex);
        m_outcome = std::move(outcome);
        ::eventfd_write(m_bell, 1);
    }

    [[nodiscard]] std::optional<LoadOutcome> take() {
        const std::scoped_lock lock(m_mutex);
        return std::exchange(m_outcome, std::nullopt);
    }

  private:
    int m_bell;
    std::mutex m_mutex;
    std::optional<LoadOutcome> m_outcome;
};

LoadTask::LoadTask(BackgroundThreads& threads, std::function<LoadOutcome()> work, QObject* parent)
    : QObject(parent), m_mailbox(std::make_shared<Mailbox>()) {
    auto* notifier = new QSocketNotifier(m_mailbox->bell(), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false);
        deliver();
    });
    threads.start([mailbox = m_mailbox, work = std::move(work)] { mailbox->put(work()); });
}

LoadTask::~LoadTask() {
    // The notifier must not outlive the descriptor it watches.
    qDeleteAll(findChildren<QSocketNotifier*>());
}

void LoadTask::deliver() {
    if (const std::optional<LoadOutcome> outcome = m_mailbox->take()) {
        Q_EMIT finished(*outcome);
    }
}

} // namespace vasker
