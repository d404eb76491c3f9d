#include "diagnostics/stall_report.h"

#include <QCoreApplication>
#include <QTimer>
#include <chrono>
#include <cstdio>

namespace tindra {

void reportStallsIfAsked() {
  if (!qEnvironmentVariableIsSet("TINDRA_MEASURE_STALLS")) return;
  using Clock = std::chrono::steady_clock;
  struct Heartbeat {
    Clock::time_point due = Clock::now();
    Clock::time_point secondEnds = Clock::now() + std::chrono::seconds(1);
    Clock::duration worst{};
  };
  auto* beat = new QTimer(QCoreApplication::instance());  // lives as long as the program
  beat->setTimerType(Qt::PreciseTimer);
  beat->setInterval(1);
  auto state = std::make_shared<Heartbeat>();
  QObject::connect(beat, &QTimer::timeout, beat, [state] {
    const Clock::time_point now = Clock::now();
    state->worst = std::max(state->worst, now - state->due);
    state->due = now + std::chrono::milliseconds(1);
    if (now < state->secondEnds) return;
    std::printf("longest stall: %.2f ms\n",
                std::chrono::duration<double, std::milli>(state->worst).count());
    std::fflush(stdout);
    state->worst = {};
    state->secondEnds = now + std::chrono::seconds(1);
  });
  beat->start();
}

}  // namespace tindra
