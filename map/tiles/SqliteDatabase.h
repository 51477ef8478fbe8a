#pragma once
// An SQLite file. Untrusted files are opened too: a schema is a program, so that statements have a
// budget. One thread.

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace vasker {

/// A prepared statement. A parameter's text or bytes must live until the statement has run. Of one
/// that could not be prepared, run() is false.
class SqliteStatement {
  public:
    SqliteStatement() = default;
    SqliteStatement(sqlite3* database, const char* sql);

    [[nodiscard]] bool isValid() const noexcept { return m_statement != nullptr; }
    /// Parameters count from 1.
    SqliteStatement& bind(int parameter, std::int64_t value);
    SqliteStatement& bindText(int parameter, std::string_view text);
    SqliteStatement& bindBytes(int parameter, std::string_view bytes);
    /// Takes a step: whether there is a row.
    [[nodiscard]] bool run();
    /// Ready to be run again, with its parameters.
    void reset();

    /// The value in a column of the row, counted from 0; empty or 0 for a NULL. Bytes live until
    /// the next step. isBytes() tells a blob from everything else.
    [[nodiscard]] std::string_view bytes(int column) const;
    [[nodiscard]] std::int64_t number(int column) const;
    [[nodiscard]] bool isBytes(int column) const;

  private:
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const noexcept;
    };
    std::unique_ptr<sqlite3_stmt, Finalizer> m_statement;
};

class SqliteDatabase {
  public:
    enum class Mode : std::uint8_t {
        readOnly,  ///< of a file that nobody changes: without locks and journal, also in a folder
                   ///< without write access. Its views may join and compare, but call no function
                   ///< except max(): one call could take for ever
        readWrite, ///< made where it is missing; read only where it cannot be written to
    };
    /// How a call ended.
    enum class State : std::uint8_t { fine, overBudget, damaged, failed };

    /// What statements may take together.
    struct Budget {
        int steps;                      ///< of SQLite's machine; a lookup by an index takes dozens
        std::chrono::milliseconds time; ///< of the processor: no disk and no busy machine counts
    };

    SqliteDatabase() = default;
    ~SqliteDatabase() { close(); }
    SqliteDatabase(const SqliteDatabase&) = delete;
    SqliteDatabase& operator=(const SqliteDatabase&) = delete;

    /// Whether the file at `path` is open now. Values longer than `longestValue` bytes count as
    /// damaged.
    bool open(const std::string& path, Mode mode, int longestValue, Budget budget);
    void close();

    /// What all statements may take from here to the next call; what goes beyond it ends. open()
    /// begins one.
    void begin(Budget budget) noexcept;

    [[nodiscard]] SqliteStatement prepare(const char* sql) { return {m_database, sql}; }
    /// The first number that `sql` returns, or -1.
    std::int64_t number(const char* sql);
    /// Runs several statements; false where one failed.
    bool execute(const char* sql);

    [[nodiscard]] bool isWritable() const noexcept;
    /// Of the last call.
    [[nodiscard]] State state() const noexcept;

  private:
    [[nodiscard]] bool isBudgetSpent() noexcept;

    sqlite3* m_database = nullptr;
    int m_stepsLeft = 0;
    std::chrono::nanoseconds m_end{}; ///< of the thread's processor time
};

} // namespace vasker
