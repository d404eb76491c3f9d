// PlasmaWindowVisibilitySource: the other programs' windows as KWin lists them to Plasma's own
// panels through org_kde_plasma_window_management: each window's application id, whether it is
// active, full screen or minimised, and its frame. The list comes on Tindra's own Wayland
// connection as it changes; nothing is polled.
#pragma once

#include <map>
#include <memory>

#include "visibility/linux/toplevel_windows.h"
#include "visibility/visibility_source.h"

struct org_kde_plasma_window_management;
struct org_kde_plasma_window;
struct org_kde_plasma_window_management_listener;
struct org_kde_plasma_window_listener;

namespace tindra {

class WaylandConnection;

class PlasmaWindowVisibilitySource final : public VisibilitySource {
  Q_OBJECT

 public:
  // Null when the compositor offers no Plasma window management (any but KWin).
  static std::unique_ptr<PlasmaWindowVisibilitySource> make(
      std::shared_ptr<WaylandConnection> connection, ToplevelGameTest isGame);
  ~PlasmaWindowVisibilitySource() override;

  void start() override;

 private:
  PlasmaWindowVisibilitySource(std::shared_ptr<WaylandConnection> connection,
                               org_kde_plasma_window_management* management,
                               ToplevelGameTest isGame);
  void add(std::uint32_t id);
  void remove(org_kde_plasma_window* window);
  ToplevelWindow* find(org_kde_plasma_window* window);
  void publishWindows();

  static const org_kde_plasma_window_management_listener managementListener;
  static const org_kde_plasma_window_listener windowListener;

  std::shared_ptr<WaylandConnection> connection_;
  org_kde_plasma_window_management* management_;
  ToplevelGameTest isGame_;
  std::map<org_kde_plasma_window*, ToplevelWindow> windows_;
};

}  // namespace tindra
