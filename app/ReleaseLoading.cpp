#include "app/ReleaseLoading.h"

#include "data/FileReader.h"
#include "data/OpenMapRelease.h"

#include <exception>
#include <mutex>
#include <new>
#include <system_error>
#include <utility>
#include <vector>

namespace vasker {

namespace {

// One byte more than a release may have shows that the file is too large.
constexpr std::size_t readLimit = OpenMapRelease::maximumFileSize + 1;

/// The releases that windows hold, so that equal ones are in memory once. Any thread.
class HeldReleases {
  public:
    /// The one that equals `release` and is searched by the same rules, or null.
    std::shared_ptr<const LoadedRelease> equalTo(const OpenMapRelease& release,
                                                 const TextLocale& locale) {
        for (const auto& held : all()) {
            if (held->index.locale().id() == locale.id() && held->index.release() == release) {
                return held;
            }
        }
        return nullptr;
    }

    void add(const std::shared_ptr<const LoadedRelease>& loaded) {
        const std::scoped_lock lock(m_mutex);
        std::erase_if(m_held, [](const auto& each) { return each.expired(); });
        m_held.push_back(loaded);
    }

  private:
    std::vector<std::shared_ptr<const LoadedRelease>> all() {
        std::vector<std::shared_ptr<const LoadedRelease>> held;
        const std::scoped_lock lock(m_mutex);
        for (const auto& each : m_held) {
            if (auto alive = each.lock()) {
                held.push_back(std::move(alive));
            }
        }
        return held;
    }

    std::mutex m_mutex;
    std::vector<std::weak_ptr<const LoadedRelease>> m_held;
};

/// Never destroyed: a load task may outlast everything else.
HeldReleases& heldReleases() {
    static auto* const held = new HeldReleases;
    return *held;
}

} // namespace

LoadOutcome loadRelease(const std::string& path,
                        const std::string& expectedSHA256,
                        const TextLocale& locale,
                        const std::stop_token& stop) {
    try {
        auto release = std::make_shared<const OpenMapRelease>(
            OpenMapRelease::decode(readWholeFile(path, readLimit, stop), expectedSHA256, stop));
        if (auto held = heldReleases().equalTo(*release, locale)) {
            return held;
        }
        auto loaded = std::make_shared<const LoadedRelease>(std::move(release), locale, stop);
        heldReleases().add(loaded);
        return loaded;
    } catch (const std::system_error& error) {
        return LoadFailure{error.code().message()};
    } catch (const std::bad_alloc&) {
        return LoadFailure{std::make_error_code(std::errc::not_enough_memory).message()};
    } catch (const std::exception& error) {
        return LoadFailure{error.what()};
    }
}

} // namespace vasker
