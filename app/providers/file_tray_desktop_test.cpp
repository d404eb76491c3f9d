// Files dragged onto the notch on a real X server (Xvfb), with the real pointer driven through
// XTest by xdotool and Qt's own XDND on both sides.
#include <gtest/gtest.h>

#include <QDrag>
#include <QFile>
#include <QMimeData>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include "notch/notch_screen_manager.h"
#include "notch/notch_window.h"
#include "providers/file_tray_provider.h"
#include "settings/settings_keys.h"
#include "tindra_app.h"

namespace tindra {
namespace {

// A window that starts dragging a file when pressed, as a file manager does.
class DragSource : public QWidget {
 public:
  explicit DragSource(QUrl file) : file_(std::move(file)) {}

 protected:
  void mousePressEvent(QMouseEvent*) override {
    auto* drag = new QDrag(this);
    auto* data = new QMimeData;
    data->setUrls({file_});
    drag->setMimeData(data);
    drag->exec(Qt::CopyAction);
  }

 private:
  QUrl file_;
};

// A file dragged from another window with the real pointer (XTest) and dropped on the notch goes
// into the tray.
TEST(FileTrayDesktopTest, AFileDraggedOntoTheNotchLandsInTheTray) {
  TindraApp app({.animated = false});
  ASSERT_TRUE(app.settings().write(settings::experimentalFileTray, true));
  QTemporaryDir folder;
  QFile dropped(folder.filePath("dropped.txt"));
  ASSERT_TRUE(dropped.open(QIODevice::WriteOnly));
  dropped.close();
  DragSource source(QUrl::fromLocalFile(dropped.fileName()));
  source.setGeometry(300, 400, 200, 200);
  source.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&source));
  NotchWindow& notch = *app.notches().windows().front();
  const QPoint target = notch.geometry().topLeft() + notch.notchRect().center().toPoint();

  QProcess pointer;
  pointer.start(QStringLiteral("xdotool"), {"mousemove",
                                            "400",
                                            "500",
                                            "mousedown",
                                            "1",
                                            "sleep",
                                            "0.3",
                                            "mousemove",
                                            "700",
                                            "300",
                                            "sleep",
                                            "0.3",
                                            "mousemove",
                                            QString::number(target.x()),
                                            QString::number(target.y() + 2),
                                            "sleep",
                                            "0.5",
                                            "mousemove",
                                            QString::number(target.x() + 3),
                                            QString::number(target.y() + 4),
                                            "sleep",
                                            "0.5",
                                            "mouseup",
                                            "1"});
  ASSERT_TRUE(QTest::qWaitFor([&] { return app.fileTray().tray().items().size() == 1; }, 10000));
  EXPECT_EQ(app.fileTray().tray().items()[0].path, dropped.fileName().toStdString());
  pointer.waitForFinished();
}

}  // namespace
}  // namespace tindra
