#include "testing/xdotool.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QTest>

namespace tindra {

void xdotool(const QStringList& steps) {
  QProcess process;
  process.start(QStringLiteral("xdotool"), steps);
  process.waitForStarted();
  EXPECT_TRUE(QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 10000));
}

}  // namespace tindra
