#include "map/tileservice/TileCache.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <string_view>

namespace vasker {

namespace {

constexpr qint64 layoutVersion = 1;
constexpr const char* layout = "CREATE TABLE tile(address BLOB PRIMARY KEY,"
                               " fresh_until INTEGER NOT NULL, looked_at INTEGER NOT NULL,"
                               " entity_tag BLOB, last_modified BLOB, bytes BLOB NOT NULL);"
                               "CREATE INDEX tile_looked_at ON tile(looked_at);"
                               "PRAGMA user_version=1;";
/// When a tile was in view last is not written more often than this: a look is no reason to write.
constexpr qint64 secondsBetweenLooks = 86'400;
constexpr int longestValue = 8'000'000;
/// Lookups and writes of one row take some hundreds of steps.
constexpr int thousandSteps = 500;
/// Room for one tile is made of so many others at the most.
constexpr int mostDropped = 16;

std::string_view viewOf(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

QByteArray bytesOf(std::string_view bytes) {
    return {bytes.data(), static_cast<qsizetype>(bytes.size())};
}

} // namespace

TileCache::TileCache(QString folder, qint64 mostBytes)
    : m_folder(std::move(folder)), m_mostBytes(mostBytes) {}

QString TileCache::path() const {
    return QDir(m_folder).filePath(QStringLiteral("tiles.sqlite"));
}

bool TileCache::open() {
    if (m_isTried || m_folder.isEmpty()) {
        return m_isOpen;
    }
    m_isTried = true;
    if (!QDir().mkpath(m_folder)) {
        return false;
    }
    // Far above the bound it would take long to empty, tile by tile.
    if (QFileInfo(path()).size() > 2 * m_mostBytes) {
        QFile::remove(path());
    }
    Opened opened = openFile();
    if (opened == Opened::foreign && QFile::remove(path())) {
        opened = openFile();
    }
    m_isOpen = opened == Opened::ours;
    return m_isOpen;
}

TileCache::Opened TileCache::openFile() {
    if (!m_database.open(path().toStdString(), SqliteDatabase::Mode::readWrite, longestValue)) {
        return Opened::failed;
    }
    m_database.setBudget(thousandSteps);
    m_isWritable = m_database.isWritable();
    // A lost tile is no loss: nothing waits for the disk. The journal keeps the file whole when the
    // program ends at any time.
    m_database.execute("PRAGMA synchronous=OFF; PRAGMA journal_mode=TRUNCATE;"
                       "PRAGMA cell_size_check=ON; PRAGMA busy_timeout=100;");
    const bool isEmpty = m_database.number("SELECT count(*) FROM sqlite_schema") == 0;
    if (isEmpty && m_isWritable) {
        m_database.execute("BEGIN IMMEDIATE") && m_database.execute(layout) &&
            m_database.execute("COMMIT");
        m_database.execute("ROLLBACK"); // where that failed
    }
    const bool isOurs =
        m_database.number("PRAGMA user_version") == layoutVersion &&
        m_database.number(
            "SELECT count(*) FROM sqlite_schema WHERE name='tile' AND type='table'") == 1 &&
        m_database.number("SELECT count(*) FROM sqlite_schema WHERE type IN ('view', 'trigger')") ==
            0;
    if (!isOurs) {
        const bool isForeign = m_database.state() == SqliteDatabase::State::damaged ||
                               (m_database.state() == SqliteDatabase::State::fine && !isEmpty);
        m_database.close();
        return isForeign ? Opened::foreign : Opened::failed;
    }
    // What was in view is nobody else's business.
    QFile::setPermissions(path(), QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    m_database.execute("PRAGMA busy_timeout=0");
    m_pageBytes = m_database.number("PRAGMA page_size");
    return m_pageBytes > 0 ? Opened::ours : Opened::failed;
}

void TileCache::checkDamage() {
    if (m_database.state() == SqliteDatabase::State::damaged) {
        m_database.close();
        QFile::remove(path());
        m_isOpen = false;
        m_isTried = false;
    }
}

std::optional<TileCache::Entry> TileCache::find(const QString& address, const QDateTime& now) {
    if (!open()) {
        return std::nullopt;
    }
    const QByteArray key = address.toUtf8();
    SqliteStatement query = m_database.prepare(
        "SELECT bytes, fresh_until, entity_tag, last_modified, looked_at FROM tile"
        " WHERE address=?");
    query.bindBytes(1, viewOf(key));
    std::optional<Entry> found;
    if (m_database.run(query)) {
        found = {.bytes = bytesOf(query.bytes(0)),
                 .freshUntil = QDateTime::fromSecsSinceEpoch(query.number(1), Qt::UTC),
                 .entityTag = bytesOf(query.bytes(2)),
                 .lastModified = bytesOf(query.bytes(3))};
        const qint64 seconds = now.toSecsSinceEpoch();
        if (m_isWritable && seconds - query.number(4) > secondsBetweenLooks) {
            SqliteStatement update =
                m_database.prepare("UPDATE tile SET looked_at=? WHERE address=?");
            update.bind(1, seconds).bindBytes(2, viewOf(key));
            (void)m_database.run(update);
        }
    }
    query = {};
    checkDamage();
    return found;
}

bool TileCache::makeRoom(qint64 bytes) {
    const auto isTooMuch = [&] {
        const qint64 pages =
            m_database.number("PRAGMA page_count") - m_database.number("PRAGMA freelist_count");
        return pages * m_pageBytes + bytes > m_mostBytes;
    };
    for (int dropped = 0; isTooMuch(); ++dropped) {
        if (dropped == mostDropped ||
            !m_database.execute("DELETE FROM tile WHERE rowid IN"
                                " (SELECT rowid FROM tile ORDER BY looked_at LIMIT 1)") ||
            m_database.number("SELECT changes()") < 1) {
            return false;
        }
    }
    return true;
}

void TileCache::keep(const QString& address, const Entry& entry, const QDateTime& now) {
    if (!open() || !m_isWritable) {
        return;
    }
    if (makeRoom(entry.bytes.size() + 2 * m_pageBytes)) {
        const QByteArray key = address.toUtf8();
        SqliteStatement insert = m_database.prepare(
            "INSERT OR REPLACE INTO tile (address, fresh_until, looked_at, entity_tag,"
            " last_modified, bytes) VALUES (?, ?, ?, ?, ?, ?)");
        insert.bindBytes(1, viewOf(key))
            .bind(2, entry.freshUntil.toSecsSinceEpoch())
            .bind(3, now.toSecsSinceEpoch())
            .bindBytes(4, viewOf(entry.entityTag))
            .bindBytes(5, viewOf(entry.lastModified))
            .bindBytes(6, viewOf(entry.bytes));
        (void)m_database.run(insert);
    }
    checkDamage();
}

void TileCache::refresh(const QString& address, const QDateTime& freshUntil) {
    if (open()) {
        const QByteArray key = address.toUtf8();
        SqliteStatement update =
            m_database.prepare("UPDATE tile SET fresh_until=? WHERE address=?");
        update.bind(1, freshUntil.toSecsSinceEpoch()).bindBytes(2, viewOf(key));
        (void)m_database.run(update);
        update = {};
        checkDamage();
    }
}

void TileCache::drop(const QString& address) {
    if (open()) {
        const QByteArray key = address.toUtf8();
        SqliteStatement erase = m_database.prepare("DELETE FROM tile WHERE address=?");
        erase.bindBytes(1, viewOf(key));
        (void)m_database.run(erase);
        erase = {};
        checkDamage();
    }
}

} // namespace vasker
