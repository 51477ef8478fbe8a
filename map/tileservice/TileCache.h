#pragma once
// Tiles of services kept on disk, in one SQLite file that does not grow beyond its bound: the tile
// that was in view longest ago goes first. A folder that cannot be made, read or written, a full
// disk or a damaged file cost the cache, nothing else; a file of another layout, or far above the
// bound, is replaced at once. One thread.

#include "map/tiles/SqliteDatabase.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <optional>

namespace vasker {

class TileCache {
  public:
    struct Entry {
        QByteArray bytes;
        QDateTime freshUntil;
        QByteArray entityTag;    ///< as the service sent them, to ask whether
        QByteArray lastModified; ///< the tile has changed; may be empty
    };

    /// Opens nothing before it is first used. `folder` is made where it is missing; empty: keeps
    /// nothing.
    TileCache(QString folder, qint64 mostBytes);
    TileCache(const TileCache&) = delete;
    TileCache& operator=(const TileCache&) = delete;

    /// What is kept for `address`, fresh or not; not fresh where it was kept or seen in the future,
    /// while the clock was wrong.
    [[nodiscard]] std::optional<Entry> find(const QString& address, const QDateTime& now);
    void keep(const QString& address, const Entry& entry, const QDateTime& now);
    /// The service says that the tile has not changed.
    void refresh(const QString& address, const QDateTime& freshUntil);
    void drop(const QString& address);

  private:
    enum class Opened : std::uint8_t { ours, foreign, failed };

    [[nodiscard]] QString path() const;
    /// Whether the file is open and of our layout.
    bool open();
    /// Opens the file and begins the budget of a call.
    bool begin();
    [[nodiscard]] bool mayBeOurs() const;
    void removeFiles() const;
    /// A damaged file is foreign.
    Opened openFile();
    bool makeRoom(qint64 bytes);
    /// After a damage, or a search without end, the file is removed, so that the next use begins
    /// anew.
    void checkDamage();

    QString m_folder;
    qint64 m_mostBytes;
    qint64 m_pageBytes = 0;
    bool m_isTried = false;
    bool m_isOpen = false;
    bool m_isWritable = false;
    SqliteDatabase m_database;
};

} // namespace vasker
