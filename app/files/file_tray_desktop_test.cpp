// Runs in: private-session --xvfb --window-manager
// Files dragged onto the notch on a real X server (Xvfb), with the real pointer driven through
// XTest by xdotool and Qt's own XDND on both sides.
#include <gtest/gtest.h>

#include <QDrag>
#include <QDragEnterEvent>
#include <QFile>
#include <QMimeData>
#include <QQuickItem>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include "files/file_tray_provider.h"
#include "notch/notch_screen_manager.h"
#include "notch/notch_window.h"
#include "settings/settings_keys.h"
#include "testing/xdotool.h"
#include "tindra_app.h"

namespace tindra {
namespace {

// A window that takes dropped files, as a file manager or a mail program does.
class DropTarget : public QWidget {
 public:
  DropTarget() { setAcceptDrops(true); }
  QList<QUrl> dropped;

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override { event->acceptProposedAction(); }
  void dragMoveEvent(QDragMoveEvent* event) override { event->acceptProposedAction(); }
  void dropEvent(QDropEvent* event) override {
    dropped = event->mimeData()->urls();
    event->acceptProposedAction();
  }
};

// The item called `name` among the visual descendants of `item`.
QQuickItem* findItem(QQuickItem* item, const QString& name) {
  if (item->objectName() == name) return item;
  for (QQuickItem* child : item->childItems()) {
    if (QQuickItem* found = findItem(child, name)) return found;
  }
  return nullptr;
}

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
// into the tray, and from the opened tray into another window.
TEST(FileTrayDesktopTest, FilesComeInByDragAndGoOutTheSameWay) {
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

  xdotool({"mousemove",
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
  ASSERT_TRUE(QTest::qWaitFor(
      [&] { return app.providers().get<FileTrayProvider>().tray().items().size() == 1; }, 10000));
  EXPECT_EQ(app.providers().get<FileTrayProvider>().tray().items()[0].path,
            dropped.fileName().toStdString());

  // And out again, from the opened notch to another application.
  DropTarget receiver;
  receiver.setGeometry(900, 500, 300, 200);
  receiver.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&receiver));
  QQuickItem* row = nullptr;
  xdotool({"mousemove", QString::number(target.x()), QString::number(target.y())});
  ASSERT_TRUE(QTest::qWaitFor(
      [&] {
        row = findItem(notch.contentItem(), QStringLiteral("trayItem:dropped.txt"));
        return notch.isExpanded() && row != nullptr && row->isVisible();
      },
      5000));
  QTest::qWait(300);  // the panel settles where it opens
  const QPoint from = row->mapToGlobal(QPointF(30, row->height() / 2)).toPoint();
  const QPoint to = receiver.geometry().center();
  xdotool({"mousemove",
           QString::number(from.x()),
           QString::number(from.y()),
           "sleep",
           "0.2",
           "mousedown",
           "1",
           "mousemove",
           QString::number(from.x() + 20),
           QString::number(from.y() + 20),
           "sleep",
           "0.2",
           "mousemove",
           QString::number(to.x()),
           QString::number(to.y()),
           "sleep",
           "0.3",
           "mousemove",
           QString::number(to.x() + 5),
           QString::number(to.y() + 5),
           "sleep",
           "0.3",
           "mouseup",
           "1"});
  ASSERT_TRUE(QTest::qWaitFor([&] { return !receiver.dropped.isEmpty(); }, 5000));
  EXPECT_EQ(receiver.dropped, QList<QUrl>{QUrl::fromLocalFile(dropped.fileName())});
  EXPECT_TRUE(QFile::exists(dropped.fileName()));  // handed out, not moved
}

}  // namespace
}  // namespace tindra
