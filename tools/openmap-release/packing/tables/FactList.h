#pragma once
// The labels and values that a row reports, in the order in which they are shown.

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vasker {

/// A label and a value that a row reports; its source and period follow from the table.
struct ReportedFact {
    std::string label;
    std::string value;
};

/// The facts of a row in the order in which they are added; what says nothing is left out.
class FactList {
  public:
    void add(std::string_view label, std::optional<std::string> value) {
        if (value) {
            m_facts.push_back({std::string(label), std::move(*value)});
        }
    }
    [[nodiscard]] std::vector<ReportedFact> take() && { return std::move(m_facts); }

  private:
    std::vector<ReportedFact> m_facts;
};

} // namespace vasker
