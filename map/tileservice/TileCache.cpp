#include "map/tileservice/TileCache.h"

#include <QDir>
#include <QFile>

#include <sqlite3.h>

#include <algorithm>

namespace vasker {

namespace {

constexpr int layoutVersion = 1;
// When a tile was looked at last is not written more often than this: a look is no reason to write.
constexpr qint64 secondsBetweenLooks = 86'400;

struct Finalizer {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finalizer>;

void bind(sqlite3_stmt* statement, int index, const QByteArray& bytes) {
    sqlite3_bind_blob64(statement,
                        index,
                        bytes.constData() == nullptr ? "" : bytes.constData(),
                        static_cast<sqlite3_uint64>(bytes.size()),
                        SQLITE_STATIC); // outlives the statement
}

void bind(sqlite3_stmt* statement, int index, const QDateTime& time) {
    sqlite3_bind_int64(statement, index, time.toSecsSinceEpoch());
}

QByteArray bytesOf(sqlite3_stmt* statement, int column) {
    const void* const bytes = sqlite3_column_blob(statement, column);
    return bytes == nullptr ? QByteArray()
                            : QByteArray(static_cast<const char*>(bytes),
                                         sqlite3_column_bytes(statement, column));
}

} // namespace

class TileCache::Database {
  public:
    ~Database() { close(); }

    /// False where there is no way.
    bool open(const QString& path, qint64 mostBytes);
    void close();
    /// What the last call came to; SQLITE_ROW and SQLITE_DONE are good.
    [[nodiscard]] int state() const noexcept { return m_state; }

    std::optional<Entry> find(const QByteArray& address, const QDateTime& now);
    void keep(const QByteArray& address, const Entry& entry, const QDateTime& now);
    void refresh(const QByteArray& address, const QDateTime& freshUntil);
    void drop(const QByteArray& address);

  private:
    Statement prepared(const char* sql);
    bool step(const Statement& statement);
    /// Runs a statement to its end; what it says first, or -1.
    qint64 number(const char* sql);
    bool makeRoom(qint64 bytes);

