#pragma once

#include <filesystem>

namespace demohost {

// Makes a skin <target>/<name>.skin of each list of colours <source>/<name>.colours: the style sheet
// <source>/forms.qss with "@name" replaced by the colour of that name, in UTF-8, compressed as qCompress
// does, which is the form that a module's skins have. "@tick" is the path of the picture of a tick that is
// drawn beside the skin. Throws FileError, also for a colour that a list lacks.
void PackSkins(const std::filesystem::path& source, const std::filesystem::path& target);

}  // namespace demohost
