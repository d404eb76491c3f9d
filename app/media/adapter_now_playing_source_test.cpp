#include "media/adapter_now_playing_source.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

namespace tindra {
namespace {

using Update = std::optional<NowPlayingSnapshot>;

QByteArray line(const char* title, bool playing = true) {
  return QByteArray(R"({"type":"data","payload":{"title":")") + title + R"(","playing":)" +
         (playing ? "true" : "false") + "}}";
}

// Each test writes the adapter it needs as a shell script; AdapterLaunch runs it with /bin/sh.
class AdapterNowPlayingSourceTest : public ::testing::Test {
 protected:
  AdapterLaunch adapter(const QByteArray& script) {
    const QString path = dir_.filePath(QStringLiteral("adapter%1.sh").arg(++scripts_));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(script);
    return {"/bin/sh", {path.toStdString()}, {path.toStdString()}, {path.toStdString()}, ""};
  }
  static QString titleAt(const QSignalSpy& spy, qsizetype index) {
    const auto update = spy.at(index).at(0).value<Update>();
    return update ? QString::fromStdString(update->title) : QStringLiteral("(nothing)");
  }

  QTemporaryDir dir_;
  int scripts_ = 0;
};

TEST_F(AdapterNowPlayingSourceTest, PassesOnChangesInOrderAndSurvivesGarbageAndHugeLines) {
  const QByteArray script = "echo '" + line("A") + "'\necho '" + line("A") +
                            "'\necho 'not json'\necho '[]'\n"
                            "head -c 17000000 /dev/zero | tr '\\0' x; echo\n"
                            "echo '" +
                            line("B", false) +
                            "'\n"
                            "echo '{\"type\":\"data\",\"payload\":{}}'\nexec sleep 30\n";
  AdapterNowPlayingSource source(adapter(script));
  QSignalSpy updates(&source, &NowPlayingSource::snapshotArrived);
  source.start();
  ASSERT_TRUE(QTest::qWaitFor([&] { return updates.count() >= 3; }, 10000));
  QTest::qWait(50);
  ASSERT_EQ(updates.count(), 3);  // the repeated A is dropped
  EXPECT_EQ(titleAt(updates, 0), "A");
  EXPECT_EQ(titleAt(updates, 1), "B");
  EXPECT_EQ(titleAt(updates, 2), "(nothing)");
  EXPECT_TRUE(source.isActive());
  EXPECT_FALSE(source.pendingRestartMilliseconds());
}

TEST_F(AdapterNowPlayingSourceTest, OnlyTheNewestFourWaitingUpdatesAreDelivered) {
  QByteArray script = "for i in 0 1 2 3 4 5 6 7 8 9; do echo '";
  script += line("TITLE").replace("TITLE", "'$i'") + "'; done\nexec sleep 30\n";
  AdapterNowPlayingSource source(adapter(script));
  QSignalSpy updates(&source, &NowPlayingSource::snapshotArrived);
  source.start();
  QThread::msleep(1500);  // the main thread is busy while the stream is read
  ASSERT_TRUE(QTest::qWaitFor([&] { return updates.count() > 0; }, 5000));
  QTest::qWait(50);
  ASSERT_EQ(updates.count(), 4);
  EXPECT_EQ(titleAt(updates, 0), "6");
  EXPECT_EQ(titleAt(updates, 3), "9");
}

TEST_F(AdapterNowPlayingSourceTest, RestartsWithBackOffAndAsksForARetestAfterRepeatedFailures) {
  AdapterNowPlayingSource source(adapter("echo '" + line("A") + "'; exit 3\n"),
                                 RestartBackoff(0.05, 0.4, 30, 3));
  QSignalSpy updates(&source, &NowPlayingSource::snapshotArrived);
  QSignalSpy retests(&source, &NowPlayingSource::repeatedFailure);
  source.start();
  ASSERT_TRUE(QTest::qWaitFor([&] { return source.pendingRestartMilliseconds().has_value(); }));
  EXPECT_EQ(source.pendingRestartMilliseconds(), 50);
  ASSERT_TRUE(retests.wait(5000));
  EXPECT_EQ(source.pendingRestartMilliseconds(), 200);  // 50, 100, 200
  EXPECT_GE(updates.count(), 3);                        // every fresh child reports its track again
  for (qsizetype i = 0; i < updates.count(); ++i) EXPECT_EQ(titleAt(updates, i), "A");

  source.stop();
  const qsizetype after = updates.count();
  QTest::qWait(500);
  EXPECT_EQ(updates.count(), after);
  EXPECT_FALSE(source.pendingRestartMilliseconds());
  EXPECT_TRUE(source.isFinished());
}

TEST_F(AdapterNowPlayingSourceTest, AProgramThatCannotStartIsRetriedLikeACrash) {
  AdapterNowPlayingSource source({"/nonexistent/adapter", {}, {}, {}, ""},
                                 RestartBackoff(5, 30, 30, 5));
  source.start();
  ASSERT_TRUE(QTest::qWaitFor([&] { return source.pendingRestartMilliseconds().has_value(); }));
  EXPECT_EQ(source.pendingRestartMilliseconds(), 5000);
}

TEST_F(AdapterNowPlayingSourceTest, CommandsRunTheAdapterWithTheirWordsAndNothingForBadSeeks) {
  const QString record = dir_.filePath("commands");
  AdapterNowPlayingSource source(adapter("echo \"$@\" >> '" + record.toUtf8() + "'\n"));
  source.send(NowPlayingCommand::seek(-1));
  source.send(NowPlayingCommand::seek(1.5));
  source.send(NowPlayingCommand::nextTrack());
  const auto recorded = [&record] {
    QFile file(record);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  };
  ASSERT_TRUE(QTest::qWaitFor([&] { return recorded().count('\n') == 2; }, 5000));
  const QByteArray lines = recorded();
  EXPECT_TRUE(lines.contains("seek 1500000\n"));
  EXPECT_TRUE(lines.contains("send 4\n"));
  EXPECT_FALSE(lines.contains("seek -"));
}

}  // namespace
}  // namespace tindra
