#include "map/tileservice/TileCache.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTimeZone>

#include <chrono>
#include <cstdlib>
#include <string_view>

namespace vasker {

namespace {

/// As SQLite keeps it: a file with anything else is another's.
constexpr const char* layout = "CREATE TABLE tile(address BLOB PRIMARY KEY,"
                               " fresh_until INTEGER NOT NULL, looked_at INTEGER NOT NULL,"
                               " entity_tag BLOB, last_modified BLOB, bytes BLOB NOT NULL);"
                               "CREATE INDEX tile_looked_at ON tile(looked_at)";
constexpr const char* hasLayout =
    "SELECT count(*)=3 AND group_concat(sql, ';')=? FROM sqlite_schema";
/// When a tile was in view last is not written more often than this: a look is no reason to write.
constexpr qint64 secondsBetweenLooks = 86'400;
constexpr int longestValue = 8'000'000;
/// Of opening and of each call. Lookups and writes of one row take some dozens of steps; our own
/// layout is read in a hundred.
constexpr SqliteDatabase::Budget budget{.steps = 20'000, .time = std::chrono::milliseconds(100)};
/// Room for one tile is made of so many others at the most.
constexpr int mostDropped = 16;

std::string_view viewOf(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

QByteArray bytesOf(std::string_view bytes) {
    return {bytes.data(), static_cast<qsizetype>(bytes.size())};
}

/// Whether a file of which this is known is to be replaced.
bool isUnusable(SqliteDatabase::State state) {
    return state == SqliteDatabase::State::damaged || state == SqliteDatabase::State::overBudget;
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
    if (!mayBeOurs()) {
        removeFiles();
    }
    Opened opened = openFile();
    if (opened == Opened::foreign) {
        removeFiles();
        opened = openFile();
    }
    m_isOpen = opened == Opened::ours;
    return m_isOpen;
}

// SQLite would wait for a FIFO, and takes in whatever a journal holds before the first statement.
// Far above the bound it would take long to empty the file, tile by tile.
bool TileCache::mayBeOurs() const {
    const QFileInfo file(path());
    const QFileInfo journal(path() + QLatin1String("-journal"));
    const auto isRegular = [](const QFileInfo& one) { return !one.exists() || one.isFile(); };
    return isRegular(file) && isRegular(journal) &&
           !QFileInfo::exists(path() + QLatin1String("-wal")) &&
           file.size() + journal.size() <= 2 * m_mostBytes;
}

void TileCache::removeFiles() const {
    for (const char* const ending : {"", "-journal", "-wal", "-shm"}) {
        QFile::remove(path() + QLatin1String(ending));
    }
}

TileCache::Opened TileCache::openFile() {
    if (!m_database.open(
            path().toStdString(), SqliteDatabase::Mode::readWrite, longestValue, budget)) {
        m_database.close();
        return Opened::failed;
    }
    const bool mayWrite = m_database.isWritable();
    // A lost tile is no loss: nothing waits for the disk. The journal keeps the file whole when the
    // program ends at any time.
    m_database.execute("PRAGMA synchronous=OFF; PRAGMA journal_mode=TRUNCATE;"
                       "PRAGMA cell_size_check=ON; PRAGMA busy_timeout=100;");
    const bool isEmpty = m_database.number("SELECT count(*) FROM sqlite_schema") == 0;
    m_isWritable = m_database.isWritable();
    // What looks empty may be damaged where the layout is to stand.
    bool takesLayout = true;
    if (isEmpty && m_isWritable) {
        const bool isMade = m_database.execute("BEGIN IMMEDIATE") && m_database.execute(layout) &&
                            m_database.execute("COMMIT");
        takesLayout = isMade || !isUnusable(m_database.state());
        m_database.execute("ROLLBACK"); // where that failed
    }
    SqliteStatement query = m_database.prepare(hasLayout);
    query.bindText(1, layout);
    const bool isOurs = query.run() && query.number(0) == 1;
    const SqliteDatabase::State state = m_database.state();
    query = {};
    // A file of a newer version of SQLite may be read and not written.
    const bool isForeign = isOurs ? mayWrite && !m_isWritable
                                  : !takesLayout || isUnusable(state) ||
                                        (state == SqliteDatabase::State::fine && !isEmpty);
    if (!isOurs || isForeign) {
        m_database.close();
        return isForeign ? Opened::foreign : Opened::failed;
    }
    // What was in view is nobody else's business.
    QFile::setPermissions(path(), QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    m_database.execute("PRAGMA busy_timeout=0");
    m_pageBytes = m_database.number("PRAGMA page_size");
    return m_pageBytes > 0 ? Opened::ours : Opened::failed;
}

bool TileCache::begin() {
    if (!open()) {
        return false;
    }
    m_database.begin(budget);
    return true;
}

void TileCache::checkDamage() {
    if (isUnusable(m_database.state())) {
        m_database.close();
        removeFiles();
        m_isOpen = false;
        m_isTried = false;
    }
}

std::optional<TileCache::Entry> TileCache::find(const QString& address, const QDateTime& now) {
    if (!begin()) {
        return std::nullopt;
    }
    const QByteArray key = address.toUtf8();
    SqliteStatement query = m_database.prepare(
        "SELECT bytes, fresh_until, entity_tag, last_modified, looked_at FROM tile"
        " WHERE address=?");
    query.bindBytes(1, viewOf(key));
    std::optional<Entry> found;
    if (query.run()) {
        found = {.bytes = bytesOf(query.bytes(0)),
                 .freshUntil = QDateTime::fromSecsSinceEpoch(query.number(1), QTimeZone::utc()),
                 .entityTag = bytesOf(query.bytes(2)),
                 .lastModified = bytesOf(query.bytes(3))};
        const qint64 seconds = now.toSecsSinceEpoch();
        const qint64 sinceLook = seconds - query.number(4);
        if (sinceLook < -secondsBetweenLooks) { // nobody knows how old it is
            found->freshUntil = now;
        }
        if (m_isWritable && std::abs(sinceLook) > secondsBetweenLooks) {
            SqliteStatement update =
                m_database.prepare("UPDATE tile SET looked_at=?, fresh_until=? WHERE address=?");
            update.bind(1, seconds)
                .bind(2, found->freshUntil.toSecsSinceEpoch())
                .bindBytes(3, viewOf(key));
            (void)update.run();
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
    if (!begin() || !m_isWritable) {
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
        (void)insert.run();
    }
    checkDamage();
}

void TileCache::refresh(const QString& address, const QDateTime& freshUntil) {
    if (begin()) {
        const QByteArray key = address.toUtf8();
        SqliteStatement update =
            m_database.prepare("UPDATE tile SET fresh_until=? WHERE address=?");
        update.bind(1, freshUntil.toSecsSinceEpoch()).bindBytes(2, viewOf(key));
        (void)update.run();
        update = {};
        checkDamage();
    }
}

void TileCache::drop(const QString& address) {
    if (begin()) {
        const QByteArray key = address.toUtf8();
        SqliteStatement erase = m_database.prepare("DELETE FROM tile WHERE address=?");
        erase.bindBytes(1, viewOf(key));
        (void)erase.run();
        erase = {};
        checkDamage();
    }
}

} // namespace vasker
