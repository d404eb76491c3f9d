// WlrToplevelVisibilitySource: the other programs' windows as a wlroots compositor (sway, labwc,
// river, Wayfire, Hyprland…) lists them through wlr-foreign-toplevel-management: each window's
// application id, whether it is active, full screen or minimised, and the outputs it is on. The
// list comes on Tindra's own Wayland connection as it changes; nothing is polled.
#pragma once

#include <map>
#include <memory>

#include "visibility/linux/toplevel_windows.h"
#include "visibility/visibility_source.h"

struct wl_output;
struct zwlr_foreign_toplevel_manager_v1;
struct zwlr_foreign_toplevel_handle_v1;
struct zwlr_foreign_toplevel_manager_v1_listener;
struct zwlr_foreign_toplevel_handle_v1_listener;

namespace tindra {

class WaylandConnection;

class WlrToplevelVisibilitySource final : public VisibilitySource {
  Q_OBJECT

 public:
  // Null when the compositor offers no foreign-toplevel list.
  static std::unique_ptr<WlrToplevelVisibilitySource> make(
      std::shared_ptr<WaylandConnection> connection, ToplevelGameTest isGame);
  ~WlrToplevelVisibilitySource() override;

  void start() override;

 private:
  struct Handle {
    ToplevelWindow shown;    // as of the last done
    ToplevelWindow pending;  // gathered until the next done
    std::vector<wl_output*> outputs;
  };

  WlrToplevelVisibilitySource(std::shared_ptr<WaylandConnection> connection,
                              zwlr_foreign_toplevel_manager_v1* manager, ToplevelGameTest isGame);
  void add(zwlr_foreign_toplevel_handle_v1* handle);
  void remove(zwlr_foreign_toplevel_handle_v1* handle);
  void done(zwlr_foreign_toplevel_handle_v1* handle);
  Handle* find(zwlr_foreign_toplevel_handle_v1* handle);
  void publishWindows();

  static const zwlr_foreign_toplevel_manager_v1_listener managerListener;
  static const zwlr_foreign_toplevel_handle_v1_listener handleListener;

  std::shared_ptr<WaylandConnection> connection_;
  zwlr_foreign_toplevel_manager_v1* manager_;
  ToplevelGameTest isGame_;
  std::map<zwlr_foreign_toplevel_handle_v1*, Handle> handles_;
};

}  // namespace tindra
