// The skins that the client offers, made of one style sheet and a list of colours for each. Used at the
// start and by the menu of styles; a module reads the packed files.
#pragma once

#include <filesystem>
#include <vector>

namespace demohost {

/// Makes a skin `target`/NAME.skin of each list of colours `source`/NAME.colours: the style sheet
/// `source`/forms.qss with "@name" replaced by the colour of that name, in UTF-8, compressed as qCompress
/// does, which is the form of a module's skins. "@tick" is the path of the picture of a tick that is
/// drawn beside the skin. Throws FileError, also for a colour that a list lacks.
void PackSkins(const std::filesystem::path& source, const std::filesystem::path& target);

/// A style of the menu: its number in the settings, and its file's name in the folder of packed skins.
struct SkinStyle {
  const char* number;
  const char* file;
};

/// All of them, in the order of the menu.
const std::vector<SkinStyle>& SkinStyles();

}  // namespace demohost
