// The answer that all peers read and write, and the sum that proves that they have read it.
//
// For the peers and the program that times them. It knows no library.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace bench {

/// The columns of a row, as an answer about bills has them; in byte order.
extern const std::array<const char*, 31> kColumns;

/// The text of an answer of `rows` rows, GBK under a GBK label, in the form that the documents write: of the
/// values a third is Chinese and a quarter empty. The same for the same number of rows.
std::string MakeAnswer(std::size_t rows);

/// A row as anybody would hold it.
using PlainRow = std::map<std::string, std::string>;
/// The rows of an answer.
using PlainRows = std::vector<PlainRow>;

/// Adds up what reading a value by its key gave, so that peers can be seen to have done the same.
class Sum {
 public:
  /// Counts one value in.
  void Add(const std::string& value) {
    total_ = total_ * 31 + value.size();
    if (!value.empty())
      total_ += static_cast<unsigned char>(value.front()) + 7U * static_cast<unsigned char>(value.back());
  }
  /// The sum of all values so far, which depends on their order.
  std::uint64_t Total() const { return total_; }

 private:
  std::uint64_t total_ = 0;
};

}  // namespace bench
