#include "testing/restart_drill.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <cstdio>
#include <optional>
#include <random>

namespace tindra {
namespace {

using std::chrono::milliseconds;

void runEventsFor(milliseconds time) {
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < time.count()) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    QTest::qSleep(5);
  }
}

// The time until `condition` holds, or nullopt after `limit`.
std::optional<milliseconds> timeUntil(const std::function<bool()>& condition, milliseconds limit) {
  QElapsedTimer clock;
  clock.start();
  if (!QTest::qWaitFor(condition, static_cast<int>(limit.count()))) return std::nullopt;
  return milliseconds(clock.elapsed());
}

void report(const QString& service, const RestartDrillReport& result) {
  const QString line = QStringLiteral("restart drill: %1: %2 restarts, worst %3 ms%4\n")
                           .arg(service)
                           .arg(result.restarts)
                           .arg(result.worst.count())
                           .arg(result.failure.isEmpty() ? QString() : " (" + result.failure + ")");
  std::fputs(line.toLocal8Bit().constData(), stdout);
  std::fflush(stdout);
  const QString path = qEnvironmentVariable("TINDRA_RESTART_REPORT");
  if (path.isEmpty()) return;
  QFile file(path);
  if (file.open(QIODevice::Append | QIODevice::Text)) file.write(line.toUtf8());
}

}  // namespace

RestartDrillReport runRestartDrill(const QString& service, const RestartDrillSteps& steps,
                                   int times, milliseconds limit) {
  std::random_device seedSource;
  const unsigned seed = seedSource();
  std::mt19937 random(seed);
  std::uniform_int_distribution<int> beforeKill(0, 400);
  std::uniform_int_distribution<int> downFor(0, 300);

  RestartDrillReport result;
  auto fail = [&](const QString& what) {
    result.failure = QStringLiteral("%1 on restart %2 of %3 (seed %4)")
                         .arg(what)
                         .arg(result.restarts + 1)
                         .arg(times)
                         .arg(seed);
    report(service, result);
    return result;
  };
  for (int round = 0; round < times; ++round) {
    runEventsFor(milliseconds(beforeKill(random)));
    if (!steps.kill()) return fail(QStringLiteral("the service would not die"));
    if (steps.showsGone && !timeUntil(steps.showsGone, limit))
      return fail(QStringLiteral("the app did not notice the service had gone"));
    runEventsFor(milliseconds(downFor(random)));
    if (!steps.restart()) return fail(QStringLiteral("the service did not come back"));
    const auto took = timeUntil(steps.rightState, limit);
    if (!took) return fail(QStringLiteral("the app did not show its state within the limit"));
    result.worst = std::max(result.worst, *took);
    ++result.restarts;
  }
  report(service, result);
  return result;
}

}  // namespace tindra
