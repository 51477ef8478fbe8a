#pragma once
// What changed from one release to the next, by source: records that came, went or moved, and
// values that changed.

#include "data/OpenMapRelease.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace vasker {

struct RecordName {
    std::string id;
    std::string name;
};

struct MovedRecord {
    RecordName record;
    OpenMapRelease::Position from{};
    OpenMapRelease::Position to{};
    double metres = 0; ///< along a great circle
};

/// A field of a record, or a fact, that says something else now.
struct ChangedValue {
    RecordName record;
    std::string field; ///< "name", "category", ..., or the label of a fact
    enum class Of { record, fact } of;
    std::optional<std::string> before; ///< nothing: there was no such value
    std::optional<std::string> after;  ///< nothing: there is none any more
};

/// The records that one source reports, by its short name; a record that changed its source counts
/// for the new one.
struct SourceComparison {
    std::string source;
    std::size_t recordsBefore = 0;
    std::size_t recordsAfter = 0;
    std::vector<RecordName> added;
    std::vector<RecordName> gone;
    std::vector<MovedRecord> moved;
    std::vector<ChangedValue> changed;
};

struct ReleaseComparison {
    std::string idBefore;
    std::string idAfter;
    std::string generatedBefore;
    std::string generatedAfter;
    std::size_t recordsBefore = 0;
    std::size_t recordsAfter = 0;
    std::vector<std::string> limitationsAdded;
    std::vector<std::string> limitationsGone;
    std::vector<SourceComparison> sources; ///< in the order of the newer release, gone ones last
};

/// Records are the same by id. Facts are the same by label, and several with one label by their
/// order; their value, their period and their source's short name are compared. Routes are compared
/// whole. The ids of sources are not compared: they are digests of tables.
[[nodiscard]] ReleaseComparison compare(const OpenMapRelease& before, const OpenMapRelease& after);

} // namespace vasker
