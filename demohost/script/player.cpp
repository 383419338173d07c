#include "demohost/script/player.h"

#include <QTimer>

#include "demohost/script/controls.h"

namespace demohost {
namespace {

constexpr int kTurn = 10;  // milliseconds from one try to the next

}  // namespace

void Player::Start() {
  waiting_.start();
  QTimer::singleShot(0, this, &Player::Turn);
}

void Player::Turn() {
  if (ended_) return;
  // The next turn is asked for before this one plays, since a step that opens a dialog returns late.
  QTimer::singleShot(kTurn, this, &Player::Turn);
  if (pause_ > 0 && waiting_.elapsed() < pause_) return;
  pause_ = 0;
  // A step is running and no dialog is open: it pumps events in the middle of its work.
  if (running_ > 0 && Operator::Dialog() == nullptr) return waiting_.restart(), void();
  if (next_ < steps_.size()) return PlayNext();
  if (running_ == 0 && Operator::Dialog() == nullptr) return End(ScriptEnd::kPlayed, {});
  Lose(QStringLiteral("the end"), QStringLiteral("the script is over"));
}

void Player::PlayNext() {
  const ScriptStep& step = steps_[next_];
  const QString where = QStringLiteral("line %1: %2").arg(step.line).arg(step.source);
  Operator::Action action;
  try {
    action = operator_.Prepare(step);
  } catch (const NotYet& notYet) {
    return Lose(where, QString::fromUtf8(notYet.what()));
  }
  ++next_;
  waiting_.restart();
  if (step.command == QLatin1String("patience")) patience_ = step.words[0].toInt();
  if (step.command == QLatin1String("wait")) pause_ = step.words[0].toInt();
  if (!action) return;
  ++running_;
  try {
    action();
  } catch (const std::exception& failure) {
    End(ScriptEnd::kFailed, where + QStringLiteral(": ") + QString::fromUtf8(failure.what()));
  }
  --running_;
  waiting_.restart();
}

void Player::Lose(const QString& what, const QString& reason) {
  if (waiting_.elapsed() < patience_) return;
  QString text = what + QStringLiteral(": ") + reason;
  if (QWidget* dialog = Operator::Dialog()) {
    text += QStringLiteral("; this dialog waits for an answer: ") +
            DialogText(dialog).replace(QLatin1Char('\n'), QLatin1String(" | "));
  }
  End(ScriptEnd::kFailed, text);
}

void Player::End(ScriptEnd end, const QString& reason) {
  ended_ = true;
  if (onEnd) onEnd(end, reason);
}

}  // namespace demohost
