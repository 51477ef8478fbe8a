#include "tools/openmap-release/comparison/ReleaseComparison.h"

#include "tools/openmap-release/GreatCircle.h"
#include "tools/openmap-release/RoutesText.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace vasker {
namespace {

/// Of the mean sphere.
constexpr double earthRadiusMetres = 6'371'008.8;

std::string sourceName(const OpenMapRelease& release, std::string_view id) {
    return std::string(release.source(id)->shortName());
}

/// A fact's value with its period and source: what a reader sees of it.
std::string factText(const OpenMapRelease& release, const OpenMapRelease::Fact& fact) {
    return fact.value + " (" + fact.asOf + ", " + sourceName(release, fact.sourceID) + ")";
}

/// The facts of a record by label and place among the facts of that label.
using FactTexts = std::map<std::pair<std::string_view, std::size_t>, std::string>;

FactTexts factTexts(const OpenMapRelease& release, const OpenMapRelease::Asset& record) {
    FactTexts texts;
    std::map<std::string_view, std::size_t> counts;
    for (const OpenMapRelease::Fact& fact : record.facts) {
        texts.emplace(std::pair(std::string_view(fact.label), counts[fact.label]++),
                      factText(release, fact));
    }
    return texts;
}

/// The texts of `these` that `others` lacks.
std::vector<std::string> missingFrom(const std::vector<std::string>& others,
                                     const std::vector<std::string>& these) {
    std::vector<std::string> missing;
    std::ranges::copy_if(these, std::back_inserter(missing), [&](const std::string& text) {
        return std::ranges::find(others, text) == others.end();
    });
    return missing;
}

class Comparison {
  public:
    Comparison(const OpenMapRelease& before, const OpenMapRelease& after)
        : m_before(before), m_after(after) {}

    ReleaseComparison run() {
        ReleaseComparison result{m_before.releaseID,
                                 m_after.releaseID,
                                 m_before.generatedAt,
                                 m_after.generatedAt,
                                 m_before.assets.size(),
                                 m_after.assets.size(),
                                 missingFrom(m_before.limitations, m_after.limitations),
                                 missingFrom(m_after.limitations, m_before.limitations),
                                 {}};
        std::unordered_map<std::string_view, const OpenMapRelease::Asset*> former;
        for (const OpenMapRelease::Asset& record : m_before.assets) {
            former.emplace(record.id, &record);
        }
        for (const OpenMapRelease::Asset& record : m_after.assets) {
            SourceComparison& source = of(sourceName(m_after, record.sourceID));
            ++source.recordsAfter;
            const auto found = former.find(record.id);
            if (found == former.end()) {
                source.added.push_back({record.id, record.name});
            } else {
                compareRecords(*found->second, record, source);
                former.erase(found);
            }
        }
        for (const OpenMapRelease::Asset& record : m_before.assets) {
            SourceComparison& source = of(sourceName(m_before, record.sourceID));
            ++source.recordsBefore;
            if (former.contains(record.id)) {
                source.gone.push_back({record.id, record.name});
            }
        }
        result.sources = std::move(m_sources);
        return result;
    }

  private:
    SourceComparison& of(const std::string& name) {
        const auto found = std::ranges::find(m_sources, name, &SourceComparison::source);
        if (found != m_sources.end()) {
            return *found;
        }
        m_sources.emplace_back().source = name;
        return m_sources.back();
    }

    void compareRecords(const OpenMapRelease::Asset& before,
                        const OpenMapRelease::Asset& after,
                        SourceComparison& source) const {
        const RecordName record{after.id, after.name};
        const OpenMapRelease::Position from{before.longitude, before.latitude};
        const OpenMapRelease::Position to{after.longitude, after.latitude};
        if (from != to) {
            source.moved.push_back({record, from, to, earthRadiusMetres * angleBetween(from, to)});
        }
        const auto compareField = [&](std::string field,
                                      const std::optional<std::string>& one,
                                      const std::optional<std::string>& other) {
            if (one != other) {
                source.changed.push_back(
                    {record, std::move(field), ChangedValue::Of::record, one, other});
            }
        };
        compareField("name", before.name, after.name);
        compareField("category", before.kind, after.kind);
        compareField("jurisdiction", before.jurisdiction, after.jurisdiction);
        compareField("status", before.status, after.status);
        compareField("period", before.asOf, after.asOf);
        compareField("company", before.reportedCompany, after.reportedCompany);
        compareField(
            "source", sourceName(m_before, before.sourceID), sourceName(m_after, after.sourceID));
        if (before.routes != after.routes) {
            source.changed.push_back({record,
                                      "routes",
                                      ChangedValue::Of::record,
                                      routesText(before),
                                      routesText(after)});
        }
        compareFacts(before, after, source);
    }

    void compareFacts(const OpenMapRelease::Asset& before,
                      const OpenMapRelease::Asset& after,
                      SourceComparison& source) const {
        const RecordName record{after.id, after.name};
        FactTexts former = factTexts(m_before, before);
        for (const auto& [key, text] : factTexts(m_after, after)) {
            const auto found = former.find(key);
            std::optional<std::string> old;
            if (found != former.end()) {
                old = std::move(found->second);
                former.erase(found);
            }
            if (old != text) {
                source.changed.push_back(
                    {record, std::string(key.first), ChangedValue::Of::fact, old, text});
            }
        }
        for (const auto& [key, text] : former) {
            source.changed.push_back(
                {record, std::string(key.first), ChangedValue::Of::fact, text, std::nullopt});
        }
    }

    const OpenMapRelease& m_before;
    const OpenMapRelease& m_after;
    std::vector<SourceComparison> m_sources;
};

} // namespace

ReleaseComparison compare(const OpenMapRelease& before, const OpenMapRelease& after) {
    return Comparison(before, after).run();
}

} // namespace vasker
