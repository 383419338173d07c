#pragma once

#include <string>
#include <string_view>

#include "demohost/bank/database.h"

namespace demohost {

// An insert into one table, prepared once, whose values are given in the order of the columns.
class Insert {
 public:
  Insert(Database& database, std::string_view table, int columns)
      : statement_(
            database.Prepare("INSERT INTO " + std::string(table) + " VALUES (" + Marks(columns) + ")")) {}

  template <class... Values>
  void operator()(const Values&... values) {
    int parameter = 0;
    (statement_.Bind(++parameter, values), ...);
    statement_.Step();
    statement_.Reset();
  }

 private:
  static std::string Marks(int count) {
    std::string marks = "?";
    for (int mark = 1; mark < count; ++mark) marks += ",?";
    return marks;
  }
  Statement statement_;
};

}  // namespace demohost
