// Runs in: private-session --xvfb
// The demo as `make run` plays it without a desktop: the built program, every backend invented,
// tours the notch on this session's display, exits 0 and names a screenshot of each step.
#include <gtest/gtest.h>

#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include "testing/picture_checks.h"

namespace tindra {
namespace {

TEST(DemoTour, PlaysToTheEndWithAPictureOfEachStep) {
  QTemporaryDir folder;
  QProcess demo;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.remove(QStringLiteral("TINDRA_FAKE"));  // so the demo invents everything
  demo.setProcessEnvironment(environment);
  demo.start(QStringLiteral(TINDRA_BINARY), {QStringLiteral("--demo"), folder.path()});
  ASSERT_TRUE(demo.waitForFinished(120'000));
  const std::string errors = demo.readAllStandardError().toStdString();
  ASSERT_EQ(demo.exitStatus(), QProcess::NormalExit) << errors;
  EXPECT_EQ(demo.exitCode(), 0) << errors;

  const QStringList shots =
      QString::fromUtf8(demo.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
  EXPECT_GE(shots.size(), 15);
  std::vector<QImage> pictures;
  for (const QString& shot : shots) {
    SCOPED_TRACE(shot.toStdString());
    EXPECT_EQ(QFileInfo(shot).absolutePath(), folder.path());
    const QImage picture(shot);
    ASSERT_FALSE(picture.isNull());
    // The black notch at the top in the middle, over the backdrop seen below its corners.
    const QRect middle(picture.width() / 4, 0, picture.width() / 2, 30);
    EXPECT_GT(countPixels(picture, near(Qt::black, 10), middle), 2000);
    EXPECT_TRUE(isDrawn(picture.pixelColor(0, picture.height() - 1)));
    EXPECT_TRUE(isDrawn(picture.pixelColor(picture.width() - 1, picture.height() - 1)));
    for (std::size_t i = 0; i < pictures.size(); ++i) {
      EXPECT_NE(picture, pictures[i])
          << "the same as " << shots.at(static_cast<qsizetype>(i)).toStdString();
    }
    pictures.push_back(picture);
  }
}

}  // namespace
}  // namespace tindra
