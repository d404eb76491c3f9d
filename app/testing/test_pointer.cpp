#include "testing/test_pointer.h"

#include <gtest/gtest.h>

#include <QTest>

namespace tindra {

namespace {

const QString eventPrefix = QStringLiteral("event: ");

}  // namespace

TestPointer::TestPointer() {
  process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process_.start(QStringLiteral(TINDRA_TEST_POINTER), {});
  if (!process_.waitForStarted(5000)) ADD_FAILURE() << "tindra-test-pointer did not start";
}

TestPointer::~TestPointer() {
  if (!running()) return;
  process_.write("quit\n");
  if (!process_.waitForFinished(2000)) process_.kill();
}

bool TestPointer::send(const QString& command) {
  process_.write(command.toUtf8() + '\n');
  const QString answer = nextAnswer(5000);
  if (answer == QLatin1String("ok")) return true;
  ADD_FAILURE() << command.toStdString() << ": " << answer.toStdString();
  return false;
}

bool TestPointer::waitForEvent(const QString& event, int timeoutMs) {
  return QTest::qWaitFor(
      [&] {
        readLines();
        return events_.contains(event);
      },
      timeoutMs);
}

QString TestPointer::nextAnswer(int timeoutMs) {
  const bool answered = QTest::qWaitFor(
      [&] {
        readLines();
        return !lines_.isEmpty() || !running();
      },
      timeoutMs);
  return !answered || lines_.isEmpty() ? QStringLiteral("no answer") : lines_.takeFirst();
}

void TestPointer::readLines() {
  while (process_.canReadLine()) {
    const QString line = QString::fromUtf8(process_.readLine()).trimmed();
    if (line.startsWith(eventPrefix)) {
      events_.push_back(line.mid(eventPrefix.size()));
    } else {
      lines_.push_back(line);
    }
  }
}

}  // namespace tindra
