#include <QApplication>
#include <QFile>
#include <QTextStream>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "demohost/check/check.h"
#include "demohost/client.h"
#include "demohost/script/player.h"
#include "demohost/text_file.h"

namespace {

using demohost::Client;
using demohost::Operator;
using demohost::Options;
using demohost::Player;
using demohost::ScriptEnd;

// The first is this program's own file, also where the shell has found it.
QStringList Arguments(int argc, char** argv) {
  QStringList arguments = {QString::fromStdString(std::filesystem::read_symlink("/proc/self/exe").string())};
  for (int at = 1; at < argc; ++at) arguments << QString::fromLocal8Bit(argv[at]);
  return arguments;
}

// Leaves out the warnings of the platform that draws into memory: it has one for each thing that only a real
// screen has.
void LogQuietly(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (text.startsWith(QLatin1String("This plugin does not support"))) return;
  std::cerr << text.toStdString() << std::endl;
  if (type == QtFatalMsg) std::abort();
}

// Without a display a script plays all the same, on Qt's platform that draws into memory, with a screen of a
// usual size.
void ChoosePlatform(const Options& options) {
  const bool display = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
  if (!options.script.isEmpty() && !display && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    const std::filesystem::path screen = options.data / "screen.json";
    demohost::ReplaceFile(screen,
                          R"({"windowFrameMargins": false, "screens": [{"name": "memory", "x": 0, "y": 0,
      "width": 1366, "height": 900, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    qputenv("QT_QPA_PLATFORM", QByteArray::fromStdString("offscreen:configfile=" + screen.string()));
    qInstallMessageHandler(&LogQuietly);
  }
}

std::vector<demohost::ScriptStep> ReadScript(const QString& name) {
  QFile file(name);
  const bool open =
      name == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
  if (!open) throw demohost::ScriptError(("can't read " + name).toStdString());
  return demohost::ParseScript(QString::fromUtf8(file.readAll()));
}

int Run(const Options& options, QApplication& application) {
  std::vector<demohost::ScriptStep> steps;
  if (!options.script.isEmpty()) steps = ReadScript(options.script);
  Client client(options);
  client.Show();
  if (!options.open.empty()) QTimer::singleShot(0, &application, [&] { client.Pick(options.open); });
  QTextStream out(stdout);
  Operator hand(client.ForOperator(), out);
  Player player(std::move(steps), hand);
  player.SetPatience(options.patience);
  player.onEnd = [](ScriptEnd end, const QString& reason) {
    if (!reason.isEmpty()) std::cerr << "demohost: " << reason.toStdString() << std::endl;
    QApplication::exit(static_cast<int>(end));
  };
  if (!options.script.isEmpty()) player.Start();
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  std::optional<Options> options;
  try {
    QString message;
    options = demohost::ParseOptions(Arguments(argc, argv), message);
    std::cout << message.toStdString();
    if (!options) return EXIT_SUCCESS;
    if (!options->check.empty()) {
      qInstallMessageHandler(&LogQuietly);
      return demohost::check::Run(*options);
    }
    ChoosePlatform(*options);
    // The options are this program's own; Qt gets none of them.
    int none = 1;
    QApplication application(none, argv);
    return Run(*options, application);
  } catch (const std::exception& failure) {
    std::cerr << "demohost: " << failure.what() << std::endl;
    return static_cast<int>(ScriptEnd::kWrong);
  }
}
