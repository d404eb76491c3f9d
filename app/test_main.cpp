// The app tests need a QApplication (windows, widgets, the tray) around GoogleTest.
#include <gtest/gtest.h>

#include <QApplication>
#include <QQuickWindow>

int main(int argc, char* argv[]) {
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
