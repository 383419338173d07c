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

// A failure of SQLite; what() holds its own message.
class DatabaseError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class Statement;

// A connection to one SQLite file, closed with the object. To be used by one thread at a time.
class Database {
 public:
  // Opens the file, and makes it where `create` is true. Throws DatabaseError.
  Database(const std::filesystem::path& file, bool create);

  // Runs one or more statements that give no rows. Throws DatabaseError.
  void Run(const std::string& sql);

  // Prepares one statement, which must not outlive the connection. Throws DatabaseError.
  Statement Prepare(std::string_view sql);

  // The file's own number ("user_version"), 0 in a new file.
  std::int64_t Version();
  void SetVersion(std::int32_t version);

 private:
  struct Closer {
    void operator()(sqlite3* handle) const;
  };
  std::unique_ptr<sqlite3, Closer> handle_;
};

// A prepared statement with its bound values. Parameters count from 1, columns from 0. Texts are UTF-8.
class Statement {
 public:
  void Bind(int parameter, std::string_view text);
  void Bind(int parameter, std::int64_t number);

  // True while there is a row to read. Throws DatabaseError.
  bool Step();
  // Makes the statement ready for another run; the bound values stay.
  void Reset();

  int ColumnCount() const;
  std::string ColumnName(int column) const;
  // The column as text, valid until the next step; empty for a null.
  std::string_view Text(int column) const;
  std::int64_t Number(int column) const;

 private:
  friend class Database;
  struct Finalizer {
    void operator()(sqlite3_stmt* statement) const;
  };
  explicit Statement(sqlite3_stmt* statement) : statement_(statement) {}
  std::unique_ptr<sqlite3_stmt, Finalizer> statement_;
};

// Everything between construction and Commit is one transaction, undone where Commit isn't reached.
class Transaction {
 public:
  explicit Transaction(Database& database);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  void Commit();

 private:
  Database& database_;
  bool open_ = true;
};

}  // namespace demohost
