#include "demohost/options.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QStandardPaths>

#include "demohost/texts.h"

namespace demohost {
namespace {

// How the check starts the process of a case.
QCommandLineOption CheckFolder() {
  QCommandLineOption option("check-folder", {}, "folder");
  option.setFlags(QCommandLineOption::HiddenFromHelp);
  return option;
}

const QList<QCommandLineOption>& Known() {
  static const QList<QCommandLineOption> kKnown = {
      {"script", "Play an operator's script; - reads it from the standard input.", "file"},
      {"patience", "How long a step of a script may wait, milliseconds (5000).", "ms"},
      {"open", "Open the screen of a menu item at start.", "item"},
      {"module", "The module to load (NorvikQry.so beside this program, else the installed one).", "file"},
      {"share", "The folder of texts, tables and skins.", "folder"},
      {"data", "The folder of the bank, pictures and printed reports.", "folder"},
      {"config", "The folder of layouts and settings.", "folder"},
      {"desktop", "The folder that shortcuts go to.", "folder"},
      {"bills", "How many bills the bank has (10000), 0 to 5000000.", "count"},
      {"today", "The bank's day (20260615).", "yyyymmdd"},
      {"delay", "How long the bank takes for an exchange, milliseconds (0).", "ms"},
      {"directory-delay", "How much longer the bank directory takes to fill, milliseconds (0).", "ms"},
      {"language", "The language of this run: \"Simplified Chinese\", \"Traditional Chinese\" or English.",
       "name"},
      {"check", "Check a module against the contract with a host, instead of running a client.", "module"},
      {"case", "The only case of the check to play.", "name"},
      {"limit", "How long a case of the check may take, seconds (20).", "s"},
      CheckFolder(),
      {{"h", "help"}, "Show this help."},
      {{"v", "version"}, "Show the version."},
  };
  return kKnown;
}

std::filesystem::path PathOf(const QString& path) {
  return path.toStdString();
}

// The option's folder or file, else the other.
std::filesystem::path PathOr(const QCommandLineParser& parser, const char* option, const QString& other) {
  return PathOf(QFileInfo(parser.isSet(option) ? parser.value(option) : other).absoluteFilePath());
}

QString UserFolder(QStandardPaths::StandardLocation location) {
  return QStandardPaths::writableLocation(location) + QStringLiteral("/norvik-demohost");
}

std::int64_t NumberOr(const QCommandLineParser& parser, const char* option, std::int64_t other,
                      std::int64_t max) {
  if (!parser.isSet(option)) return other;
  bool good = false;
  const qlonglong number = parser.value(option).toLongLong(&good);
  if (!good || number < 0 || number > max) {
    throw OptionError(
        QStringLiteral("--%1 takes a number from 0 to %2").arg(QLatin1String(option)).arg(max).toStdString());
  }
  return number;
}

int MillisecondsOr(const QCommandLineParser& parser, const char* option, int other) {
  return static_cast<int>(NumberOr(parser, option, other, 600000));
}

// Beside the program, as in the folder of a build, else in the folder for plug-ins.
QString ModuleFile(const QString& folder) {
  const QString beside = folder + QStringLiteral("/NorvikQry.so");
  return QFileInfo::exists(beside) ? beside
                                   : folder + QStringLiteral("/" NORVIK_PLUGIN_FOLDER "/NorvikQry.so");
}

}  // namespace

std::optional<Options> ParseOptions(const QStringList& arguments, QString& message) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      "A demonstration client that runs a business module against an embedded bank.");
  parser.addOptions(Known());
  if (!parser.parse(arguments)) throw OptionError(parser.errorText().toStdString());
  if (parser.isSet("help")) {
    message = parser.helpText().replace(QLatin1String("<executable_name>"), QLatin1String("demohost"));
    return std::nullopt;
  }
  if (parser.isSet("version")) {
    message = QStringLiteral("demohost " NORVIK_VERSION "\n");
    return std::nullopt;
  }
  if (!parser.positionalArguments().isEmpty()) {
    throw OptionError("what is \"" + parser.positionalArguments().first().toStdString() + "\"?");
  }
  const QFileInfo program(QFileInfo(arguments.value(0)).canonicalFilePath());
  const QString folder = program.absolutePath();
  Options options;
  options.program = PathOf(program.absoluteFilePath());
  options.module = PathOr(parser, "module", ModuleFile(folder));
  options.share = PathOr(parser, "share", folder + QStringLiteral("/" NORVIK_SHARE_FOLDER));
  options.data = PathOr(parser, "data", UserFolder(QStandardPaths::GenericDataLocation));
  options.config = PathOr(parser, "config", UserFolder(QStandardPaths::GenericConfigLocation));
  options.desktop =
      PathOr(parser, "desktop", QStandardPaths::writableLocation(QStandardPaths::DesktopLocation));
  options.bills = NumberOr(parser, "bills", options.bills, 5000000);
  options.delay = MillisecondsOr(parser, "delay", 0);
  options.directoryDelay = MillisecondsOr(parser, "directory-delay", 0);
  options.patience = MillisecondsOr(parser, "patience", options.patience);
  if (parser.isSet("check")) options.check = PathOr(parser, "check", {});
  options.checkCase = parser.value("case").toStdString();
  options.checkLimit = static_cast<int>(NumberOr(parser, "limit", options.checkLimit, 3600));
  options.checkFolder = PathOf(parser.value("check-folder"));
  options.script = parser.value("script");
  options.open = parser.value("open").toStdString();
  options.language = parser.value("language").toStdString();
  if (!options.language.empty() && !IsLanguage(options.language)) {
    throw OptionError("--language: there is no \"" + options.language + "\"");
  }
  if (parser.isSet("today")) {
    const auto day = DayOf(parser.value("today").toStdString());
    if (!day) throw OptionError("--today takes a date, yyyymmdd");
    options.today = *day;
  }
  return options;
}

}  // namespace demohost
