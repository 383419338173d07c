// The form of an operator's script: lines, words, and which commands there are. docs/operator-script.md
// describes it to a user; operator.h has what the commands do.
#pragma once

#include <QString>
#include <QStringList>
#include <stdexcept>
#include <vector>

namespace demohost {

/// A script that can't be played; what() holds "line N: reason" in UTF-8.
class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// One line of an operator's script: its command and the words after it.
struct ScriptStep {
  int line = 0;    ///< counted from 1
  QString source;  ///< the line as it was written, trimmed
  QString command;
  QStringList words;  ///< without quotes and escapes
};

/// Reads a script: one step a line, words divided by blanks, quotes around a word with blanks (with \" \\ \n
/// inside), a comment from # to the end of the line. Every command and its number of words are checked here,
/// so that a wrong script does nothing at all. Throws ScriptError.
std::vector<ScriptStep> ParseScript(const QString& text);

/// Row numbers, counted from 1: "3", "1,3-5" or "2-4". Throws std::invalid_argument for anything else, also
/// for a range that ends before it starts.
std::vector<int> ParseNumbers(const QString& text);

}  // namespace demohost
