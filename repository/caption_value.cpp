#include "repository/caption_value.h"

#include <string>

#include "toolkit/form.h"
#include "toolkit/labels.h"
#include "toolkit/layout.h"
#include "toolkit/text.h"

namespace norvik {

CaptionValue PutCaptionValue(TForm* form, TGridLayout& grid, int row, int column, const char* name,
                             const char* designCaption) {
  auto* caption = NewComponent<TLabel>(form, name);
  auto* value = NewComponent<TLabel>(form, (std::string(name) + "Val").c_str());
  caption->SetCaption(Ansi(designCaption));
  value->SetWordWrap(true);
  value->SetSelectable(true);
  grid.Put(caption, row, column, 1, 1, caRight);
  grid.Put(value, row, column + 1);
  return {caption, value};
}

}  // namespace norvik
