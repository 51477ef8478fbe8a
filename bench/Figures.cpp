#include "bench/Figures.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <utility>

namespace vasker {

bool isSmallBench() {
    return std::getenv("VASKER_BENCH_SMALL") != nullptr;
}

double percentile(std::vector<double> values, double fraction) {
    std::sort(values.begin(), values.end());
    return values[static_cast<std::size_t>(fraction * static_cast<double>(values.size() - 1))];
}

Figures::Figures(std::string subject) : m_subject(std::move(subject)) {
    std::printf("%s\n", m_subject.c_str());
}

void Figures::add(const std::string& figure, double value, const std::string& unit) const {
    std::printf("  %-32s %8.2f %s\n", figure.c_str(), value, unit.c_str());
    std::fflush(stdout);
    write(figure, value, unit);
}

void Figures::addTimes(const std::string& figure, const std::vector<double>& milliseconds) const {
    const double median = percentile(milliseconds, 0.5);
    const double most = percentile(milliseconds, 0.95);
    const double longest = percentile(milliseconds, 1);
    std::printf("  %-32s %8.2f ms   95th percentile %7.2f ms   longest %7.2f ms\n",
                figure.c_str(),
                median,
                most,
                longest);
    std::fflush(stdout);
    write(figure + ", median", median, "ms");
    write(figure + ", 95th percentile", most, "ms");
    write(figure + ", longest", longest, "ms");
}

/// The names hold nothing that JSON would have to escape.
void Figures::write(const std::string& figure, double value, const std::string& unit) const {
    if (const char* const path = std::getenv("VASKER_BENCH_FIGURES")) {
        std::ofstream(path, std::ios::app)
            << R"({"subject": ")" << m_subject << R"(", "figure": ")" << figure << R"(", "value": )"
            << value << R"(, "unit": ")" << unit << "\"}\n";
    }
}

} // namespace vasker
