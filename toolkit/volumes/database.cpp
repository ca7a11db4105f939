#include "toolkit/volumes/database.h"

#include "toolkit/volumes/failure.h"

#include <cerrno>

namespace tavrik::volume {
namespace {

constexpr int kBusyTimeoutMs = 2000;

struct CodeRow {
    int code;
    int error;
    bool is_foreign = false;
};

// A statement that can't be prepared is one of these, since the statements are constants: the table is another one.
constexpr CodeRow kCodes[] = {
    {SQLITE_ERROR, EIO, true}, {SQLITE_NOTADB, EIO, true},  {SQLITE_CORRUPT, EIO, true}, {SQLITE_FORMAT, EIO, true},
    {SQLITE_BUSY, EBUSY},      {SQLITE_LOCKED, EBUSY},      {SQLITE_FULL, ENOSPC},       {SQLITE_READONLY, EROFS},
    {SQLITE_NOMEM, ENOMEM},    {SQLITE_TOOBIG, EFBIG},      {SQLITE_PERM, EACCES},       {SQLITE_CANTOPEN, EACCES},
    {SQLITE_AUTH, EACCES},     {SQLITE_CONSTRAINT, EEXIST},
};

CodeRow row_of(int code) {
    for (const CodeRow& row : kCodes)
        if (row.code == (code & 0xFF)) return row;
    return {code, EIO};
}

}  // namespace

Database::Database(const std::string& path, bool writable) {
    sqlite3* opened = nullptr;
    const int mode = writable ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY;
    const int code = sqlite3_open_v2(path.c_str(), &opened, mode | SQLITE_OPEN_NOMUTEX, nullptr);
    handle_.reset(opened);
    if (code != SQLITE_OK) fail(code);
    sqlite3_busy_timeout(opened, kBusyTimeoutMs);
    // Nothing that a foreign schema holds gets run.
    sqlite3_db_config(opened, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(opened, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(opened, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(opened, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
    execute("PRAGMA cell_size_check = ON");
    if (!writable) return;
    // One file at rest, and in it the last commit whatever ends the process or the power. EXTRA also makes the
    // journal's removal last.
    execute("PRAGMA synchronous = EXTRA");
    execute("PRAGMA journal_mode = DELETE");
}

void Database::fail(int code) const {
    const CodeRow row = row_of(code);
    throw Failure{row.error, row.is_foreign, handle_ ? sqlite3_errmsg(handle()) : sqlite3_errstr(code)};
}

void Database::execute(const char* sql) {
    const int code = sqlite3_exec(handle(), sql, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) fail(code);
}

std::uint64_t Database::longest_value() const {
    return static_cast<std::uint64_t>(sqlite3_limit(handle(), SQLITE_LIMIT_LENGTH, -1));
}

Statement::Statement(Database& database, std::string_view sql) : database_(database) {
    sqlite3_stmt* prepared = nullptr;
    check(sqlite3_prepare_v2(database.handle(), sql.data(), static_cast<int>(sql.size()), &prepared, nullptr));
    handle_.reset(prepared);
}

void Statement::check(int code) const {
    if (code != SQLITE_OK) database_.fail(code);
}

void Statement::bind(int position, std::int64_t number) { check(sqlite3_bind_int64(handle_.get(), position, number)); }

void Statement::bind(int position, std::string_view text) {
    check(sqlite3_bind_text64(handle_.get(), position, text.data(), text.size(), SQLITE_STATIC, SQLITE_UTF8));
}

void Statement::bind(int position, Blob blob) {
    // Without an address it would be NULL, and that is what a folder has.
    const char* const start = blob.bytes.empty() ? "" : blob.bytes.data();
    check(sqlite3_bind_blob64(handle_.get(), position, start, blob.bytes.size(), SQLITE_STATIC));
}

bool Statement::step() {
    const int code = sqlite3_step(handle_.get());
    if (code != SQLITE_ROW && code != SQLITE_DONE) database_.fail(code);
    return code == SQLITE_ROW;
}

std::string_view Statement::bytes(int column) const {
    const auto* const start = static_cast<const char*>(sqlite3_column_blob(handle_.get(), column));
    return {start, start == nullptr ? 0 : static_cast<std::size_t>(sqlite3_column_bytes(handle_.get(), column))};
}

std::string_view Statement::text(int column) const {
    const auto* const start = reinterpret_cast<const char*>(sqlite3_column_text(handle_.get(), column));
    return {start, start == nullptr ? 0 : static_cast<std::size_t>(sqlite3_column_bytes(handle_.get(), column))};
}

Transaction::Transaction(Database& database, bool& undone)
    : database_(database), undone_(undone), is_inner_(sqlite3_get_autocommit(database.handle()) == 0) {
    database_.execute(is_inner_ ? "SAVEPOINT step" : "BEGIN IMMEDIATE");
    undone_ = true;
}

Transaction::~Transaction() {
    // Some failures have rolled back already.
    if (is_done_ || sqlite3_get_autocommit(database_.handle()) != 0) return;
    const char* const undo = is_inner_ ? "ROLLBACK TO step; RELEASE step" : "ROLLBACK";
    sqlite3_exec(database_.handle(), undo, nullptr, nullptr, nullptr);
}

void Transaction::commit() {
    database_.execute(is_inner_ ? "RELEASE step" : "COMMIT");
    is_done_ = true;
    undone_ = false;
}

}  // namespace tavrik::volume
