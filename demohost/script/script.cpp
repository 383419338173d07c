#include "demohost/script/script.h"

#include <QHash>
#include <limits>

namespace demohost {
namespace {

constexpr int kAny = std::numeric_limits<int>::max();

struct CommandRule {
  int minWords, maxWords;
  const char* usage;
};

const QHash<QString, CommandRule>& Commands() {
  static const QHash<QString, CommandRule> kCommands = {
      {"pick", {1, 1, "pick ITEM"}},
      {"window", {1, 1, "window CLASS"}},
      {"set", {1, 2, "set CONTROL [TEXT]"}},
      {"select", {2, kAny, "select CONTROL CHOICE..."}},
      {"tick", {1, 2, "tick ROWS|all|none [LIST]"}},
      {"row", {1, 2, "row NUMBER [LIST]"}},
      {"press", {1, 1, "press BUTTON"}},
      {"start", {1, 1, "start ACTION"}},
      {"menu", {1, 1, "menu ENTRY"}},
      {"key", {1, 1, "key KEYS"}},
      {"type", {1, 1, "type TEXT"}},
      {"answer", {0, 2, "answer [BUTTON] [TEXT]"}},
      {"choose", {1, 1, "choose FILE"}},
      {"export", {1, 1, "export FILE"}},
      {"expect", {2, 3, "expect KIND WHAT [TEXT]"}},
      {"wait", {1, 1, "wait MILLISECONDS"}},
      {"patience", {1, 1, "patience MILLISECONDS"}},
      {"picture", {1, 2, "picture FILE [CONTROL]"}},
      {"print", {0, 2, "print [LIST] [ROWS]"}},
      {"say", {1, 1, "say TEXT"}},
      {"close", {0, 0, "close"}},
      {"language", {1, 1, "language NAME"}},
      {"font", {2, 2, "font NAME SIZE"}},
      {"remove", {1, 1, "remove FILE"}},
      {"end", {0, 0, "end"}},
      {"fail", {1, 2, "fail exchange|row|text|entry|images|none [KEY]"}},
  };
  return kCommands;
}

const QHash<QString, CommandRule>& Expectations() {
  static const QHash<QString, CommandRule> kExpectations = {
      {"dialog", {1, 1, "expect dialog TEXT|none"}},
      {"title", {1, 1, "expect title TEXT"}},
      {"text", {2, 2, "expect text CONTROL TEXT"}},
      {"rows", {1, 2, "expect rows [>|<]COUNT [LIST]"}},
      {"ticked", {1, 2, "expect ticked COUNT [LIST]"}},
      {"cell", {2, 2, "expect cell ROW:CAPTION TEXT"}},
      {"enabled", {1, 1, "expect enabled CONTROL"}},
      {"disabled", {1, 1, "expect disabled CONTROL"}},
      {"visible", {1, 1, "expect visible CONTROL"}},
      {"hidden", {1, 1, "expect hidden CONTROL"}},
      {"checked", {1, 1, "expect checked CONTROL"}},
      {"unchecked", {1, 1, "expect unchecked CONTROL"}},
      {"file", {1, 1, "expect file FILE"}},
      {"column", {2, 2, "expect column CAPTION shown|hidden"}},
      {"focus", {1, 1, "expect focus CONTROL"}},
  };
  return kExpectations;
}

[[noreturn]] void Fail(int line, const QString& reason) {
  throw ScriptError(QStringLiteral("line %1: %2").arg(line).arg(reason).toStdString());
}

// Reads the word in quotes whose opening quote is at `at`; afterwards `at` is the place after the closing
// one.
QString QuotedWord(const QString& text, qsizetype& at, int line) {
  QString word;
  for (++at; at < text.size(); ++at) {
    if (text[at] == QLatin1Char('"')) {
      ++at;
      return word;
    }
    if (text[at] != QLatin1Char('\\')) {
      word += text[at];
      continue;
    }
    const QChar escaped = ++at < text.size() ? text[at] : QChar();
    if (escaped == QLatin1Char('n')) {
      word += QLatin1Char('\n');
    } else if (escaped == QLatin1Char('"') || escaped == QLatin1Char('\\')) {
      word += escaped;
    } else {
      Fail(line, QStringLiteral("inside quotes a backslash stands before a quote, a backslash or an n"));
    }
  }
  Fail(line, QStringLiteral("the quote isn't closed"));
}

QStringList SplitLine(const QString& text, int line) {
  QStringList words;
  qsizetype at = 0;
  while (at < text.size()) {
    if (text[at].isSpace()) {
      ++at;
    } else if (text[at] == QLatin1Char('#')) {
      break;
    } else if (text[at] == QLatin1Char('"')) {
      words << QuotedWord(text, at, line);
    } else {
      const qsizetype start = at;
      while (at < text.size() && !text[at].isSpace()) ++at;
      words << text.mid(start, at - start);
    }
  }
  return words;
}

void CheckWords(const ScriptStep& step) {
  const auto found = Commands().constFind(step.command);
  if (found == Commands().constEnd())
    Fail(step.line, QStringLiteral("unknown command \"%1\"").arg(step.command));
  const auto check = [&step](const CommandRule& rule, qsizetype count) {
    if (count < rule.minWords || count > rule.maxWords) {
      Fail(step.line, QStringLiteral("expected: %1").arg(QLatin1String(rule.usage)));
    }
  };
  check(*found, step.words.size());
  if (step.command != QLatin1String("expect")) return;
  const auto expectation = Expectations().constFind(step.words[0]);
  if (expectation == Expectations().constEnd()) {
    Fail(step.line, QStringLiteral("unknown expectation \"%1\"").arg(step.words[0]));
  }
  check(*expectation, step.words.size() - 1);
}

bool IsRowList(const QString& text) {
  try {
    ParseNumbers(text);
    return true;
  } catch (const std::invalid_argument&) {
    return false;
  }
}

void CheckNumbers(const ScriptStep& step) {
  static const QStringList kCounted = {"wait", "patience", "row"};
  bool good = true;
  if (kCounted.contains(step.command)) {
    step.words[0].toUInt(&good);
  } else if (step.command == QLatin1String("font")) {
    good = step.words[1].toInt() > 0;
  } else if (step.command == QLatin1String("tick")) {
    good = step.words[0] == QLatin1String("all") || step.words[0] == QLatin1String("none") ||
           IsRowList(step.words[0]);
  }
  if (!good) Fail(step.line, QStringLiteral("a number is wrong"));
}

}  // namespace

std::vector<ScriptStep> ParseScript(const QString& text) {
  std::vector<ScriptStep> steps;
  const QStringList lines = text.split(QLatin1Char('\n'));
  for (int number = 1; number <= lines.size(); ++number) {
    QStringList words = SplitLine(lines[number - 1], number);
    if (words.isEmpty()) continue;
    ScriptStep step{number, lines[number - 1].trimmed(), words.takeFirst(), {}};
    step.words = std::move(words);
    CheckWords(step);
    CheckNumbers(step);
    if (step.command == QLatin1String("export")) {
      // An export is the action and the answer to its file dialog.
      steps.push_back({step.line, step.source, QStringLiteral("start"), {QStringLiteral("m_actOutput")}});
      step.command = QStringLiteral("choose");
    }
    steps.push_back(std::move(step));
  }
  return steps;
}

std::vector<int> ParseNumbers(const QString& text) {
  constexpr int kMaxRow = 10000000;
  std::vector<int> numbers;
  for (const QString& part : text.split(QLatin1Char(','))) {
    const QStringList ends = part.split(QLatin1Char('-'));
    bool firstGood = false;
    bool lastGood = false;
    const int first = ends.first().toInt(&firstGood);
    const int last = ends.last().toInt(&lastGood);
    if (!firstGood || !lastGood || ends.size() > 2 || first < 1 || last < first || last > kMaxRow) {
      throw std::invalid_argument("not row numbers");
    }
    for (int number = first; number <= last; ++number) numbers.push_back(number);
  }
  return numbers;
}

}  // namespace demohost
