#include "tools/openmap-release/comparison/ComparisonText.h"

#include "tools/openmap-release/PrintedText.h"
#include "tools/openmap-release/packing/tables/Cells.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <map>
#include <string_view>
#include <utility>

namespace vasker {
namespace {

constexpr std::size_t fewRecords = 6;
constexpr std::size_t fewTransitions = 4;
constexpr std::size_t fewFacts = 20;
constexpr std::size_t longestValue = 60;

/// Control characters as JSON writes them: two values that differ by one look different.
std::string escaped(std::string_view text) {
    std::string result;
    for (const char byte : text) {
        const auto code = static_cast<unsigned char>(byte);
        if (byte == '\t') {
            result += "\\t";
        } else if (code < 0x20 || code == 0x7F) {
            constexpr std::string_view digits = "0123456789abcdef";
            result += {'\\', 'u', '0', '0', digits[code >> 4U], digits[code & 0xFU]};
        } else {
            result += byte;
        }
    }
    return result;
}

std::string shortened(const std::string& full) {
    const auto begin = std::string_view(full).substr(0, 4 * longestValue);
    return shortenedText(printedText(escaped(begin)), longestValue, "…");
}

std::string quoted(const std::optional<std::string>& value) {
    return value ? "\"" + shortened(*value) + "\"" : "nothing";
}

std::string counted(std::size_t number, const std::string& one, const std::string& several) {
    return grouped(number) + " " + (number == 1 ? one : several);
}

/// "1,500 km", "320 m".
std::string distanceText(double metres) {
    const auto whole = [](double number) {
        return grouped(static_cast<std::size_t>(std::llround(number)));
    };
    return metres < 1000 ? whole(metres) + " m" : whole(metres / 1000) + " km";
}

/// ": A-1 Name, A-2 Name and 7 more".
template <typename Records, typename Describe>
std::string listed(const Records& records, Describe describe) {
    std::string text;
    for (std::size_t place = 0; place < std::min(records.size(), fewRecords); ++place) {
        text += (place == 0 ? ": " : ", ") + describe(records[place]);
    }
    return records.size() > fewRecords
               ? text + " and " + grouped(records.size() - fewRecords) + " more"
               : text;
}

std::string nameOf(const RecordName& record) {
    return printedText(record.id) + " " + shortened(record.name);
}

/// The changes of one field or of the facts with one label.
class FieldChanges {
  public:
    void add(const ChangedValue& change) {
        ++m_changes;
        if (m_records.empty() || m_records.back().id != change.record.id) {
            m_records.push_back(change.record);
        }
        ++m_transitions[{change.before, change.after}];
        m_added += change.before ? 0U : 1U;
        m_gone += change.after ? 0U : 1U;
    }

    [[nodiscard]] std::size_t count() const noexcept { return m_changes; }

    [[nodiscard]] std::string text(const std::string& field) const {
        const std::size_t changed = m_changes - m_added - m_gone;
        std::string line = "  " + field + ": ";
        const auto part = [&](std::size_t number, const char* what) {
            if (number > 0) {
                line += (line.ends_with(": ") ? "" : ", ") + grouped(number) + " " + what;
            }
        };
        part(m_added, "new");
        part(m_gone, "gone");
        part(changed, "changed");
        if (m_records.size() <= fewRecords) {
            line += listed(m_records, nameOf);
        }
        return line + "\n" + commonest();
    }

  private:
    using Transition = std::pair<std::optional<std::string>, std::optional<std::string>>;

    /// The commonest changes from one value to another.
    [[nodiscard]] std::string commonest() const {
        std::vector<std::pair<std::size_t, Transition>> sorted;
        for (const auto& [transition, count] : m_transitions) {
            if (transition.first && transition.second) {
                sorted.emplace_back(count, transition);
            }
        }
        std::ranges::stable_sort(
            sorted, std::ranges::greater(), [](const auto& entry) { return entry.first; });
        std::string text;
        for (std::size_t place = 0; place < std::min(sorted.size(), fewTransitions); ++place) {
            const auto& [count, transition] = sorted[place];
            text += "    " + quoted(transition.first) + " is now " + quoted(transition.second) +
                    (count > 1 ? ", " + grouped(count) + " times" : "") + "\n";
        }
        if (sorted.size() > fewTransitions) {
            text += "    and " +
                    counted(sorted.size() - fewTransitions, "other change", "other changes") + "\n";
        }
        return text;
    }

