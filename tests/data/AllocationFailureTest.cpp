// What happens when there is no memory, and when decoding is cancelled in its midst. The allocation
// functions are those below, so that a test can make the n-th allocation fail or cancel, and count
// what is not freed.

#include "data/Cancelled.h"
#include "data/Digest.h"
#include "data/OpenMapRelease.h"
#include "data/ReleaseIndex.h"
#include "data/ReleaseWriter.h"
#include "tests/support/ReleaseBuilder.h"

#include <gtest/gtest.h>
#include <unicode/uclean.h>

#include <cstdlib>
#include <functional>
#include <new>
#include <stop_token>
#include <tuple>

// Allocation functions have global state and malloc().
// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables)
// NOLINTBEGIN(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory)

namespace {

constexpr long never = -1;
long allocationsUntilFailure = never;
bool laterOnesFailToo = false;
long live = 0;
std::function<void()> onAllocation; ///< allocates nothing

bool fails() noexcept {
    if (allocationsUntilFailure > 0) {
        --allocationsUntilFailure;
        return false;
    }
    if (allocationsUntilFailure == 0 && !laterOnesFailToo) {
        allocationsUntilFailure = never;
        return true;
    }
    return allocationsUntilFailure == 0;
}

void* allocated(std::size_t size) noexcept {
    if (onAllocation) {
        onAllocation();
    }
    void* const memory = fails() ? nullptr : std::malloc(size);
    live += memory == nullptr ? 0 : 1;
    return memory;
}

void freed(void* memory) noexcept {
    live -= memory == nullptr ? 0 : 1;
    std::free(memory);
}

} // namespace

void* operator new(std::size_t size) {
    if (void* const memory = allocated(size)) {
        return memory;
    }
    throw std::bad_alloc();
}
void* operator new[](std::size_t size) {
    return operator new(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return allocated(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return allocated(size);
}
void operator delete(void* memory) noexcept {
    freed(memory);
}
void operator delete[](void* memory) noexcept {
    freed(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    freed(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    freed(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept {
    freed(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept {
    freed(memory);
}

namespace vasker {
namespace {

void* allocatedForICU(const void*, std::size_t size) {
    return allocated(size);
}
void* reallocatedForICU(const void*, void* memory, std::size_t size) {
    if (memory == nullptr) {
        return allocated(size);
    }
    return fails() ? nullptr : std::realloc(memory, size);
}
void freedForICU(const void*, void* memory) {
    freed(memory);
}

// NOLINTEND(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory)
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

class AllocationFailure : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        UErrorCode status = U_ZERO_ERROR;
        u_setMemoryFunctions(nullptr, allocatedForICU, reallocatedForICU, freedForICU, &status);
        ASSERT_TRUE(U_SUCCESS(status));
    }
    void TearDown() override { allocationsUntilFailure = never; }

    /// Runs `work` with the first, then the second, ... allocation failing, alone and with all
    /// later ones, until none fails. Its result has to be the right one or std::bad_alloc.
    template <typename Work>
    static void expectAllOrNothing(const Work& work) {
        const auto expected = work(); // makes, too, what is made once for the process
        for (const bool laterOnes : {false, true}) {
            laterOnesFailToo = laterOnes;
            long allocations = 0;
            while (!isDone(work, expected, allocations) && !HasFailure()) {
                ++allocations;
            }
        }
        EXPECT_EQ(work(), expected);
    }

    /// Runs `work` with one failure after `allocations`. Returns whether it needs no more.
    template <typename Work, typename Result>
    static bool isDone(const Work& work, const Result& expected, long allocations) {
        const long before = live;
        bool isDone = false;
        allocationsUntilFailure = allocations;
        try {
            const auto result = work();
            isDone = allocationsUntilFailure > 0;
            allocationsUntilFailure = never;
            EXPECT_EQ(result, expected) << "after " << allocations << " allocations";
        } catch (const std::bad_alloc&) {
            allocationsUntilFailure = never;
        }
        EXPECT_EQ(live, before) << "after " << allocations << " allocations";
        return isDone;
    }

    /// A release with texts that take every way through ICU.
    static OpenMapRelease release() {
        OpenMapRelease release = makeRelease();
        release.assets[0].name = "Montr\u00E9al x\u0302 \u4E00\u4E01 with a name of some length";
        release.assets[0].facts = {
            makeFact("e\u0301\u0316 \U0001F468\u200D\U0001F469\u200D\U0001F467")};
        release.assets[1].kind = "\u00E9tape";
        return release;
    }
};

TEST_F(AllocationFailure, WhileDecodingLeavesNothingHalfDone) {
    const std::string json = encode(release());
    const std::string digest = sha256(json);
    expectAllOrNothing([&] { return OpenMapRelease::decode(json, digest); });
}

TEST_F(AllocationFailure, WhileDecodingAReleaseThatIsRefusedChangesNoRefusal) {
    const std::string json = replaced(encode(release()), R"("label")", R"("unit":1,"label")");
    const std::string digest = sha256(json);
    expectAllOrNothing([&] {
        try {
            static_cast<void>(OpenMapRelease::decode(json, digest));
            ADD_FAILURE() << "a release with an unknown key is accepted";
            return std::string();
        } catch (const OpenMapRelease::Refusal& refusal) {
            return refusal.place();
        }
    });
}

TEST(CancelledDecoding, EndsWithinAThousandElementsOfAList) {
    OpenMapRelease release = makeRelease();
    release.limitations.assign(20'000, "a text that has memory of its own");
    const std::string json = encode(release);
    const std::string digest = sha256(json);
    std::stop_source stop;
    long allocations = 0;
    onAllocation = [&] {
        if (++allocations == 5'000) {
            stop.request_stop();
        }
    };
    EXPECT_THROW(
        static_cast<void>(OpenMapRelease::decode(std::string(json), digest, stop.get_token())),
        Cancelled);
    onAllocation = {};
    EXPECT_GE(allocations, 5'000);
    EXPECT_LE(allocations, 5'000 + 1'100);
}

TEST_F(AllocationFailure, WhileIndexingLeavesNothingHalfDone) {
    const auto decoded = std::make_shared<const OpenMapRelease>(release());
    for (const char* const locale : {"en_CA", "tr_TR", "vi_VN"}) {
        const TextLocale textLocale(locale);
        expectAllOrNothing([&] {
            const ReleaseIndex index(decoded, textLocale);
            return std::tuple(
                std::string(index.texts().bytes()), index.filtered("", "all"), index.kinds());
        });
    }
}

TEST_F(AllocationFailure, WhileSearchingFindsAllOrNothing) {
    const ReleaseIndex index(std::make_shared<const OpenMapRelease>(release()), TextLocale("en"));
    expectAllOrNothing([&] { return index.filtered("X\u0302", "all"); });
    expectAllOrNothing([&] { return index.counts(index.matchingRanks("plant")); });
}

} // namespace
} // namespace vasker
