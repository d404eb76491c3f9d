#include "media/platform_adapter_launch.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>

namespace tindra {

AdapterLaunch platformAdapterLaunch() {
  const QString helper = QStringLiteral("tindra-mpris-adapter");
  const QString here = QCoreApplication::applicationDirPath();
  // Beside the program, in the build folder's tools, or where `cmake --install` puts it.
  for (const QString& candidate :
       {here + u'/' + helper, here + QStringLiteral("/../tools/") + helper,
        here + QStringLiteral("/../libexec/tindra/") + helper}) {
    if (QFileInfo(candidate).isExecutable()) {
      return AdapterLaunch::helperProgram(QFileInfo(candidate).canonicalFilePath().toStdString());
    }
  }
  const QString onPath = QStandardPaths::findExecutable(helper);
  return AdapterLaunch::helperProgram(
      (onPath.isEmpty() ? here + u'/' + helper : onPath).toStdString());
}

}  // namespace tindra