    std::vector<RecordName> m_records; ///< each once
    std::size_t m_changes = 0;
    std::map<Transition, std::size_t> m_transitions;
    std::size_t m_added = 0;
    std::size_t m_gone = 0;
};

using NamedChanges = std::pair<std::string, FieldChanges>;

/// The changes of `kind` by field or label, the most frequent first.
std::vector<NamedChanges> byField(const std::vector<ChangedValue>& changes, ChangedValue::Of kind) {
    std::map<std::string, FieldChanges> fields;
    for (const ChangedValue& change : changes) {
        if (change.of == kind) {
            fields[change.field].add(change);
        }
    }
    std::vector<NamedChanges> sorted(fields.begin(), fields.end());
    std::ranges::stable_sort(sorted, std::ranges::greater(), [](const NamedChanges& named) {
        return named.second.count();
    });
    return sorted;
}

std::string changesText(const std::vector<ChangedValue>& changes) {
    std::string text;
    for (const auto& [field, changed] : byField(changes, ChangedValue::Of::record)) {
        text += changed.text(field);
    }
    const std::vector<NamedChanges> facts = byField(changes, ChangedValue::Of::fact);
    std::size_t others = 0;
    for (std::size_t place = 0; place < facts.size(); ++place) {
        if (place < fewFacts) {
            text += facts[place].second.text("fact \"" + shortened(facts[place].first) + "\"");
        } else {
            others += facts[place].second.count();
        }
    }
    if (others > 0) {
        text += "  and " + counted(facts.size() - fewFacts, "other fact", "other facts") + ", " +
                counted(others, "change", "changes") + "\n";
    }
    return text;
}

std::string sourceText(const SourceComparison& source) {
    std::string text;
    const auto add = [&text](const char* what, const auto& records, const auto& describe) {
        if (!records.empty()) {
            text += std::string("  ") + what + ": " + counted(records.size(), "record", "records") +
                    listed(records, describe) + "\n";
        }
    };
    std::vector<MovedRecord> farthest = source.moved;
    std::ranges::stable_sort(farthest, std::ranges::greater(), &MovedRecord::metres);
    add("added", source.added, nameOf);
    add("gone", source.gone, nameOf);
    add("moved", farthest, [](const MovedRecord& moved) {
        return nameOf(moved.record) + " by " + distanceText(moved.metres);
    });
    text += changesText(source.changed);
    const std::string head = "\n" + printedText(source.source) + ": " +
                             counted(source.recordsBefore, "record", "records") + " before, " +
                             grouped(source.recordsAfter) + " now\n";
    return head + (text.empty() ? "  nothing changed\n" : text);
}

std::string limitationsText(const std::vector<std::string>& limitations, const char* what) {
    std::string text;
    for (const std::string& limitation : limitations) {
        text += "limitation " + std::string(what) + ": " + printedText(limitation) + "\n";
    }
    return text;
}

using OrderedJson = nlohmann::ordered_json;

OrderedJson json(const RecordName& record) {
    return {{"id", record.id}, {"name", record.name}};
}

OrderedJson json(const std::optional<std::string>& value) {
    return value ? OrderedJson(*value) : OrderedJson();
}

OrderedJson json(const SourceComparison& source) {
    OrderedJson object{{"source", source.source},
                       {"recordsBefore", source.recordsBefore},
                       {"recordsAfter", source.recordsAfter},
                       {"added", OrderedJson::array()},
                       {"gone", OrderedJson::array()},
                       {"moved", OrderedJson::array()},
                       {"changed", OrderedJson::array()}};
    for (const RecordName& record : source.added) {
        object["added"].push_back(json(record));
    }
    for (const RecordName& record : source.gone) {
        object["gone"].push_back(json(record));
    }
    for (const MovedRecord& moved : source.moved) {
        object["moved"].push_back({{"id", moved.record.id},
                                   {"name", moved.record.name},
                                   {"from", {moved.from.longitude, moved.from.latitude}},
                                   {"to", {moved.to.longitude, moved.to.latitude}},
                                   {"metres", moved.metres}});
    }
    for (const ChangedValue& change : source.changed) {
        const bool isFact = change.of == ChangedValue::Of::fact;
        object["changed"].push_back({{"id", change.record.id},
                                     {isFact ? "fact" : "field", change.field},
                                     {"before", json(change.before)},
                                     {"after", json(change.after)}});
    }
    return object;
}

} // namespace

std::string comparisonText(const ReleaseComparison& comparison) {
    std::string text = printedText(comparison.idBefore) + " of " + comparison.generatedBefore +
                       " to " + printedText(comparison.idAfter) + " of " +
                       comparison.generatedAfter + "\n" +
                       counted(comparison.recordsBefore, "record", "records") + " before, " +
                       grouped(comparison.recordsAfter) + " now\n";
    text += limitationsText(comparison.limitationsAdded, "added");
    text += limitationsText(comparison.limitationsGone, "gone");
    for (const SourceComparison& source : comparison.sources) {
        text += sourceText(source);
    }
    return text;
}

std::string comparisonJson(const ReleaseComparison& comparison) {
    OrderedJson object{{"before",
                        {{"release", comparison.idBefore},
                         {"generatedAt", comparison.generatedBefore},
                         {"records", comparison.recordsBefore}}},
                       {"after",
                        {{"release", comparison.idAfter},
                         {"generatedAt", comparison.generatedAfter},
                         {"records", comparison.recordsAfter}}},
                       {"limitationsAdded", comparison.limitationsAdded},
                       {"limitationsGone", comparison.limitationsGone},
                       {"sources", OrderedJson::array()}};
    for (const SourceComparison& source : comparison.sources) {
        object["sources"].push_back(json(source));
    }
    return object.dump(1) + "\n";
}

} // namespace vasker
