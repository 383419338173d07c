#include "demohost/bank/database.h"

#include <sqlite3.h>

namespace demohost {
namespace {

[[noreturn]] void Fail(sqlite3* handle) {
  throw DatabaseError(handle == nullptr ? "out of memory" : sqlite3_errmsg(handle));
}

void Check(int code, sqlite3_stmt* statement) {
  if (code != SQLITE_OK) Fail(sqlite3_db_handle(statement));
}

}  // namespace

void Database::Closer::operator()(sqlite3* handle) const {
  sqlite3_close(handle);
}

Database::Database(const std::filesystem::path& file, bool create) {
  const int flags = SQLITE_OPEN_READWRITE | (create ? SQLITE_OPEN_CREATE : 0);
  sqlite3* handle = nullptr;
  const int code = sqlite3_open_v2(file.c_str(), &handle, flags, nullptr);
  handle_.reset(handle);
  if (code != SQLITE_OK) Fail(handle);
  // Two hosts of one user may run side by side; the second waits for the first one's writes.
  sqlite3_busy_timeout(handle, 5000);
}

void Database::Run(const std::string& sql) {
  if (sqlite3_exec(handle_.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) Fail(handle_.get());
}

Statement Database::Prepare(std::string_view sql) {
  sqlite3_stmt* statement = nullptr;
  const int length = static_cast<int>(sql.size());
  if (sqlite3_prepare_v2(handle_.get(), sql.data(), length, &statement, nullptr) != SQLITE_OK) {
    Fail(handle_.get());
  }
  return Statement(statement);
}

std::int64_t Database::Version() {
  Statement statement = Prepare("PRAGMA user_version");
  return statement.Step() ? statement.Number(0) : 0;
}

void Database::SetVersion(std::int32_t version) {
  Run("PRAGMA user_version = " + std::to_string(version));
}

void Statement::Finalizer::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

void Statement::Bind(int parameter, std::string_view text) {
  Check(sqlite3_bind_text64(statement_.get(), parameter, text.data() == nullptr ? "" : text.data(),
                            text.size(), SQLITE_TRANSIENT, SQLITE_UTF8),
        statement_.get());
}

void Statement::Bind(int parameter, std::int64_t number) {
  Check(sqlite3_bind_int64(statement_.get(), parameter, number), statement_.get());
}

bool Statement::Step() {
  const int code = sqlite3_step(statement_.get());
  if (code != SQLITE_ROW && code != SQLITE_DONE) Fail(sqlite3_db_handle(statement_.get()));
  return code == SQLITE_ROW;
}

void Statement::Reset() {
  sqlite3_reset(statement_.get());
}

int Statement::ColumnCount() const {
  return sqlite3_column_count(statement_.get());
}

std::string Statement::ColumnName(int column) const {
  return sqlite3_column_name(statement_.get(), column);
}

std::string_view Statement::Text(int column) const {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
  if (text == nullptr) return {};
  return {text, static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column))};
}

std::int64_t Statement::Number(int column) const {
  return sqlite3_column_int64(statement_.get(), column);
}

Transaction::Transaction(Database& database) : database_(database) {
  database_.Run("BEGIN IMMEDIATE");
}

Transaction::~Transaction() {
  if (!open_) return;
  try {
    database_.Run("ROLLBACK");
  } catch (const DatabaseError&) {
    // SQLite has rolled back by itself where the failure was severe.
  }
}

void Transaction::Commit() {
  database_.Run("COMMIT");
  open_ = false;
}

}  // namespace demohost