    sqlite3* m_database = nullptr;
    qint64 m_pageBytes = 0;
    qint64 m_mostBytes = 0;
    bool m_isWritable = true;
    int m_state = SQLITE_OK;
};

bool TileCache::Database::open(const QString& path, qint64 mostBytes) {
    constexpr int create = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    m_state = sqlite3_open_v2(
        path.toUtf8().constData(), &m_database, create | SQLITE_OPEN_NOMUTEX, nullptr);
    if (m_state != SQLITE_OK) {
        return false;
    }
    sqlite3_busy_timeout(m_database, 100); // another window may just be making the file
    m_mostBytes = mostBytes;
    m_isWritable = sqlite3_db_readonly(m_database, "main") == 0;
    // A lost tile is no loss: nothing waits for the disk. That the program may die at any time is
    // the journal's business.
    for (const char* const setting : {"PRAGMA synchronous=OFF",
                                      "PRAGMA journal_mode=TRUNCATE",
                                      "PRAGMA trusted_schema=OFF",
                                      "PRAGMA cell_size_check=ON"}) {
        (void)number(setting);
    }
    const qint64 version = number("PRAGMA user_version");
    if (version == 0 && m_isWritable) {
        sqlite3_exec(m_database,
                     "BEGIN IMMEDIATE;"
                     "CREATE TABLE IF NOT EXISTS tile(address BLOB PRIMARY KEY, fresh_until "
                     "INTEGER NOT NULL,"
                     " looked_at INTEGER NOT NULL, entity_tag BLOB, last_modified BLOB,"
                     " bytes BLOB NOT NULL);"
                     "CREATE INDEX IF NOT EXISTS tile_looked_at ON tile(looked_at);"
                     "PRAGMA user_version=1;"
                     "COMMIT",
                     nullptr,
                     nullptr,
                     nullptr);
        sqlite3_exec(m_database, "ROLLBACK", nullptr, nullptr, nullptr); // where that failed
    }
    if (number("PRAGMA user_version") != layoutVersion) {
        if (version > 0) {
            m_state = SQLITE_NOTADB; // another layout
        }
        return false;
    }
    sqlite3_busy_timeout(m_database, 0);
    m_pageBytes = number("PRAGMA page_size");
    return m_pageBytes > 0;
}

void TileCache::Database::close() {
    sqlite3_close(m_database);
    m_database = nullptr;
}

Statement TileCache::Database::prepared(const char* sql) {
    sqlite3_stmt* statement = nullptr;
    m_state = sqlite3_prepare_v2(m_database, sql, -1, &statement, nullptr);
    return Statement(statement);
}

bool TileCache::Database::step(const Statement& statement) {
    if (statement) {
        m_state = sqlite3_step(statement.get());
    }
    return m_state == SQLITE_ROW;
}

qint64 TileCache::Database::number(const char* sql) {
    const Statement statement = prepared(sql);
    return step(statement) ? sqlite3_column_int64(statement.get(), 0) : -1;
}

std::optional<TileCache::Entry> TileCache::Database::find(const QByteArray& address,
                                                          const QDateTime& now) {
    const Statement query = prepared("SELECT bytes, fresh_until, entity_tag, last_modified,"
                                     " looked_at FROM tile WHERE address=?");
    bind(query.get(), 1, address);
    if (!step(query)) {
        return std::nullopt;
    }
    Entry entry{.bytes = bytesOf(query.get(), 0),
                .freshUntil =
                    QDateTime::fromSecsSinceEpoch(sqlite3_column_int64(query.get(), 1), Qt::UTC),
                .entityTag = bytesOf(query.get(), 2),
                .lastModified = bytesOf(query.get(), 3)};
    const qint64 lookedAt = sqlite3_column_int64(query.get(), 4);
    if (m_isWritable && now.toSecsSinceEpoch() - lookedAt > secondsBetweenLooks) {
        const Statement update = prepared("UPDATE tile SET looked_at=? WHERE address=?");
        bind(update.get(), 1, now);
        bind(update.get(), 2, address);
        (void)step(update);
    }
    return entry;
}

bool TileCache::Database::makeRoom(qint64 bytes) {
    const auto usedBytes = [this] {
        return (number("PRAGMA page_count") - number("PRAGMA freelist_count")) * m_pageBytes;
    };
    while (usedBytes() + bytes > m_mostBytes) {
        if (number("SELECT count(*) FROM (SELECT 1 FROM tile LIMIT 1)") < 1) {
            return false;
        }
        const Statement oldest = prepared("DELETE FROM tile WHERE rowid IN"
                                          " (SELECT rowid FROM tile ORDER BY looked_at LIMIT 4)");
        (void)step(oldest);
        if (m_state != SQLITE_DONE) {
            return false;
        }
    }
    return true;
}

void TileCache::Database::keep(const QByteArray& address,
                               const Entry& entry,
                               const QDateTime& now) {
    if (!m_isWritable || !makeRoom(entry.bytes.size() + 2 * m_pageBytes)) {
        return;
    }
    const Statement insert = prepared("INSERT OR REPLACE INTO tile"
                                      " (address, fresh_until, looked_at, entity_tag,"
                                      " last_modified, bytes) VALUES (?, ?, ?, ?, ?, ?)");
    bind(insert.get(), 1, address);
    bind(insert.get(), 2, entry.freshUntil);
    bind(insert.get(), 3, now);
    bind(insert.get(), 4, entry.entityTag);
    bind(insert.get(), 5, entry.lastModified);
    bind(insert.get(), 6, entry.bytes);
    (void)step(insert);
}

void TileCache::Database::refresh(const QByteArray& address, const QDateTime& freshUntil) {
    const Statement update = prepared("UPDATE tile SET fresh_until=? WHERE address=?");
    bind(update.get(), 1, freshUntil);
    bind(update.get(), 2, address);
    (void)step(update);
}

void TileCache::Database::drop(const QByteArray& address) {
    const Statement erase = prepared("DELETE FROM tile WHERE address=?");
    bind(erase.get(), 1, address);
    (void)step(erase);
}

TileCache::TileCache(QString folder, qint64 mostBytes)
    : m_folder(std::move(folder)), m_mostBytes(mostBytes) {}

TileCache::~TileCache() = default;

TileCache::Database* TileCache::database() {
    if (m_isOpened || m_folder.isEmpty()) {
        return m_database.get();
    }
    m_isOpened = true;
    if (!QDir().mkpath(m_folder)) {
        return nullptr;
    }
    const QString path = QDir(m_folder).filePath(QStringLiteral("tiles.sqlite"));
    for (int attempt = 0; attempt < 2; ++attempt) {
        auto opened = std::make_unique<Database>();
        if (opened->open(path, m_mostBytes)) {
            // What was looked at is nobody else's business.
            QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
            m_database = std::move(opened);
            break;
        }
        const bool isDamaged =
            opened->state() == SQLITE_CORRUPT || opened->state() == SQLITE_NOTADB;
        opened->close();
        if (!isDamaged || !QFile::remove(path)) {
            break;
        }
    }
    return m_database.get();
}

template <typename Use>
void TileCache::use(Use&& use) {
    Database* const open = database();
    if (open == nullptr) {
        return;
    }
    use(*open);
    if (open->state() == SQLITE_CORRUPT || open->state() == SQLITE_NOTADB) {
        m_database.reset();
        QFile::remove(QDir(m_folder).filePath(QStringLiteral("tiles.sqlite")));
        m_isOpened = false; // begins anew
    }
}

std::optional<TileCache::Entry> TileCache::find(const QString& address, const QDateTime& now) {
    std::optional<Entry> found;
    use([&](Database& database) { found = database.find(address.toUtf8(), now); });
    return found;
}

void TileCache::keep(const QString& address, const Entry& entry, const QDateTime& now) {
    use([&](Database& database) { database.keep(address.toUtf8(), entry, now); });
}

void TileCache::refresh(const QString& address, const QDateTime& freshUntil) {
    use([&](Database& database) { database.refresh(address.toUtf8(), freshUntil); });
}

void TileCache::drop(const QString& address) {
    use([&](Database& database) { database.drop(address.toUtf8()); });
}

} // namespace vasker
