#include "media/adapter_check.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "base/logging_categories.h"

namespace tindra {
namespace {

// The adapter as a shell script: "test" exits with `testStatus`, the stream writes one track.
AdapterLaunch shellAdapter(int testStatus) {
  const std::string script =
      "[ \"$1\" = test ] && exit " + std::to_string(testStatus) +
      "; echo '{\"type\":\"data\",\"payload\":{\"title\":\"Tone\",\"playing\":true}}'; "
      "echo garbage; exec sleep 30";
  return {"/bin/sh", {"-c", script, "adapter"}, {"-c", script, "adapter"}, {"/bin/sh"}, ""};
}

QStringList runCheck(const AdapterLaunch& launch) {
  DiagnosticsLog log;
  AdapterCheck check(launch, log);
  QSignalSpy done(&check, &AdapterCheck::finished);
  check.run(300);
  EXPECT_TRUE(done.wait(5000));
  QStringList lines;
  for (const DiagnosticsLog::Entry& entry : log.entries()) lines << entry.text.english();
  return lines;
}

TEST(AdapterCheckTest, RunsTheStreamBrieflyOnlyAfterAPassingSelfTest) {
  const QStringList passed = runCheck(shellAdapter(0));
  ASSERT_EQ(passed.size(), 2);
  EXPECT_EQ(passed[0], "The adapter's self-test passed.");
  EXPECT_TRUE(passed[1].startsWith("Stream gave 1 update(s) and 1 unreadable line(s)"));
  EXPECT_TRUE(passed[1].endsWith("\"Tone\" playing.")) << passed[1].toStdString();

  const QStringList failed = runCheck(shellAdapter(7));
  ASSERT_EQ(failed.size(), 2);
  EXPECT_TRUE(failed[0].contains("exit status 7"));
  EXPECT_EQ(failed[1], "Stream skipped because the self-test failed.");
}

}  // namespace
}  // namespace tindra
