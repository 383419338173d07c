// SQLite behind three small classes that own what they open and throw what fails. Used by the bank, by what
// fills it, and by the bank directory; knows no table.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace demohost {

/// A failure of SQLite; what() holds its own message.
class DatabaseError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class Statement;

/// A connection to one SQLite file, closed with the object. To be used by one thread at a time.
class Database {
 public:
  /// Opens the file, and makes it where `create` is true. Throws DatabaseError.
  Database(const std::filesystem::path& file, bool create);

  /// Runs one or more statements that give no rows. Throws DatabaseError.
  void Run(const std::string& sql);

  /// Prepares one statement, which must not outlive the connection. Throws DatabaseError.
  Statement Prepare(std::string_view sql);

  /// The file's own number ("user_version"), 0 in a new file. Throws DatabaseError.
  std::int64_t Version();

  /// Sets that number. Throws DatabaseError.
  void SetVersion(std::int32_t version);

 private:
  struct Closer {
    void operator()(sqlite3* handle) const;
  };
  std::unique_ptr<sqlite3, Closer> handle_;
};

/// A prepared statement with its bound values. Parameters are counted from 1, columns from 0. Texts are
/// UTF-8.
class Statement {
 public:
  /// Binds a copy of the text. Throws DatabaseError.
  void Bind(int parameter, std::string_view text);

  /// Binds a number. Throws DatabaseError.
  void Bind(int parameter, std::int64_t number);

  /// Goes to the next row; false where there is none. Throws DatabaseError.
  bool Step();
  /// Makes the statement ready for another run; the bound values stay.
  void Reset();

  /// The number of columns of a row.
  int ColumnCount() const;

  /// The column's name as the statement gives it.
  std::string ColumnName(int column) const;
  /// The column as text, valid until the next step; empty for a null.
  std::string_view Text(int column) const;
  /// The column as a number; 0 for a null.
  std::int64_t Number(int column) const;

 private:
  friend class Database;
  struct Finalizer {
    void operator()(sqlite3_stmt* statement) const;
  };
  explicit Statement(sqlite3_stmt* statement) : statement_(statement) {}
  std::unique_ptr<sqlite3_stmt, Finalizer> statement_;
};

/// One transaction from construction on; undone at destruction where Commit hasn't run.
class Transaction {
 public:
  /// Begins; `database` outlives the object. Throws DatabaseError.
  explicit Transaction(Database& database);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  /// Makes the changes last. Throws DatabaseError, and the transaction is then undone.
  void Commit();

 private:
  Database& database_;
  bool open_ = true;
};

}  // namespace demohost
