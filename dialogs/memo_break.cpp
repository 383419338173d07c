#include "dialogs/memo_break.h"

#include "platform/code_page.h"

namespace norvik {

std::string BreakableMemo(const std::string& text) {
  constexpr std::size_t kLine = 78;
  std::string broken;
  std::size_t done = 0;
  while (text.size() - done > kLine) {
    const char last = text[done + kLine - 1];
    const char next = text[done + kLine];
    if (IsLeadByte(static_cast<unsigned char>(last)) || IsLeadByte(static_cast<unsigned char>(next))) break;
    const bool hasBlank = last == ' ' || next == ' ';
    const std::size_t taken = hasBlank ? kLine + 1 : kLine;
    broken.append(text, done, taken);
    if (!hasBlank) broken += ' ';
    done += taken;
  }
  return broken.append(text, done);
}

}  // namespace norvik
