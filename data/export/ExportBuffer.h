#pragma once
// Text on its way into an exported file: handed on in pieces, never longer than a limit.

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace vasker {

/// Takes the next piece of a file; false stops the export.
using ExportSink = std::function<bool(std::string_view)>;

enum class ExportOutcome {
    written,  ///< the whole file went to the sink
    stopped,  ///< the sink did not want more
    tooLarge, ///< the file would exceed maximumExportBytes
};

/// A release of 15 MB makes some 25 MB; only repeated source texts of megabytes make more.
inline constexpr std::size_t maximumExportBytes = 512U << 20U;

class ExportBuffer {
  public:
    /// `sink` lives as long.
    explicit ExportBuffer(const ExportSink& sink) : m_sink(sink) {}

    /// The text to add to; shorter than a piece after each advance().
    [[nodiscard]] std::string& text() noexcept { return m_text; }

    /// Hands on a piece where one is full. False: the export ends here.
    [[nodiscard]] bool advance() { return m_text.size() < pieceSize || flush(); }
    /// Hands on what is left.
    [[nodiscard]] ExportOutcome finish() {
        if (m_outcome == ExportOutcome::written) {
            static_cast<void>(flush());
        }
        return m_outcome;
    }

  private:
    static constexpr std::size_t pieceSize = 256U << 10U;

    bool flush() {
        m_size += m_text.size();
        if (m_size > maximumExportBytes) {
            m_outcome = ExportOutcome::tooLarge;
        } else if (!m_sink(m_text)) {
            m_outcome = ExportOutcome::stopped;
        }
        m_text.clear();
        return m_outcome == ExportOutcome::written;
    }

    const ExportSink& m_sink;
    std::string m_text;
    std::size_t m_size = 0;
    ExportOutcome m_outcome = ExportOutcome::written;
};

} // namespace vasker
