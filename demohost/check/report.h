#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace demohost::check {

// What the process of a case has told, as far as it came. Texts are UTF-8, one line each.
struct ReportRead {
  bool passed = false;
  std::string failed;              // what was seen, empty without a failure
  std::string step;                // the last thing that was begun
  std::vector<std::string> items;  // of the module's menu
};

// The way from the process of a case to the one that judges it: a file, whose lines stand however the process
// ends.
class Report {
 public:
  // Creates the file. Throws FileError.
  explicit Report(const std::filesystem::path& file);
  ~Report();
  Report(const Report&) = delete;
  Report& operator=(const Report&) = delete;

  void Step(const std::string& what) { Write("step", what); }
  void Item(const std::string& name) { Write("item", name); }
  void Failed(const std::string& seen) { Write("failed", seen); }
  void Passed() { Write("passed", {}); }

  // What such a file holds; nothing where there is none.
  static ReportRead Read(const std::filesystem::path& file);

 private:
  void Write(const char* kind, const std::string& text);

  int descriptor_;
};

}  // namespace demohost::check
