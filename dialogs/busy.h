// The busy display: a small form without a border and without controls, which moves while the user-interface
// thread blocks in a call of the host.
#pragma once

class TForm;

/// Covers one exchange of a form with the bank. There is one for each class of form: the class name is the
/// key, so a second form of the class replaces the first one's display.
///
/// Both displays keep to this:
/// 1. User-interface thread only. Each Show ends with its Hide; a Hide without a form does nothing.
/// 2. Show and Hide process messages once. While a form is shown the whole process accepts no clicks and keys:
///    what the user pressed meanwhile on the module or on the host is discarded by Hide before the form
///    closes, not delivered later.
/// 3. The thread that keeps the picture moving touches pictures only and has ended when Hide returns.
void ShowBar(TForm* owner);
void HideBar(TForm* owner);

/// Covers a wait of the module itself; there is one. The owner may be null.
void ShowWait(TForm* owner);
void HideWait();
