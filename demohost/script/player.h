// Plays the steps of a script in time: one after the other, each again and again until it can be done or
// the patience is over. operator.h has what a step does.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <functional>
#include <vector>

#include "demohost/script/operator.h"
#include "demohost/script/script.h"

namespace demohost {

/// How a script ended, which is also the exit status of the program.
enum class ScriptEnd { kPlayed = 0, kFailed = 1, kWrong = 2 };

/// Plays an operator's script from a timer, so that it goes on in the nested loop of a dialog that a step has
/// opened. A step that can't be done is tried again until its patience is over; then the script has failed,
/// with the text of the dialog that is in the way, if there is one.
class Player : public QObject {
 public:
  /// `hand` does the steps; it outlives the object.
  Player(std::vector<ScriptStep> steps, Operator& hand) : steps_(std::move(steps)), operator_(hand) {}

  /// Begins with the next turn of the event loop.
  void Start();

  /// Runs once, at the end; `reason` is empty where every step was played.
  std::function<void(ScriptEnd end, const QString& reason)> onEnd;

  /// How long a step may take to become possible, milliseconds; 5000 at the start. The script may change it.
  void SetPatience(int milliseconds) { patience_ = milliseconds; }

 private:
  void Turn();
  void PlayNext();
  void End(ScriptEnd end, const QString& reason);
  /// Ends the script as failed if the patience is over.
  void Lose(const QString& what, const QString& reason);

  std::vector<ScriptStep> steps_;
  Operator& operator_;
  std::size_t next_ = 0;
  int running_ = 0;  ///< steps that have begun and not returned
  int patience_ = 5000;
  int pause_ = 0;
  bool ended_ = false;
  QElapsedTimer waiting_;
};

}  // namespace demohost
