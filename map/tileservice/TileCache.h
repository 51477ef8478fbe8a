#pragma once
// Tiles of services kept on disk, in one SQLite file that does not grow beyond its bound: what was
// not looked at longest goes first. A folder that cannot be made, read or written, a full disk or a
// damaged file cost the cache, nothing else. One thread.

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <memory>
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
    ~TileCache();
    TileCache(const TileCache&) = delete;
    TileCache& operator=(const TileCache&) = delete;

    /// What is kept for `address`, fresh or not.
    [[nodiscard]] std::optional<Entry> find(const QString& address, const QDateTime& now);
    void keep(const QString& address, const Entry& entry, const QDateTime& now);
    /// The service says that the tile has not changed.
    void refresh(const QString& address, const QDateTime& freshUntil);
    void drop(const QString& address);

  private:
    class Database;
    Database* database();
    template <typename Use>
    void use(Use&& use);

    QString m_folder;
    qint64 m_mostBytes;
    bool m_isOpened = false;
    std::unique_ptr<Database> m_database; ///< null: no cache
};

} // namespace vasker
