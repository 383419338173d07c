// What the module offers in the host's menu, and the one screen of each item. The exports use it; it knows
// nothing of the host beyond the window that it restores.
#pragma once

#include <span>
#include <string>
#include <string_view>

class TApplication;
class TForm;

namespace norvik {

/// An item of the menu and what can be done with its screen.
struct MenuItem {
  /// The item's name.
  std::string_view item;
  /// Opens the item's screen, or brings the same one back: one that was closed is shown again and runs its
  /// reset, one that is open or minimised comes to the front as it was. Does nothing while the screen is
  /// being made. A failure while it is made is passed on, and the next call makes it again; a failing show is
  /// reported. LifeEnded if the host ends the life meanwhile.
  void (*open)(const std::string& item);
  /// The item's screen, null while there is none.
  TForm* (*screen)();
  /// Forgets the item's screen if it belongs to that life, which deletes it.
  void (*forget)(const TApplication* life);
};

/// The items in the order of the menu.
std::span<const MenuItem> Menu();

/// The menu as the text of an "iniplus" document.
std::string MenuText();

}  // namespace norvik
