#include "tools/openmap-release/Synthesis.h"

#include "data/ReleaseRules.h"
#include "data/ReleaseWriter.h"
#include "tools/openmap-release/RandomSequence.h"
#include "tools/openmap-release/SyntheticRecords.h"
#include "tools/openmap-release/SyntheticText.h"

#include <algorithm>
#include <string_view>

namespace vasker {
namespace {

[[noreturn]] void refuse(const std::string& reason) {
    throw ImpossibleSynthesis(reason);
}

void refuseImpossibleNumbers(const SynthesisOptions& options) {
    if (options.records == 0 || options.records > maximumAssets) {
        refuse("a release has 1 to 10000 records, not " + std::to_string(options.records));
    }
    if (options.routePoints > maximumRoutePoints) {
        refuse("a release has at most 300000 route points, not " +
               std::to_string(options.routePoints));
    }
    if (options.routePoints == 1) {
        refuse("a route has at least 2 points, so 1 route point is impossible");
    }
    if (options.bytes > OpenMapRelease::maximumFileSize) {
        refuse("a release has at most 15000000 bytes, not " + std::to_string(options.bytes));
    }
}

OpenMapRelease unfilledRelease(const SynthesisOptions& options, RandomSequence& random) {
    OpenMapRelease release;
    release.releaseID = "synthetic-" + std::to_string(options.seed);
    release.generatedAt = "2026-01-01T00:00:00Z";
    release.coverageName = "Invented energy infrastructure";
    release.limitations = {"Every record of this release was invented by a program."};
    release.sources = syntheticSources();
    release.assets =
        syntheticRecords(options.records, options.routePoints, release.sources, random);
    return release;
}

/// The text without filling, refused where it is longer than a release may be.
std::size_t unfilledBytes(const OpenMapRelease& release, std::size_t limit) {
    const std::size_t bytes = encode(release).size();
    if (bytes > limit) {
        refuse("these records and route points take " + std::to_string(bytes) +
               " bytes, more than " + std::to_string(limit));
    }
    return bytes;
}

/// A few short facts for each record, as far as the largest file has room for them.
void addUsualFacts(OpenMapRelease& release, RandomSequence& random) {
    std::size_t bytes = unfilledBytes(release, OpenMapRelease::maximumFileSize);
    for (OpenMapRelease::Asset& asset : release.assets) {
        const std::size_t count = 3 + random.below(7);
        for (std::size_t place = 0; place < count; ++place) {
            SyntheticFact drawn = syntheticFact(random);
            OpenMapRelease::Fact fact{
                std::move(drawn.label), std::move(drawn.value), asset.sourceID, asset.asOf};
            bytes += encode(fact).size() + 1;
            if (bytes > OpenMapRelease::maximumFileSize) {
                return;
            }
            asset.facts.push_back(std::move(fact));
        }
    }
}

/// Adds facts to the records in turn until the JSON text is a given length.
class Filling {
  public:
    Filling(OpenMapRelease& release, RandomSequence& random)
        : m_release(release), m_random(random) {}

    void fillTo(std::size_t bytes) {
        m_left = bytes - unfilledBytes(m_release, bytes);
        addShortFactsInTurn();
        addRemarksInTurn();
        padTheRest();
    }

  private:
    /// Short facts first, as long as every record can have one more and half of its share is left
    /// for remarks.
    void addShortFactsInTurn() {
        constexpr std::size_t usualFacts = 12;
        constexpr std::size_t ampleFactBytes = 240;
        for (std::size_t round = 0; round < usualFacts; ++round) {
            if (m_left < ampleFactBytes * m_release.assets.size()) {
                return;
            }
            for (OpenMapRelease::Asset& asset : m_release.assets) {
                SyntheticFact fact = syntheticFact(m_random);
                add(asset,
                    {std::move(fact.label), std::move(fact.value), asset.sourceID, asset.asOf});
            }
        }
    }

    /// Remarks of about equal length, longer ones the more is left to fill.
    void addRemarksInTurn() {
        const std::size_t share = m_left / m_release.assets.size();
        const std::size_t length = std::clamp<std::size_t>(share / 8, 60, maximumFactValueLength);
        for (std::size_t round = 0; round < maximumFacts; ++round) {
            for (OpenMapRelease::Asset& asset : m_release.assets) {
                if (asset.facts.size() < maximumFacts && !addRemark(asset, length)) {
                    return;
                }
            }
        }
    }

    /// Whether there was room for one more fact.
    bool addRemark(OpenMapRelease::Asset& asset, std::size_t characters) {
        OpenMapRelease::Fact fact{"Remark", "", asset.sourceID, asset.asOf};
        const std::size_t bare = encode(fact).size() + separator(asset);
        if (m_left <= bare) {
            return false;
        }
        fact.value = syntheticRemark(characters, m_random);
        if (encode(fact).size() + separator(asset) > m_left) {
            fact.value = syntheticPadding(std::min(m_left - bare, maximumFactValueLength));
            fact.value.front() = 'R';
        }
        add(asset, std::move(fact));
        return true;
    }

    void add(OpenMapRelease::Asset& asset, OpenMapRelease::Fact fact) {
        m_left -= encode(fact).size() + separator(asset);
        asset.facts.push_back(std::move(fact));
    }

    /// The comma between two facts.
    static std::size_t separator(const OpenMapRelease::Asset& asset) {
        return asset.facts.empty() ? 0 : 1;
    }

    /// What is too little for a fact goes to the end of values that have room, or of the
    /// limitation.
    void padTheRest() {
        for (OpenMapRelease::Asset& asset : m_release.assets) {
            for (OpenMapRelease::Fact& fact : asset.facts) {
                // Bytes bound characters from above, so this never exceeds the limit.
                const std::size_t used = std::min(fact.value.size(), maximumFactValueLength);
                const std::size_t padding = std::min(maximumFactValueLength - used, m_left);
                fact.value += syntheticPadding(padding);
                m_left -= padding;
                if (m_left == 0) {
                    return;
                }
            }
        }
        constexpr std::size_t longestPaddedLimitation = 1'000;
        if (m_left > longestPaddedLimitation) {
            refuse("these records cannot be filled so far, even with 50 facts of 10000 characters "
                   "each: " +
                   std::to_string(m_left) + " bytes are left over");
        }
        m_release.limitations.back() += syntheticPadding(m_left);
    }

    OpenMapRelease& m_release;
    RandomSequence& m_random;
    std::size_t m_left = 0;
};

} // namespace

OpenMapRelease synthesize(const SynthesisOptions& options) {
    refuseImpossibleNumbers(options);
    RandomSequence random(options.seed);
    OpenMapRelease release = unfilledRelease(options, random);
    if (options.bytes == 0) {
        addUsualFacts(release, random);
    } else {
        Filling(release, random).fillTo(options.bytes);
    }
    return release;
}

std::string synthesizeFile(const SynthesisOptions& options) {
    return encode(synthesize(options));
}

} // namespace vasker
