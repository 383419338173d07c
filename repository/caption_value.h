// A value with its caption beside it. The record views and the heads of the enquiry dialogs place their
// fields with it; what the labels show is theirs.
#pragma once

class TForm;
class TGridLayout;
class TLabel;

namespace norvik {

/// The two labels; the form owns them.
struct CaptionValue {
  TLabel* caption;
  TLabel* value;
};

/// Makes the labels `name` and `name` + "Val", owned by the form, in two cells of a row, `column` and the
/// next; the caption shows the design caption (UTF-8), the value can be selected and copied.
CaptionValue PutCaptionValue(TForm* form, TGridLayout& grid, int row, int column, const char* name,
                             const char* designCaption);

}  // namespace norvik
