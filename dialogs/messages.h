// All that the module says to the user. Texts are passed in ready-made (dialogs/message_keys.h has their
// keys); each call blocks until the user has closed the form. The owner may be null: the form then belongs to
// the host's main window. User-interface thread only.
#pragma once

#include <string>

#include "data/corvane.h"

class TForm;

/// Shows an information or a warning.
void ShowInfoMsg(const std::string& text, TForm* owner);
void ShowWarnMsg(const std::string& text, TForm* owner);

/// Asks a question; true only if the user answered yes.
bool ShowConfirmMsg(const std::string& text, TForm* owner);

/// Shows a failure: the last line of the text (lines separated by "\r\n", escaped as in StringVector) as
/// summary, all lines in a pane that the user can open and copy.
void ShowErrorMsg(const std::string& text, TForm* owner);

/// The standard reporting of a failure: its keys, joined with "\r\n", become a message of the host's error
/// library, which is shown as a failure. A failing look-up propagates, and the first failure is lost.
void ReportException(const corvane::TException& failure, TForm* owner = nullptr);
