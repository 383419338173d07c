// A desktop shortcut to one screen, as a desktop entry of freedesktop.org. Used by the client when the
// module asks for one.
#pragma once

#include <filesystem>
#include <string>

namespace demohost {

/// A desktop entry that starts this client with a menu item's screen. All in UTF-8.
struct Shortcut {
  std::string item;
  std::string caption;
  std::string icon;  ///< path of a picture, may be empty
};

/// Writes `folder`/norvik-ITEM.desktop and makes it executable; an entry of that name is replaced.
/// `program` is the command that is run, followed by "--open ITEM". Returns the file. Throws FileError, also
/// for an item that isn't letters and digits.
std::filesystem::path WriteShortcut(const std::filesystem::path& folder, const std::filesystem::path& program,
                                    const Shortcut& shortcut);

}  // namespace demohost
