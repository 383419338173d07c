// A host's calls into the module at any moment: a scene is played up to the moment, the call is made, and the
// scene is played to its end. Each pair of a moment and a call is a cell, which needs a process of its own.
#pragma once

#include <QTemporaryDir>
#include <functional>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "tests/support/module_library.h"

namespace anymoment {

class Scene;
using Deed = std::function<void(Scene&)>;

/// Where the module is: inside a call of the host, or inside a message to it, or, with neither, in its event
/// loop.
struct Place {
  const fakehost::Call* call = nullptr;
  std::uint32_t message = 0;
};

/// What has to hold after a pick depends on what the module is doing.
enum class Doing { kElse, kWaiting, kExchange, kStarting, kClosing, kEnding };

/// The host does `prepare`, then `act`, in whose course the moment comes. Each step is done once its dialog
/// is in front.
struct Moment {
  const char* name;
  Deed act;
  std::function<bool(const Place&)> when;
  Doing doing = Doing::kElse;
  Deed prepare;
  struct Step {
    const char* dialog;
    Deed deed;
  };
  std::vector<Step> steps = {};
};
std::span<const Moment> Moments();

enum Call { kRelease, kReleaseAndInit, kInit, kPickSame, kPickOther, kCloseMainWindow };
inline constexpr const char* kCalls[] = {"Release",
                                         "Release and InitModule",
                                         "InitModule",
                                         "CallFunc of the same item",
                                         "CallFunc of another item",
                                         "the main window destroyed"};

struct Item {
  const char* item;
  const char* screen;
};
inline constexpr Item kItems[] = {
    {"ITEM6066", "TfrmNorvikQry"}, {"ITEM6067", "TfrmNorvikELoanQry"}, {"ITEM6068", "TfrmNorvikDTLQry"}};

class Scene {
 public:
  Scene(const Moment& moment, Call call);

  /// Plays the cell and prints a line for each thing that isn't as it has to be. The exit status.
  int Play();

  // For deeds. Controls are those of the dialog in front, else of the scene's screen.
  QWidget* Find(const char* name) const;
  void Click(const char* name) const;
  void Tick(int row) const;
  void ListMenu() const;
  void Choose(const std::string& file) const;

  /// Makes the call if this is the moment.
  void Reach(const Place& place);

  WindowedHost host;
  const ModuleLibrary module;
  const QTemporaryDir images;
  std::size_t at = 0;  // the item of the scene, in kItems

 private:
  std::size_t Other() const { return (at + 1) % std::size(kItems); }
  void Turn();
  void MakeCall();
  void FollowUp();
  void Expect(bool good, const std::string& what);
  void Guarded(const char* what, const std::function<void()>& body);
  bool EndsLife() const { return call_ <= kInit; }
  std::vector<QWidget*> ModuleWindows(bool visible) const;

  const Moment& moment_;
  const Call call_;
  std::set<QWidget*> ownWindows_;
  std::size_t stepsDone_ = 0;
  bool acting_ = false;
  bool came_ = false;
  std::size_t callsBefore_ = 0;
  int lost_ = 0;
  int failures_ = 0;
  QObject turns_;
};

}  // namespace anymoment
