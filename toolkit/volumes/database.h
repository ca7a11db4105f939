#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace tavrik::volume {

struct CloseDatabase {
    void operator()(sqlite3* database) const noexcept { sqlite3_close_v2(database); }
};
struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const noexcept { sqlite3_finalize(statement); }
};

// A database file that nothing is believed about. All members throw Failure.
class Database {
public:
    Database(const std::string& path, bool writable);

    sqlite3* handle() const { return handle_.get(); }
    void execute(const char* sql);
    std::int64_t last_row() const { return sqlite3_last_insert_rowid(handle()); }
    std::int64_t changed_rows() const { return sqlite3_changes(handle()); }
    std::uint64_t longest_value() const;

    [[noreturn]] void fail(int code) const;

private:
    std::unique_ptr<sqlite3, CloseDatabase> handle_;
};

// Bytes that are no text.
struct Blob {
    std::string_view bytes;
};

// What is bound has to outlive the steps.
class Statement {
public:
    template <class... Values>
    Statement(Database& database, std::string_view sql, Values... values) : Statement(database, sql) {
        int position = 0;
        (bind(++position, values), ...);
    }
    Statement(Database& database, std::string_view sql);

    // Whether there is a row.
    bool step();
    void reset() { sqlite3_reset(handle_.get()); }

    std::int64_t number(int column) const { return sqlite3_column_int64(handle_.get(), column); }
    bool is_null(int column) const { return sqlite3_column_type(handle_.get(), column) == SQLITE_NULL; }
    // Good until the next step.
    std::string_view bytes(int column) const;
    std::string_view text(int column) const;

private:
    void bind(int position, std::int64_t number);
    void bind(int position, std::string_view text);
    void bind(int position, Blob blob);
    void check(int code) const;

    Database& database_;
    std::unique_ptr<sqlite3_stmt, FinalizeStatement> handle_;
};

template <class... Values>
void run(Database& database, std::string_view sql, Values... values) {
    Statement(database, sql, values...).step();
}

// All or nothing, also as a step of another one. `undone` is true from the start until the commit.
class Transaction {
public:
    Transaction(Database& database, bool& undone);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void commit();

private:
    Database& database_;
    bool& undone_;
    bool is_inner_;
    bool is_done_ = false;
};

}  // namespace tavrik::volume
