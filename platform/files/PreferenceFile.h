#pragma once
// The file of the settings: one "key=value" a line; a later line for the same key counts. Several
// programs may change it at once.

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

#include <optional>

namespace vasker {

class PreferenceFile {
  public:
    using Lines = QList<QByteArray>;
    using Values = QMap<QString, QString>; ///< by their keys

    explicit PreferenceFile(QString path) : m_path(std::move(path)) {}

    [[nodiscard]] const QString& path() const noexcept { return m_path; }
    /// What the file holds; nothing where there is no file, where it cannot be read, is no regular
    /// file or longer than a megabyte.
    [[nodiscard]] std::optional<Lines> read() const;
    /// Sets these values and leaves other lines as they are: the file is read, changed and replaced
    /// under a lock, so that no other program's change is lost. Returns what it holds now; nothing
    /// where it stays as it was: where it cannot be read as above or written, or where another
    /// program holds the lock for a second. Waits for the disk.
    [[nodiscard]] std::optional<Lines> set(const Values& values) const;

    /// The last value of `key`.
    [[nodiscard]] static std::optional<QString> value(const Lines& lines, const QString& key);
    /// `lines` with one line for each of the values, the last.
    [[nodiscard]] static Lines with(Lines lines, const Values& values);

  private:
    QString m_path;
};

} // namespace vasker
