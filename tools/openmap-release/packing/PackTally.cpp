#include "tools/openmap-release/packing/PackTally.h"

#include "tools/openmap-release/packing/tables/Cells.h"

#include <algorithm>
#include <tuple>

namespace vasker {
namespace {

constexpr std::size_t fewIds = 40;

std::string_view nameOf(PackStep step) {
    switch (step) {
    case PackStep::taken:
        return "taken";
    case PackStep::joined:
        return "joined";
    case PackStep::dropped:
        return "dropped";
    case PackStep::corrected:
        return "corrected";
    case PackStep::noted:
        return "noted";
    }
    return "";
}

std::size_t placeOf(TableRole table) {
    return static_cast<std::size_t>(&traitsOf(table) - tableRoles().data());
}

void pad(std::string& text, std::size_t width) {
    text.resize(std::max(text.size() + 1, width), ' ');
}

} // namespace

void PackTally::add(TableRole table, PackStep step, std::string_view things, std::string id) {
    Entry& counted = entry(table, step, things);
    ++counted.count;
    counted.ids.push_back(std::move(id));
}

void PackTally::add(TableRole table, PackStep step, std::string_view things, std::size_t number) {
    if (number > 0) {
        entry(table, step, things).count += number;
    }
}

std::string PackTally::report() const {
    std::vector<const Entry*> sorted;
    for (const Entry& counted : m_entries) {
        sorted.push_back(&counted);
    }
    std::ranges::stable_sort(sorted, {}, [](const Entry* counted) {
        return std::tuple(counted->step, placeOf(counted->table));
    });
    std::string text;
    for (const Entry* counted : sorted) {
        std::string line(nameOf(counted->step));
        const std::string number = grouped(counted->count);
        pad(line, std::max<std::size_t>(17 - number.size(), 10));
        line += number + "  " + std::string(traitsOf(counted->table).key);
        pad(line, 37);
        line += counted->things;
        if (counted->ids.size() == counted->count && counted->count <= fewIds) {
            std::string_view separator = ": ";
            for (const std::string& id : counted->ids) {
                line += std::string(separator) + id;
                separator = ", ";
            }
        }
        text += line + "\n";
    }
    return text;
}

std::string PackTally::summary(TableRole table) const {
    std::string text;
    for (const Entry& counted : m_entries) {
        if (counted.table == table) {
            text += (text.empty() ? "Counted in packing: " : "; ") + counted.things + ", " +
                    std::string(nameOf(counted.step)) + ": " + grouped(counted.count);
        }
    }
    return text.empty() ? text : text + ".";
}

std::size_t
PackTally::count(TableRole table, PackStep step, std::string_view things) const noexcept {
    const auto found = std::ranges::find_if(m_entries, [&](const Entry& counted) {
        return counted.table == table && counted.step == step && counted.things == things;
    });
    return found == m_entries.end() ? 0 : found->count;
}

PackTally::Entry& PackTally::entry(TableRole table, PackStep step, std::string_view things) {
    const auto found = std::ranges::find_if(m_entries, [&](const Entry& counted) {
        return counted.table == table && counted.step == step && counted.things == things;
    });
    if (found != m_entries.end()) {
        return *found;
    }
    return m_entries.emplace_back(Entry{table, step, std::string(things), 0, {}});
}

} // namespace vasker
