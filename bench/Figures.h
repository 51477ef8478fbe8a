#pragma once
// What a bench has measured: printed for people, and collected for bench/run.

#include <string>
#include <vector>

namespace vasker {

/// Whether the bench is only to prove that it works: little data, few repetitions. So where the
/// environment has VASKER_BENCH_SMALL.
[[nodiscard]] bool isSmallBench();

/// The value that `fraction` of `values` are not above; `values` is not empty.
[[nodiscard]] double percentile(std::vector<double> values, double fraction);

/// The figures of one case, such as a release or a text.
class Figures {
  public:
    /// Prints its name.
    explicit Figures(std::string subject);

    /// One number. Printed, and appended as a line of JSON to the file that VASKER_BENCH_FIGURES
    /// names, if it names one.
    void add(const std::string& figure, double value, const std::string& unit) const;
    /// The median, the 95th percentile and the longest of `milliseconds`.
    void addTimes(const std::string& figure, const std::vector<double>& milliseconds) const;

  private:
    void write(const std::string& figure, double value, const std::string& unit) const;

    std::string m_subject;
};

} // namespace vasker
