// The app tests need a QApplication (windows, widgets, the tray) around GoogleTest.
#include <gtest/gtest.h>

#include <QApplication>
#include <QQuickWindow>
#include <vector>

int main(int argc, char* argv[]) {
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  // Under a Wayland compositor the tests drive the program under test, which inherits the
  // session's platform; they draw nothing themselves, and Qt 6.4's Wayland platform leaves some
  // of its protocol objects unfreed at exit, which LeakSanitizer would count against the test.
  std::vector<char*> arguments(argv, argv + argc);
  char platform[] = "-platform";
  char offscreen[] = "offscreen";
  if (qEnvironmentVariable("QT_QPA_PLATFORM") == QLatin1String("wayland")) {
    arguments.insert(arguments.begin() + 1, {platform, offscreen});
  }
  int count = static_cast<int>(arguments.size());
  // GoogleTest moves the list's end marker along when it takes its flags out.
  arguments.push_back(nullptr);
  QApplication app(count, arguments.data());
  QApplication::setQuitOnLastWindowClosed(false);
  ::testing::InitGoogleTest(&count, arguments.data());
  return RUN_ALL_TESTS();
}
