// diagnosticsReport: what a person pastes into a bug report: Tindra's version, the system, the
// session (desktop, X11 or Wayland, Qt's platform, the displays) and the whole diagnostics log.
// Nothing in it names the user's files, events or messages.
#pragma once

#include <QString>

namespace tindra {

class DiagnosticsLog;

QString diagnosticsReport(const DiagnosticsLog& log);

}  // namespace tindra
