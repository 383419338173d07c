#include "toolkit/input_limits.h"

#include <algorithm>

#include "toolkit/text.h"

namespace {

// The part of a text that a step changed: [begin, end) in the new text, the same to its left and right.
struct TChange {
  qsizetype begin;
  qsizetype end;
};

TChange ChangedPart(const QString& before, const QString& after, qsizetype cursor) {
  qsizetype tail = after.size() - std::clamp<qsizetype>(cursor, 0, after.size());
  if (!before.endsWith(QStringView(after).last(tail))) {
    tail = 0;
    const qsizetype max = std::min(before.size(), after.size());
    while (tail < max && before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) ++tail;
  }
  const qsizetype max = std::min(before.size(), after.size()) - tail;
  qsizetype head = 0;
  while (head < max && before[head] == after[head]) ++head;
  if (head > 0 && after[head - 1].isHighSurrogate()) --head;
  if (tail > 0 && after[after.size() - tail].isLowSurrogate()) --tail;
  return {head, after.size() - tail};
}

bool LetsIn(const TInputLimits& limits, const QString& character, const std::string& narrow) {
  if (character == QLatin1String("\n")) return limits.multiLine;
  if (character.at(0).category() == QChar::Other_Control) return false;
  if (character.at(0) == QChar::LineSeparator || character.at(0) == QChar::ParagraphSeparator) return false;
  if (narrow == "?" && character != QLatin1String("?")) return false;
  return !limits.allows || limits.allows(narrow);
}

bool Accepts(const TInputLimits& limits, const QString& text) {
  return !limits.accepts || limits.accepts(FromQt(text));
}

}  // namespace

int NarrowLength(const QString& text) {
  return static_cast<int>(FromQt(text).size() + static_cast<std::size_t>(text.count(QLatin1Char('\n'))));
}

int CharacterCount(const QString& text) {
  const auto lowSurrogate = [](QChar c) { return c.isLowSurrogate(); };
  return static_cast<int>(text.size() + text.count(QLatin1Char('\n')) -
                          std::count_if(text.begin(), text.end(), lowSurrogate));
}

QString LimitInput(const TInputLimits& limits, const QString& before, const QString& after, int& cursor) {
  const TChange change = ChangedPart(before, after, cursor);
  const QString head = after.first(change.begin);
  const QString tail = after.sliced(change.end);
  int length = NarrowLength(head) + NarrowLength(tail);
  int count = CharacterCount(head) + CharacterCount(tail);
  QString kept;
  for (qsizetype at = change.begin; at < change.end;) {
    const qsizetype size = after[at].isHighSurrogate() && at + 1 < change.end ? 2 : 1;
    const QString character = after.sliced(at, size);
    at += size;
    const std::string narrow = FromQt(character);
    if (!LetsIn(limits, character, narrow)) continue;
    const int bytes = NarrowLength(character);
    const int characters = CharacterCount(character);
    if (limits.maxLength > 0 && length + bytes > limits.maxLength) break;
    if (limits.maxCharacters > 0 && count + characters > limits.maxCharacters) break;
    if (!Accepts(limits, head + kept + character + tail)) continue;
    kept += character;
    length += bytes;
    count += characters;
  }
  QString result = head + kept + tail;
  if (!Accepts(limits, result) && Accepts(limits, before)) return before;
  cursor = static_cast<int>(head.size() + kept.size());
  return result;
}
