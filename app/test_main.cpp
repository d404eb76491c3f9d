// The app tests need a QApplication (windows, widgets, the tray) around GoogleTest.
#include <gtest/gtest.h>

#include <QApplication>
#include <QQuickWindow>

#include "notch/notch_shape_item.h"

int main(int argc, char* argv[]) {
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  tindra::NotchShapeItem::registerType();
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
