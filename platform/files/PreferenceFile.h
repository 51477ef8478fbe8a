#pragma once
// The file of the settings: one "key=value" a line; a later line for the same key counts. Several
// programs may change it at once.

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace vasker {

class PreferenceFile {
  public:
    using Lines = QList<QByteArray>;

    explicit PreferenceFile(QString path) : m_path(std::move(path)) {}

    [[nodiscard]] const QString& path() const noexcept { return m_path; }
    /// What the file holds; nothing where there is no file, where it cannot be read, is no regular
    /// file or longer than a megabyte.
    [[nodiscard]] std::optional<Lines> read() const;
    /// Sets one value and leaves other lines as they are: the file is read, changed and replaced
    /// under a lock, so that no other program's change is lost. Where there is no file, it is made
    /// of `lines`. Returns what it holds now; nothing where it stays as it was: where it cannot be
    /// read as above or written, or where another program holds the lock for a quarter of a second.
    [[nodiscard]] std::optional<Lines>
    set(const QString& key, const QString& value, const Lines& lines) const;

    /// The last value of `key`.
    [[nodiscard]] static std::optional<QString> value(const Lines& lines, const QString& key);
    /// `lines` with one line for `key`, the last.
    [[nodiscard]] static Lines with(Lines lines, const QString& key, const QString& value);

  private:
    QString m_path;
};

} // namespace vasker
