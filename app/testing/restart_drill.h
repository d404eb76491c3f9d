// RestartDrill: a service killed again and again at random moments and brought back, for the
// recovery tests. After each return it times how long the app takes to show the service's state
// again; the worst of those times is what a user would wait after a crash.
#pragma once

#include <QString>

#include <chrono>
#include <functional>

namespace tindra {

struct RestartDrillSteps {
  // Ends the service abruptly (SIGKILL, as a crash would); false if it would not die.
  std::function<bool()> kill;
  // Brings the service back and waits until it is reachable (its bus name owned, its socket
  // answering); false if it did not come back.
  std::function<bool()> restart;
  // Whether the app shows the running service's state again; polled with the event loop running.
  std::function<bool()> rightState;
  // Optional: whether the app shows that the service is gone, checked while it is down.
  std::function<bool()> showsGone;
};

struct RestartDrillReport {
  int restarts = 0;
  std::chrono::milliseconds worst{0};
  // Empty when every restart reached the right state within the limit.
  QString failure;
};

// Runs `times` kills and restarts. Before each kill it waits a random 0 to 400 ms with the event
// loop running (so kills land while the app is idle and while it is still reading), and the
// service stays down a random 0 to 300 ms. `service` names the drill in its report line, printed
// as "restart drill: <service>: <n> restarts, worst <ms> ms" and appended to the file named by
// TINDRA_RESTART_REPORT when that is set.
RestartDrillReport runRestartDrill(const QString& service, const RestartDrillSteps& steps,
                                   int times = 20,
                                   std::chrono::milliseconds limit = std::chrono::seconds(2));

}  // namespace tindra
