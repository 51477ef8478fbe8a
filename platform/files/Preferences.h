#pragma once
// The per-user settings: texts under keys, kept in one small file that survives the application.
// One object serves all windows; a change, whoever makes it, reaches every window through
// changed().
//
// Lines that are not understood, and keys that nobody here knows, stay as they are when another
// value is written; so do values that another program writes at the same time.

#include "platform/files/PreferenceFile.h"
#include "platform/files/PreferenceWriter.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>

#include <optional>

namespace vasker {

class Preferences : public QObject {
    Q_OBJECT

  public:
    /// The settings in the file at `path`, which need not exist.
    explicit Preferences(QString path, QObject* parent = nullptr);
    /// "vasker-open-map/preferences" in the user's XDG configuration folder.
    [[nodiscard]] static QString userPath();

    /// The text stored under `key`, as it stands in the file, or nothing.
    [[nodiscard]] std::optional<QString> text(const QString& key) const;
    /// Stores `value` under `key`. It counts at once and is written meanwhile, for which the end of
    /// the program waits (finishBackgroundWork): other programs see the old file or the new one,
    /// never a part. Where the file cannot be written, the value counts until this object ends or
    /// another program writes. Neither text may hold a line break, nor the key an equals sign.
    void setText(const QString& key, const QString& value);

  Q_SIGNALS:
    void changed();

  private:
    void reload();
    void forgetWritten(const PreferenceFile::Values& written);
    /// From now on these count.
    void hold(const PreferenceFile::Lines& stored, const PreferenceFile::Values& chosen);
    [[nodiscard]] PreferenceFile::Lines stored() const;
    void watch();

    PreferenceFile m_file;
    PreferenceWriter m_writer;
    PreferenceFile::Lines m_stored;  ///< by the file, when it was read last
    PreferenceFile::Values m_chosen; ///< what is being written, or could not be
    PreferenceFile::Lines m_lines;   ///< that count: m_stored with m_chosen
    QFileSystemWatcher m_watcher;
};

} // namespace vasker
