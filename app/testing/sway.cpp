#include "testing/sway.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>

namespace tindra {

namespace {

constexpr int toolTimeoutMs = 10000;
constexpr int changeTimeoutMs = 5000;

struct ToolRun {
  bool finished = false;
  int exitCode = -1;
  QByteArray output;
  QByteArray errors;
};

// Waits with the event loop running: the test's own windows are clients of the same compositor,
// and sway may wait for them to answer before it carries a command out.
ToolRun runTool(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  ToolRun run;
  if (!process.waitForStarted()) {
    run.errors = process.errorString().toUtf8();
    return run;
  }
  run.finished =
      QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, toolTimeoutMs);
  if (!run.finished) {
    process.kill();
    process.waitForFinished();
  }
  run.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
  run.output = process.readAllStandardOutput();
  run.errors += process.readAllStandardError();
  return run;
}

bool succeeded(const ToolRun& run) {
  return run.finished && run.exitCode == 0;
}

bool checked(const QString& program, const QStringList& arguments, const ToolRun& run) {
  if (succeeded(run)) return true;
  ADD_FAILURE() << qPrintable(program) << ' ' << qPrintable(arguments.join(' '))
                << (run.finished ? " failed with exit code " + std::to_string(run.exitCode)
                                 : std::string(" did not finish"))
                << ": " << run.output.trimmed().constData() << ' '
                << run.errors.trimmed().constData();
  return false;
}

void collectWindows(const QJsonObject& node, std::vector<QJsonObject>& into) {
  // Views are the nodes with a client behind them; outputs and workspaces have no pid.
  if (node.contains(QStringLiteral("pid"))) into.push_back(node);
  for (const QString& key : {QStringLiteral("nodes"), QStringLiteral("floating_nodes")}) {
    for (const auto& child : node.value(key).toArray()) collectWindows(child.toObject(), into);
  }
}

bool hasName(const std::vector<SwayOutput>& outputs, const QString& name) {
  return std::ranges::any_of(outputs, [&](const SwayOutput& o) { return o.name == name; });
}

QString criteriaFor(const QString& appId) {
  return appId.isEmpty() ? QString() : QStringLiteral("[app_id=\"%1\"] ").arg(appId);
}

std::optional<QByteArray> swaymsg(const QStringList& arguments) {
  const QString program = QStringLiteral("swaymsg");
  const ToolRun run = runTool(program, arguments);
  if (!checked(program, arguments, run)) return std::nullopt;
  return run.output;
}

std::optional<QJsonDocument> get(const QString& type) {
  const auto answer = swaymsg({QStringLiteral("-t"), type, QStringLiteral("-r")});
  if (!answer) return std::nullopt;
  QJsonParseError error;
  QJsonDocument document = QJsonDocument::fromJson(*answer, &error);
  if (error.error != QJsonParseError::NoError) {
    ADD_FAILURE() << "swaymsg -t " << qPrintable(type) << " answered no JSON ("
                  << qPrintable(error.errorString()) << "): " << answer->constData();
    return std::nullopt;
  }
  return document;
}

}  // namespace

void PrintTo(const SwayOutput& output, std::ostream* out) {
  *out << output.name.toStdString() << ' ' << output.rect.width() << 'x' << output.rect.height()
       << " at " << output.rect.x() << ',' << output.rect.y();
}

QRect rectOf(const QJsonObject& node) {
  const QJsonObject rect = node.value(QStringLiteral("rect")).toObject();
  return {rect.value(QStringLiteral("x")).toInt(), rect.value(QStringLiteral("y")).toInt(),
          rect.value(QStringLiteral("width")).toInt(),
          rect.value(QStringLiteral("height")).toInt()};
}

Sway::Sway() {
  if (qEnvironmentVariableIsEmpty("SWAYSOCK")) return;
  const ToolRun run =
      runTool(QStringLiteral("swaymsg"),
              {QStringLiteral("-t"), QStringLiteral("get_version"), QStringLiteral("-r")});
  if (!succeeded(run)) return;
  const QJsonObject version = QJsonDocument::fromJson(run.output).object();
  major_ = version.value(QStringLiteral("major")).toInt();
  minor_ = version.value(QStringLiteral("minor")).toInt();
}

bool Sway::command(const QString& line) {
  return swaymsg({line}).has_value();
}

std::vector<SwayOutput> Sway::outputs() {
  std::vector<SwayOutput> outputs;
  const auto answer = get(QStringLiteral("get_outputs"));
  if (!answer) return outputs;
  for (const auto& value : answer->array()) {
    const QJsonObject output = value.toObject();
    if (!output.value(QStringLiteral("active")).toBool()) continue;
    outputs.push_back({output.value(QStringLiteral("name")).toString(), rectOf(output)});
  }
  return outputs;
}

