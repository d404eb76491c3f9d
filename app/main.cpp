// Tindra: the notch as a small live display. `tindra` runs it; `tindra --demo DIR` plays a short
// tour and writes screenshots of the closed and opened notch to DIR; `tindra focus on|off` names
// the Focus that is on, and `tindra level volume up` and its kin step a level, for shortcuts and
// scripts.
#include <QApplication>
#include <QCommandLineParser>
#include <QDateTime>
#include <QDir>
#include <QLocale>
#include <QQuickWindow>
#include <QTextStream>
#include <QTranslator>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "base/heap_tuning.h"
#include "base/linux/idle_pages_release.h"
#include "base/termination_signals.h"
#include "demo_tour.h"
#include "diagnostics/first_frame_report.h"
#include "diagnostics/frame_swap_report.h"
#include "diagnostics/key_latency_report.h"
#include "diagnostics/notice_latency_report.h"
#include "diagnostics/stall_report.h"
#include "levels/level_command_source.h"
#include "notch/display_platform.h"
#include "notch/notch_screen_manager.h"
#include "notch/notch_window.h"
#include "settings/settings_store.h"
#include "shell/focus_command.h"
#include "tindra_app.h"

namespace {

int runFocusCommand(int argc, char* argv[]) {
  QCoreApplication app(argc, argv);
  QTextStream out(stdout);
  QTextStream err(stderr);
  const auto now = [] { return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000.0; };
  tindra::SettingsStore settings(tindra::SettingsStore::defaultFile(), now);
  return tindra::FocusCommand::run(QCoreApplication::arguments().mid(2), settings, now(), out, err);
}

// Steps a level in the running Tindra, for the desktop's key bindings; needs no display.
int runLevelCommand(int argc, char* argv[]) {
  QCoreApplication app(argc, argv);
  QTextStream err(stderr);
  const auto command = tindra::LevelCommand::parse(QCoreApplication::arguments().mid(2));
  if (!command) {
    err << command.error();
    return 2;
  }
  return tindra::LevelCommandSource::sendForPlatform(*command, err);
}

}  // namespace

int main(int argc, char* argv[]) {
  tindra::tuneHeapForLongRun();
  if (argc > 1 && std::string_view(argv[1]) == "focus") return runFocusCommand(argc, argv);
  if (argc > 1 && std::string_view(argv[1]) == "level") return runLevelCommand(argc, argv);
  tindra::selectDisplayPlatform();
  if (!tindra::hasGraphicalSession() && std::getenv("QT_QPA_PLATFORM") == nullptr) {
    std::fputs(
        "tindra: no graphical session (DISPLAY or WAYLAND_DISPLAY is not set); `make run` "
        "plays the demo on a virtual display\n",
        stderr);
    return 1;
  }
  // The notch is a few flat shapes and some text; the software renderer draws them with less
  // memory than a GL context costs and works on every X server, virtual ones included.
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Tindra"));
  QApplication::setOrganizationName(QStringLiteral("Brenvik"));
  QApplication::setQuitOnLastWindowClosed(false);
  // A logout sends SIGTERM: Tindra is taken down in order, its helpers with it. It leaves the
  // event loop without asking its windows to close first, as quit() would: a logout is nobody
  // dismissing the first start's introduction, and no window may hold it up.
  tindra::TerminationSignals terminationSignals;
  QObject::connect(&terminationSignals, &tindra::TerminationSignals::received, &app,
                   [] { QCoreApplication::exit(0); });
  // The desktop's language, where Tindra has it; English otherwise.
  QTranslator translator;
  if (translator.load(QLocale(), QStringLiteral("tindra"), QStringLiteral("_"),
                      QStringLiteral(":/i18n"))) {
    QApplication::installTranslator(&translator);
  }

  QCommandLineParser options;
  options.setApplicationDescription(QStringLiteral("The notch as a small live display."));
  options.addHelpOption();
  const QCommandLineOption demo(QStringLiteral("demo"),
                                QStringLiteral("Play a short tour and write screenshots to <dir>."),
                                QStringLiteral("dir"));
  options.addOption(demo);
  options.process(app);

  // The tour shows invented data only: every provider gets its fake backend unless the caller
  // chose which ones.
  if (options.isSet(demo) && !qEnvironmentVariableIsSet("TINDRA_FAKE")) {
    qputenv("TINDRA_FAKE", "all");
  }
  tindra::TindraApp tindra({.animated = true, .welcome = !options.isSet(demo)});
  tindra::reportFirstFrameIfAsked();
  tindra::reportFrameSwapsIfAsked();
  tindra::reportNoticeLatencyIfAsked(tindra.activities());
  tindra::reportStallsIfAsked();
  tindra::reportKeyLatencyIfAsked(*tindra.providers().get<tindra::HudProvider>().viewModel());
  if (!options.isSet(demo)) {
    // Most of the program's and the libraries' pages were touched only while starting, and
    // start-up's temporaries (compiling the QML, the first layout, the first readings) are freed
    // by then; once the notch has drawn and the providers have had their first answers, both go
    // back, and what an opened notch touched goes back after it has drawn nothing for a quarter
    // of an hour.
    tindra::IdlePagesRelease idlePages(std::chrono::seconds(10), std::chrono::minutes(15));
    idlePages.watchFrames();
    QObject::connect(&tindra.notches(), &tindra::NotchScreenManager::windowsChanged, &idlePages,
                     &tindra::IdlePagesRelease::watchFrames);
    // A notch that keeps drawing (a spectrum) never rests a quarter of an hour: what its QML scene
    // held and touched goes back as the scene is let go.
    const auto followScenes = [&tindra, &idlePages] {
      for (tindra::NotchWindow* window : tindra.notches().windows()) {
        QObject::disconnect(window, &tindra::NotchWindow::sceneReleased, &idlePages, nullptr);
        QObject::connect(window, &tindra::NotchWindow::sceneReleased, &idlePages,
                         &tindra::IdlePagesRelease::release);
      }
    };
    followScenes();
    QObject::connect(&tindra.notches(), &tindra::NotchScreenManager::windowsChanged, &idlePages,
                     followScenes);
    return QApplication::exec();
  }

  tindra::DemoTour tour(tindra, QDir(options.value(demo)));
  QObject::connect(&tour, &tindra::DemoTour::finished, &app, [](const QStringList& shots, bool ok) {
    QTextStream out(stdout);
    for (const QString& shot : shots) out << shot << '\n';
    out.flush();
    if (!ok) std::fputs("tindra: some screenshots could not be taken\n", stderr);
    QCoreApplication::exit(ok ? 0 : 1);
  });
  tour.start();
  return QApplication::exec();
}
