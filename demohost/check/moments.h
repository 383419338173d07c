// What the cases about a host's calls at any moment share: they play scenes, find the places in them where
// a host may call, and make each call there. Used by cases_moments.cpp alone.
#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "demohost/check/case_run.h"
#include "demohost/check/subject.h"

namespace demohost::check {

/// Where a host may call: inside a function of its own or a message to its main window, beside a dialog or a
/// menu that is open, or from its event loop while the module works.
enum class PlaceKind { kFunction, kDialog, kTimer };

/// The place of an exchange with the bank.
inline constexpr const char* kExchange = "function 5 of secure communication";

/// What the host does when its call comes: `prepare` first, then `act`, during which the call is made.
struct Scene {
  std::string what;  ///< a name of `act`, for reports
  std::function<void()> prepare;
  std::function<CallEnd()> act;  ///< returns how its call into the module ended
  bool opens = true;             ///< the module is started and stays so
};

/// Plays scenes and makes each call of a host at each place that comes up in them, a round for each; the case
/// fails at the first round that doesn't go as the contract says.
class Moments {
 public:
  /// `item` is what a second pick picks; another item of the menu is what a pick of another item picks. The
  /// case and the subject outlive the object.
  Moments(CaseRun& run, Subject& subject, std::string item);

  /// Plays the scene once to find its places, and then a round for each place of the kind that hasn't had its
  /// rounds. The places that came up are added to `places`, where it is given.
  void Play(const Scene& scene, PlaceKind kind, std::set<std::string>* places = nullptr);

  /// The item's window, null if it isn't open.
  QWidget* Window() const { return ShownWindow(item_); }

 private:
  enum class Call { kRelease, kReleaseAndStart, kStart, kPickSame, kPickOther, kCloseWindow };
  static constexpr const char* kCallNames[] = {
      "Release",       "Release and InitModule", "InitModule",
      "a second pick", "a pick of another item", "the main window's end"};

  void Round(const Scene& scene, const std::string& place, Call call);
  void Perform(const Scene& scene, const std::function<void(const std::string&)>& reach);
  void Make(Call call);
  void ExpectAtOnce(const std::string& place, Call call);
  /// The place at which a call from a timer would come now; empty where there is none.
  std::string PlaceNow();
  void Turn();
  QWidget* ShownWindow(const std::string& item) const;

  CaseRun& run_;
  Subject& subject_;
  const std::string item_;
  std::string other_;                           ///< empty: the menu has no other
  std::map<std::string, std::string> windows_;  ///< the object name of each item's window
  std::set<std::string> done_;
  std::function<void(const std::string&)> reach_;
  bool acting_ = false;
  int turn_ = 0;
  std::string where_;  ///< the round, for reports
  QObject turns_;
};

}  // namespace demohost::check
