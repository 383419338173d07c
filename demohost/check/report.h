// The file through which the process of a case reports to the one that judges it. Its lines stay readable
// however the process ends; used on the one side by case_run.h, on the other by child.h.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace demohost::check {

/// What the process of a case has reported so far. Texts are UTF-8, one line each.
struct ReportRead {
  bool passed = false;
  std::string failed;              ///< what was seen, empty without a failure
  std::string step;                ///< what was begun last
  std::vector<std::string> items;  ///< of the module's menu
};

/// The report of a case that is played in this process.
class Report {
 public:
  /// Creates the file. Throws FileError.
  explicit Report(const std::filesystem::path& file);
  ~Report();
  Report(const Report&) = delete;
  Report& operator=(const Report&) = delete;

  /// Writes a line, cut at 400 bytes: what is begun now.
  void Step(const std::string& what) { Write("step", what); }
  /// Writes the name of an item of the menu.
  void Item(const std::string& name) { Write("item", name); }
  /// Writes why the case has failed.
  void Failed(const std::string& seen) { Write("failed", seen); }
  /// Writes that the case has passed.
  void Passed() { Write("passed", {}); }

  /// What such a file holds; nothing where there is none.
  static ReportRead Read(const std::filesystem::path& file);

 private:
  void Write(const char* kind, const std::string& text);

  int descriptor_;
};

}  // namespace demohost::check
