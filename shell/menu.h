#pragma once

#include <span>
#include <string>
#include <string_view>

/// What the module offers in the host's menu, and the one screen behind each item.
class TApplication;
class TForm;

namespace norvik {

struct MenuItem {
  std::string_view item;
  /// Opens the item's screen, or brings the same one back: one that was closed is shown anew and runs its
  /// reset, one that is open or minimised comes forward as it was. Does nothing while the screen is being
  /// made. A failure while it is made is passed on, and the next call makes it anew; a failing show is
  /// reported. LifeEnded if the host ends the life meanwhile.
  void (*open)(const std::string& item);
  /// The item's screen, null while it is absent.
  TForm* (*screen)();
  /// Makes the item's screen absent if it belongs to that life, which deletes it.
  void (*forget)(const TApplication* life);
};

/// The items in the order of the menu.
std::span<const MenuItem> Menu();

/// The menu as the text of an "iniplus" document.
std::string MenuText();

}  // namespace norvik
