#include "media/adapter_probe.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace tindra {
namespace {

using Kind = AdapterProbeResult::Kind;

struct Outcome {
  AdapterProbeResult result;
  QString text;  // in English
};

Outcome runTest(const AdapterLaunch& launch, int timeoutMilliseconds = 5000) {
  AdapterProbe test(launch);
  QSignalSpy done(&test, &AdapterProbe::finished);
  test.run(timeoutMilliseconds);
  if (done.isEmpty() && !done.wait(10000)) return {AdapterProbeResult::notBundled(), "no result"};
  EXPECT_EQ(done.count(), 1);
  return {done.at(0).at(0).value<AdapterProbeResult>(),
          done.at(0).at(1).value<Sentence>().english()};
}

AdapterLaunch shell(const std::string& script) {
  return {"/bin/sh", {}, {"-c", script, "adapter"}, {"/bin/sh"}, ""};
}

TEST(AdapterProbeTest, ExitStatusTimeAndMissingFilesDecideTheResult) {
  // The script sees "test" as its first argument, as the adapter would.
  EXPECT_EQ(runTest(shell(R"([ "$1" = test ] && exit 0; exit 9)")).result,
            AdapterProbeResult::passed());
  EXPECT_EQ(runTest(shell("exit 3")).result, AdapterProbeResult::failed(3));
  EXPECT_EQ(runTest(shell("kill -9 $$")).result, AdapterProbeResult::failed(-1));

  const Outcome slow = runTest(shell("exec sleep 30"), 200);
  EXPECT_EQ(slow.result, AdapterProbeResult::timedOut());

  const Outcome missing =
      runTest(AdapterLaunch::helperProgram("/nonexistent/tindra-mpris-adapter"));
  EXPECT_EQ(missing.result.kind, Kind::notBundled);
  EXPECT_TRUE(missing.text.startsWith("Adapter not bundled; missing: /nonexistent/"));

  AdapterLaunch unlaunchable = AdapterLaunch::helperProgram("/etc/hostname");  // not executable
  const Outcome refused = runTest(unlaunchable);
  EXPECT_EQ(refused.result.kind, Kind::launchFailed);
  EXPECT_TRUE(refused.text.startsWith("Could not launch /etc/hostname:"));
}

}  // namespace
}  // namespace tindra
