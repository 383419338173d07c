#include "demohost/shortcut.h"

#include <algorithm>

#include "demohost/text_file.h"

namespace demohost {
namespace {

// A value of a desktop entry: backslash and line ends are escaped, as freedesktop.org's standard for desktop
// entries says under "Possible value types".
std::string Value(const std::string& text) {
  std::string value;
  for (const char character : text) {
    if (character == '\\') {
      value += "\\\\";
    } else if (character == '\n') {
      value += "\\n";
    } else if (character == '\r') {
      value += "\\r";
    } else {
      value += character;
    }
  }
  return value;
}

// An argument of the key "Exec": in quotes, with the four characters escaped that the same page names, and
// the percent sign doubled.
std::string Argument(const std::string& text) {
  std::string argument = "\"";
  for (const char character : text) {
    if (std::string_view("\"`$\\").find(character) != std::string_view::npos) argument += '\\';
    if (character == '%') argument += '%';
    argument += character;
  }
  return argument + "\"";
}

}  // namespace

std::filesystem::path WriteShortcut(const std::filesystem::path& folder, const std::filesystem::path& program,
                                    const Shortcut& shortcut) {
  const bool plain =
      !shortcut.item.empty() && std::all_of(shortcut.item.begin(), shortcut.item.end(), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
      });
  if (!plain) throw FileError("not a menu item: " + shortcut.item);
  std::string text = "[Desktop Entry]\nType=Application\nName=" + Value(shortcut.caption) +
                     "\nExec=" + Value(Argument(program.string()) + " --open " + shortcut.item) +
                     "\nTerminal=false\n";
  if (!shortcut.icon.empty()) text += "Icon=" + Value(shortcut.icon) + "\n";
  std::filesystem::path file = folder / ("norvik-" + shortcut.item + ".desktop");
  ReplaceFile(file, text);
  std::error_code ignored;
  std::filesystem::permissions(file, std::filesystem::perms::owner_exec, std::filesystem::perm_options::add,
                               ignored);
  return file;
}

}  // namespace demohost
