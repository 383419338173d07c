// The two forms of the busy display: one over an exchange, one over a wait of the module. dialogs/busy.h
// shows and hides them; nobody else does.
#pragma once

#include <QPointer>
#include <string>

#include "toolkit/animate.h"
#include "toolkit/busy_painter.h"
#include "toolkit/form.h"
#include "toolkit/panels.h"

/// What differs between the two busy forms.
struct TBusyDesign {
  const char* file;  ///< in the host's image directory
  TCommonAVI animation;
  int stopFrame;
  int width;
  int height;
  TPosition position;
};

/// A busy form. A missing or unreadable animation file leaves the built-in animation.
class TBusyForm : public TForm {
  Q_OBJECT

 public:
  void BuildControls() override;
  /// Reads the host's image directory, "ENV.IMAGES" of "ENVIRONMENT"; a failing read propagates.
  void Construct() override;
  /// Ends the thread that moves the picture.
  void FormDestroy() override;

  /// Shows the form over all others without waiting, has it painted, and starts its movement.
  void Begin();
  /// Discards what the user has pressed meanwhile and closes the form; the window that was active is active
  /// again.
  void End();

  TPanel* m_pnlmain = nullptr;
  TAnimate* m_amtmain = nullptr;
  std::string m_imagePath;  ///< the directory; from the show on the animation file

 protected:
  TBusyForm(TComponent* owner, const TBusyDesign& design) : TForm(owner), design_(design) {}

 private:
  void FormShow(TObject* sender);
  void StartPainter();

  const TBusyDesign& design_;
  TBusyPainter painter_;
  QPointer<QWidget> before_;  // the window that was active
};

/// The busy form over an exchange of a form.
class TBarForm : public TBusyForm {
  Q_OBJECT

 public:
  /// `key` is the class name of the form whose exchange is covered.
  TBarForm(TComponent* owner, std::string key);

  const std::string& Key() const { return key_; }

 private:
  std::string key_;
};

/// The busy form over a wait of the module.
class TWaitForm : public TBusyForm {
  Q_OBJECT

 public:
  explicit TWaitForm(TComponent* owner);
};
