#include "map/tiles/SqliteDatabase.h"

#include <sqlite3.h>

#include <ctime>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace vasker {

namespace {

std::string addressOf(const std::filesystem::path& path) {
    std::string address = "file:";
    for (const char character : path.string()) {
        switch (character) {
        case '%':
            address += "%25";
            break;
        case '?':
            address += "%3f";
            break;
        case '#':
            address += "%23";
            break;
        default:
            address += character;
        }
    }
    return address + "?immutable=1";
}

/// Between two looks at the budget.
constexpr int stepsAtOnce = 100;

std::chrono::nanoseconds processorTime() noexcept {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

/// Of an archive: reading is allowed, and of the functions max().
int readingOnly(void* /*context*/,
                int action,
                const char* /*table*/,
                const char* function,
                const char* /*database*/,
                const char* /*view*/) {
    const bool isAllowed = action == SQLITE_SELECT || action == SQLITE_READ ||
                           action == SQLITE_RECURSIVE ||
                           (action == SQLITE_FUNCTION && std::string_view(function) == "max");
    return isAllowed ? SQLITE_OK : SQLITE_DENY;
}

/// Generated columns are computed in places that no authorizer sees, virtual tables by code of
/// their own.
constexpr const char* computedTables =
    "SELECT max(rowid) FROM sqlite_schema AS s WHERE type='table' AND"
    " (rootpage=0 OR EXISTS (SELECT 1 FROM pragma_table_xinfo(s.name) WHERE hidden<>0))";

} // namespace

void SqliteStatement::Finalizer::operator()(sqlite3_stmt* statement) const noexcept {
    sqlite3_finalize(statement);
}

SqliteStatement::SqliteStatement(sqlite3* database, const char* sql) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(database, sql, -1, &statement, nullptr);
    m_statement.reset(statement);
}

SqliteStatement& SqliteStatement::bind(int parameter, std::int64_t value) {
    sqlite3_bind_int64(m_statement.get(), parameter, value);
    return *this;
}

SqliteStatement& SqliteStatement::bindText(int parameter, std::string_view text) {
    sqlite3_bind_text64(
        m_statement.get(), parameter, text.data(), text.size(), SQLITE_STATIC, SQLITE_UTF8);
    return *this;
}

SqliteStatement& SqliteStatement::bindBytes(int parameter, std::string_view bytes) {
    const char* const data = bytes.data() == nullptr ? "" : bytes.data(); // null would be NULL
    sqlite3_bind_blob64(m_statement.get(), parameter, data, bytes.size(), SQLITE_STATIC);
    return *this;
}

bool SqliteStatement::run() {
    return m_statement && sqlite3_step(m_statement.get()) == SQLITE_ROW;
}

void SqliteStatement::reset() {
    sqlite3_reset(m_statement.get());
}

std::string_view SqliteStatement::bytes(int column) const {
    const void* const data = sqlite3_column_blob(m_statement.get(), column);
    const int size = sqlite3_column_bytes(m_statement.get(), column);
    return data == nullptr
               ? std::string_view()
               : std::string_view(static_cast<const char*>(data), static_cast<std::size_t>(size));
}

std::int64_t SqliteStatement::number(int column) const {
    return sqlite3_column_int64(m_statement.get(), column);
}

bool SqliteStatement::isBytes(int column) const {
    return sqlite3_column_type(m_statement.get(), column) == SQLITE_BLOB;
}

bool SqliteDatabase::open(const std::string& path, Mode mode, int longestValue, Budget budget) {
    close();
    std::error_code error;
    const auto file = std::filesystem::absolute(path, error);
    const bool isImmutable = mode == Mode::readOnly;
    if (error || (isImmutable && !std::filesystem::is_regular_file(file, error))) {
        return false;
    }
    const std::string address = isImmutable ? addressOf(file) : file.string();
    const int flags = isImmutable ? SQLITE_OPEN_READONLY | SQLITE_OPEN_URI
                                  : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    if (sqlite3_open_v2(address.c_str(), &m_database, flags | SQLITE_OPEN_NOMUTEX, nullptr) !=
        SQLITE_OK) {
        return false;
    }
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): SQLite has no other entry point for it
    sqlite3_db_config(m_database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_limit(m_database, SQLITE_LIMIT_LENGTH, longestValue);
    begin(budget);
    sqlite3_progress_handler(
        m_database,
        stepsAtOnce,
        [](void* context) {
            return static_cast<int>(static_cast<SqliteDatabase*>(context)->isBudgetSpent());
        },
        this);
    if (isImmutable) {
        SqliteStatement computed = prepare(computedTables);
        if (!computed.run() || computed.number(0) != 0) {
            return false;
        }
        sqlite3_set_authorizer(m_database, readingOnly, nullptr);
    }
    return true;
}

void SqliteDatabase::begin(Budget budget) noexcept {
    m_stepsLeft = budget.steps;
    m_end = processorTime() + budget.time;
}

bool SqliteDatabase::isBudgetSpent() noexcept {
    m_stepsLeft -= stepsAtOnce;
    return m_stepsLeft < 0 || processorTime() > m_end;
}

void SqliteDatabase::close() {
    sqlite3_close_v2(m_database); // statements that are left keep it until they go
    m_database = nullptr;
}

std::int64_t SqliteDatabase::number(const char* sql) {
    SqliteStatement statement = prepare(sql);
    return statement.run() ? statement.number(0) : -1;
}

bool SqliteDatabase::execute(const char* sql) {
    return sqlite3_exec(m_database, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

bool SqliteDatabase::isWritable() const noexcept {
    return sqlite3_db_readonly(m_database, "main") == 0;
}

SqliteDatabase::State SqliteDatabase::state() const noexcept {
    switch (sqlite3_errcode(m_database)) {
    case SQLITE_OK:
    case SQLITE_ROW:
    case SQLITE_DONE:
        return State::fine;
    case SQLITE_INTERRUPT:
        return State::overBudget;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
    case SQLITE_ERROR: // of another layout
    case SQLITE_TOOBIG:
        return State::damaged;
    default:
        return State::failed;
    }
}

} // namespace vasker