std::optional<QString> Sway::createOutput() {
  const std::vector<SwayOutput> before = outputs();
  if (!command(QStringLiteral("create_output"))) return std::nullopt;
  std::optional<QString> added;
  const bool made = QTest::qWaitFor(
      [&] {
        for (const SwayOutput& output : outputs()) {
          if (!hasName(before, output.name)) added = output.name;
        }
        return added.has_value();
      },
      changeTimeoutMs);
  if (!made) ADD_FAILURE() << "sway made no new output";
  return added;
}

bool Sway::canUnplug() const {
  return major_ > 1 || (major_ == 1 && minor_ >= 8);
}

bool Sway::unplug(const QString& output) {
  if (!canUnplug()) {
    ADD_FAILURE() << "sway " << major_ << '.' << minor_ << " cannot remove an output";
    return false;
  }
  if (!command(QStringLiteral("output %1 unplug").arg(output))) return false;
  const bool gone = QTest::qWaitFor([&] { return !hasName(outputs(), output); }, changeTimeoutMs);
  if (!gone) ADD_FAILURE() << qPrintable(output) << " is still there after unplug";
  return gone;
}

bool Sway::movePointer(QPoint to) {
  return command(QStringLiteral("seat seat0 cursor set %1 %2").arg(to.x()).arg(to.y()));
}

bool Sway::pressButton(int button) {
  return command(QStringLiteral("seat seat0 cursor press button%1").arg(button));
}

bool Sway::releaseButton(int button) {
  return command(QStringLiteral("seat seat0 cursor release button%1").arg(button));
}

bool Sway::click(QPoint at, int button) {
  return movePointer(at) && pressButton(button) && releaseButton(button);
}

std::vector<QJsonObject> Sway::windows() {
  std::vector<QJsonObject> windows;
  if (const auto tree = get(QStringLiteral("get_tree"))) collectWindows(tree->object(), windows);
  return windows;
}

std::optional<QJsonObject> Sway::window(const QString& appId) {
  for (const QJsonObject& window : windows()) {
    if (window.value(QStringLiteral("app_id")).toString() == appId) return window;
  }
  return std::nullopt;
}

std::optional<QJsonObject> Sway::focusedWindow() {
  for (const QJsonObject& window : windows()) {
    if (window.value(QStringLiteral("focused")).toBool()) return window;
  }
  return std::nullopt;
}

bool Sway::startClient(const QString& commandLine, const QString& appId, int timeoutMs) {
  const auto count = [&] {
    return std::ranges::count_if(windows(), [&](const QJsonObject& window) {
      return window.value(QStringLiteral("app_id")).toString() == appId;
    });
  };
  const auto before = count();
  if (!command(QStringLiteral("exec ") + commandLine)) return false;
  const bool shown = QTest::qWaitFor([&] { return count() > before; }, timeoutMs);
  if (!shown) {
    ADD_FAILURE() << "no new window with app_id " << qPrintable(appId) << " within " << timeoutMs
                  << " ms of `" << qPrintable(commandLine) << '`';
  }
  return shown;
}

bool Sway::waitForFullScreen(bool on, const QString& appId) {
  return QTest::qWaitFor(
      [&] {
        const auto found = appId.isEmpty() ? focusedWindow() : window(appId);
        return found && (found->value(QStringLiteral("fullscreen_mode")).toInt() != 0) == on;
      },
      changeTimeoutMs);
}

bool Sway::setFullScreen(bool on, const QString& appId) {
  const QString state = on ? QStringLiteral("enable") : QStringLiteral("disable");
  if (!command(criteriaFor(appId) + QStringLiteral("fullscreen ") + state)) return false;
  const bool done = waitForFullScreen(on, appId);
  if (!done) {
    ADD_FAILURE() << "the window " << (appId.isEmpty() ? "with focus" : qPrintable(appId))
                  << " did not turn full screen " << (on ? "on" : "off");
  }
  return done;
}

QImage Sway::screenshot(const QString& output) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("shot.png"));
  const QString program = QStringLiteral("grim");
  const QStringList arguments{QStringLiteral("-o"), output, file};
  if (!checked(program, arguments, runTool(program, arguments))) return {};
  QImage shot(file);
  if (shot.isNull()) ADD_FAILURE() << "grim wrote no picture of " << qPrintable(output);
  return shot;
}

}  // namespace tindra
