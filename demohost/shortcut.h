#pragma once

#include <filesystem>
#include <string>

namespace demohost {

// A desktop entry that starts this client with a menu item's screen. All in UTF-8.
struct Shortcut {
  std::string item;
  std::string caption;
  std::string icon;  // path of a picture, may be empty
};

// Writes <folder>/norvik-<item>.desktop and makes it executable; an entry of that name is replaced. `program`
// is the command that is run, with "--open ITEM" behind it. Throws FileError, also for an item that isn't
// letters and digits. Returns the file.
std::filesystem::path WriteShortcut(const std::filesystem::path& folder, const std::filesystem::path& program,
                                    const Shortcut& shortcut);

}  // namespace demohost
