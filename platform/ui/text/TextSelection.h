#pragma once
// What is selected of a text, and how keys change that.

#include <QString>

#include <algorithm>
#include <optional>

class QKeyEvent;

namespace vasker {

/// Positions are code units of the text, between characters. Equal ones: nothing is selected.
struct TextSelection {
    qsizetype anchor = 0; ///< where it began
    qsizetype cursor = 0; ///< the end that moves

    [[nodiscard]] qsizetype from() const noexcept { return std::min(anchor, cursor); }
    [[nodiscard]] qsizetype to() const noexcept { return std::max(anchor, cursor); }
    [[nodiscard]] QString of(const QString& text) const {
        return text.sliced(from(), to() - from());
    }

    /// The word, or the gap between two, at `position` of `text`.
    [[nodiscard]] static TextSelection wordAt(const QString& text, qsizetype position);
    /// After `key` in `text`: all of it, or more or less by a character, a word, a paragraph, or to
    /// its start or end. Nothing for a key that does none of that.
    [[nodiscard]] std::optional<TextSelection> after(const QKeyEvent& key,
                                                     const QString& text) const;

    friend bool operator==(const TextSelection&, const TextSelection&) = default;
};

} // namespace vasker
