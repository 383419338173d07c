// What the fillers of the bank's tables share: random numbers that are the same on every machine, rows
// inserted into a table, and words made of pieces. Used by the implementations of seed_tables.h alone; the
// running bank decides nothing by chance.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <random>
#include <string>
#include <string_view>

#include "demohost/bank/database.h"
#include "demohost/bank/seed.h"

namespace demohost {

/// A source of numbers that are the same for the same seed with every standard library; the distributions of
/// the standard differ from library to library.
class Random {
 public:
  /// Begins the sequence of this seed.
  explicit Random(std::uint32_t seed) : engine_(seed) {}

  /// 0 to `bound` - 1; `bound` must be above 0.
  std::uint32_t Below(std::uint32_t bound) { return static_cast<std::uint32_t>(engine_() % bound); }
  /// True `percent` times in a hundred.
  bool Chance(std::uint32_t percent) { return Below(100) < percent; }
  /// One of the items, which must not be empty.
  template <class Range>
  const auto& Pick(const Range& items) {
    return items[Below(static_cast<std::uint32_t>(items.size()))];
  }

 private:
  std::mt19937 engine_;
};

/// An insert into one table, prepared once, whose values are given in the order of the columns.
class Insert {
 public:
  /// Prepares the insert; `database` outlives the object. Throws DatabaseError.
  Insert(Database& database, std::string_view table, int columns)
      : statement_(
            database.Prepare("INSERT INTO " + std::string(table) + " VALUES (" + Marks(columns) + ")")) {}

  /// Inserts one row, of texts and numbers. Throws DatabaseError.
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

/// The number written in a printf format for one long long, in at most 31 bytes.
std::string Digits(const char* format, std::int64_t number);

/// The parts put together with nothing between them.
std::string Join(std::initializer_list<std::string_view> parts);

/// A code of the plan's dictionary for a record, counted from 0; "" where the dictionary has none. The first
/// records take the codes in turn, so that each code is in one; the codes that mean no choice are left out.
std::string SeedCode(const BankPlan& plan, const std::string& dictionary, std::int64_t record,
                     Random& random);

/// An invented person's name.
std::string SeedPerson(Random& random);

}  // namespace demohost
