// The texts of all keys in the three languages. Used by the libraries for translation and errors;
// host_words.h has the words of the host's own windows.
#pragma once

#include <array>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace demohost {

/// A language by its name in "SYSCONFIG_DATA", and its file in share/texts.
struct Language {
  std::string_view name;
  std::string_view file;
};
/// The three languages.
inline constexpr std::array<Language, 3> kLanguages = {{
    {"Simplified Chinese", "zh_CN"},
    {"Traditional Chinese", "zh_TW"},
    {"English", "en"},
}};

/// True for one of the three names.
bool IsLanguage(std::string_view name);

/// The texts of all keys in all languages, in UTF-8.
class Texts {
 public:
  /// Reads `folder`/zh_CN.txt, zh_TW.txt and en.txt: KEY=text a line, UTF-8, `\n`, `\t` and `\\` as escapes,
  /// # before comments. Throws FileError for a line of another form and for a key that occurs twice.
  explicit Texts(const std::filesystem::path& folder);

  /// The text of a key; empty where the language is unknown or has none.
  std::string_view Find(std::string_view language, std::string_view key) const;

  /// Every key with its text in one language; empty for an unknown one.
  const std::map<std::string, std::string, std::less<>>& All(std::string_view language) const;

 private:
  std::map<std::string, std::map<std::string, std::string, std::less<>>, std::less<>> languages_;
};

}  // namespace demohost
