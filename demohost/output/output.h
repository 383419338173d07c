#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace demohost {

// Where the client's printed reports go, and who is told.
struct Output {
  std::filesystem::path printFolder;
  // Tells the operator of a file that was made.
  std::function<void(const std::filesystem::path& file)> made;
  // Asks the operator whether a file may be replaced; null where there is nobody to ask, and it may not.
  std::function<bool(const std::filesystem::path& file)> mayReplace;
  // Opens the print settings for the report of that name; null where there is no window to open them in.
  std::function<void(const std::string& report)> printSettings;
};

}  // namespace demohost
