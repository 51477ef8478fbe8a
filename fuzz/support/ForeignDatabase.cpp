#include "fuzz/support/ForeignDatabase.h"

#include <sqlite3.h>

#include <fstream>

namespace vasker {

namespace {

constexpr int longestValue = 100'000;

int thisFileOnly(void* /*context*/,
                 int action,
                 const char* name,
                 const char* /*more*/,
                 const char* /*database*/,
                 const char* /*trigger*/) {
    const bool isOutside = action == SQLITE_ATTACH || action == SQLITE_DETACH ||
                           (action == SQLITE_PRAGMA && std::string_view(name) != "page_size");
    return isOutside ? SQLITE_DENY : SQLITE_OK;
}

void execute(sqlite3* database, const std::string& statements) {
    int steps = 0;
    sqlite3_limit(database, SQLITE_LIMIT_LENGTH, longestValue);
    sqlite3_limit(database, SQLITE_LIMIT_LIKE_PATTERN_LENGTH, 20);
    sqlite3_exec(database,
                 "PRAGMA page_size=512; PRAGMA synchronous=OFF; PRAGMA journal_mode=MEMORY;"
                 "PRAGMA temp_store=MEMORY; PRAGMA max_page_count=1000; BEGIN",
                 nullptr,
                 nullptr,
                 nullptr);
    sqlite3_set_authorizer(database, thisFileOnly, nullptr);
    sqlite3_progress_handler(
        database,
        100,
        [](void* context) { return static_cast<int>(++*static_cast<int*>(context) > 20); },
        &steps);
    sqlite3_exec(database, statements.c_str(), nullptr, nullptr, nullptr);
    sqlite3_progress_handler(database, 0, nullptr, nullptr);
    sqlite3_exec(database, "COMMIT", nullptr, nullptr, nullptr);
}

} // namespace

void makeForeignDatabase(const std::string& path, std::string_view bytes) {
    if (bytes.starts_with("SQLite format 3")) {
        std::ofstream(path, std::ios::binary)
            .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return;
    }
    sqlite3* database = nullptr;
    if (sqlite3_open(path.c_str(), &database) == SQLITE_OK) {
        execute(database, std::string(bytes));
    }
    sqlite3_close(database);
}

} // namespace vasker
