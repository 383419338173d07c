// A value with its caption beside it, as record views and heads show them.
#pragma once

class TForm;
class TGridLayout;
class TLabel;

namespace norvik {

struct CaptionValue {
  TLabel* caption;
  TLabel* value;
};

// Makes the labels `name` and `name` with "Val" behind it, owned by the form, in two cells of a row from
// `column` on; the caption shows the design caption (UTF-8), the value can be marked and copied.
CaptionValue PutCaptionValue(TForm* form, TGridLayout& grid, int row, int column, const char* name,
                             const char* designCaption);

}  // namespace norvik
