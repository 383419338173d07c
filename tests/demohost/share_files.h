// Reads the demonstration host's data files and the product's sources as plain text, without the host's own
// readers, so that a fault of a reader can't hide a fault of a file.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

// Reads the demonstration host's data files and the product's sources as plain text, without the host's own
// readers.

/// One line of a text file, with its escapes unresolved.
struct TextLine {
  int number = 0;
  std::string key;
  std::string text;
};

/// The languages' names, which are the file names without ".txt".
extern const std::vector<std::string> kLanguages;

/// The lines of a language's text file without comments and empty lines. A line without "=" has an empty key.
std::vector<TextLine> ReadTexts(const std::string& language);

/// The same as a map; of two lines with one key the first counts.
std::map<std::string, std::string> TextsByKey(const std::string& language);

/// The lines of a table, split at blanks, by section.
using Table = std::map<std::string, std::vector<std::vector<std::string>>>;
Table ReadTable(const std::string& name);

/// Every key of two capitals and five digits that occurs as a literal in the product's sources, with the
/// places.
std::map<std::string, std::string> KeysInSources();

/// The parts of a text in lines of their own, for messages.
std::string Lines(const std::vector<std::string>& parts);
