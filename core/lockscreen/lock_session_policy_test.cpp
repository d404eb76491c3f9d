#include "lockscreen/lock_session_policy.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>

#include "lockscreen/lock_widget_offset.h"

namespace tindra {
namespace {

using Policy = LockSessionPolicy;
using Reason = LockScreenNotice::Reason;
using Code = LockSessionRecordError::Code;

constexpr std::string_view thisBoot = "3F2A-BOOT-NOW";

LockSessionRecord openRecord(std::string boot, int strikes) {
  return Policy::recordForBegin(LockSessionRecord{.restartStrikes = strikes},
                                {1700000000.5, std::move(boot), "14.5"});
}

TEST(LockSessionPolicyTest, OneRestartIsForgivenTheSecondIsNot) {
  const Policy::Launch first = Policy::launchVerdict(openRecord("OLD", 0).encoded(), thisBoot);
  EXPECT_EQ(first.verdict, Policy::LaunchVerdict(Policy::Tolerated{1}));
  EXPECT_EQ(first.record, (LockSessionRecord{.restartStrikes = 1}));
  EXPECT_TRUE(first.recordChanged);

  // The next lock opens a session with the strike kept; another restart turns the features off.
  const LockSessionRecord reopened =
      Policy::recordForBegin(first.record, {1700000100, std::string(thisBoot), "14.5"});
  EXPECT_EQ(reopened.restartStrikes, 1);
  const Policy::Launch second = Policy::launchVerdict(reopened.encoded(), "NEXT-BOOT");
  EXPECT_EQ(second.verdict, Policy::LaunchVerdict(Policy::Disable{Reason::restartedWhileLocked}));
  EXPECT_EQ(second.record, LockSessionRecord::fresh());

  // A session that ends cleanly in between breaks the run.
  EXPECT_EQ(Policy::recordForEnd(), LockSessionRecord::fresh());
  EXPECT_EQ(Policy::launchVerdict(openRecord("OLD", 0).encoded(), thisBoot).verdict,
            Policy::LaunchVerdict(Policy::Tolerated{1}));
  // The largest count a record can hold still ends in a disable, not an overflow.
  EXPECT_EQ(Policy::launchVerdict(openRecord("OLD", 2147483647).encoded(), thisBoot).verdict,
            Policy::LaunchVerdict(Policy::Disable{Reason::restartedWhileLocked}));
}

TEST(LockSessionPolicyTest, VerdictsForEachKindOfRecord) {
  const Policy::Launch none = Policy::launchVerdict(std::string_view(), thisBoot);
  EXPECT_EQ(none, (Policy::Launch{Policy::Clean{}, LockSessionRecord::fresh(), true}));

  const LockSessionRecord closed{.restartStrikes = 1};
  EXPECT_EQ(Policy::launchVerdict(closed.encoded(), thisBoot),
            (Policy::Launch{Policy::Clean{}, closed, false}));

  const Policy::Launch stopped =
      Policy::launchVerdict(openRecord(std::string(thisBoot), 1).encoded(), thisBoot);
  EXPECT_EQ(stopped.verdict, Policy::LaunchVerdict(Policy::Disable{Reason::stoppedWhileLocked}));
  EXPECT_EQ(stopped.record, LockSessionRecord::fresh());

  // A read error other than a missing file is as bad as an unreadable record.
  EXPECT_EQ(Policy::launchVerdictFromRead(std::unexpected(ENOENT), thisBoot), none);
  EXPECT_EQ(Policy::launchVerdictFromRead(std::unexpected(EACCES), thisBoot).verdict,
            Policy::LaunchVerdict(Policy::Disable{Reason::unreadableRecord}));
  EXPECT_EQ(Policy::launchVerdictFromRead(closed.encoded(), thisBoot).recordChanged, false);
}

TEST(LockSessionPolicyTest, BadGuardFilesAreUnreadable) {
  const std::string good = openRecord("OLD", 0).encoded();
  const struct {
    std::string bytes;
    Code code;
  } cases[] = {
      {"\x89PNG\r\n\x1a\n", Code::invalidJSON},
      {" ", Code::invalidJSON},
      {good.substr(0, good.size() - 2), Code::invalidJSON},
      {"[]", Code::notAnObject},
      {"null", Code::notAnObject},
      {R"({"restartStrikes":0})", Code::badVersion},
      {R"({"version":2,"restartStrikes":0})", Code::badVersion},
      {R"({"version":"1","restartStrikes":0})", Code::badVersion},
      {R"({"version":1})", Code::badRestartStrikes},
      {R"({"version":1,"restartStrikes":-1})", Code::badRestartStrikes},
      {R"({"version":1,"restartStrikes":0.5})", Code::badRestartStrikes},
      {R"({"version":1,"restartStrikes":2147483648})", Code::badRestartStrikes},
      {R"({"version":1,"restartStrikes":0,"openSession":{}})", Code::badOpenSession},
      {R"({"version":1,"restartStrikes":0,"openSession":"x"})", Code::badOpenSession},
      {R"({"version":1,"restartStrikes":0,"openSession":{"startedAt":"2024-01-01T00:00:00Z",)"
       R"("bootSessionID":"b","osVersion":"14"}})",
       Code::badOpenSession},
  };
  for (const auto& [bytes, code] : cases) {
    EXPECT_EQ(LockSessionRecord::decode(bytes), std::unexpected(LockSessionRecordError{code}))
        << bytes;
    const Policy::Launch launch = Policy::launchVerdict(bytes, thisBoot);
    EXPECT_EQ(launch.verdict, Policy::LaunchVerdict(Policy::Disable{Reason::unreadableRecord}));
    EXPECT_EQ(launch.record, LockSessionRecord::fresh());
  }
}

TEST(LockSessionPolicyTest, RecordFileRoundTrips) {
  const LockSessionRecord open = openRecord("B\"1\n", 1);
  EXPECT_EQ(LockSessionRecord::decode(open.encoded()), open);
  EXPECT_EQ(LockSessionRecord::decode(LockSessionRecord::fresh().encoded()),
            LockSessionRecord::fresh());
  EXPECT_EQ(LockSessionRecord::fresh().encoded().find("openSession"), std::string::npos);
  // A null session is no session; members from elsewhere are ignored.
  EXPECT_EQ(LockSessionRecord::decode(
                R"({"version":1,"openSession":null,"restartStrikes":1,"note":[1]})"),
            (LockSessionRecord{.restartStrikes = 1}));
  // Markers are equal only when all three fields are.
  const LockSessionRecord later = Policy::recordForBegin(open, {1700000000.501, "B\"1\n", "14.5"});
  EXPECT_NE(later, open);
  EXPECT_NE(Policy::recordForBegin(open, {1700000000.5, "B\"1\n", "14.6"}), open);
  EXPECT_EQ(Policy::recordForBegin(open, {1700000000.5, "B\"1\n", "14.5"}), open);
}

TEST(LockSessionPolicyTest, DisableTurnsOffEveryFeatureThatIsOn) {
  const Policy::LaunchVerdict disable = Policy::Disable{Reason::stoppedWhileLocked};
  using Features = std::vector<LockScreenFeature>;
  EXPECT_EQ(Policy::featuresToTurnOff(disable, true, true),
            (Features{LockScreenFeature::widgets, LockScreenFeature::notch}));
  EXPECT_EQ(Policy::featuresToTurnOff(disable, false, true), (Features{LockScreenFeature::notch}));
  EXPECT_EQ(Policy::featuresToTurnOff(disable, false, false), Features{});
  EXPECT_EQ(Policy::featuresToTurnOff(Policy::Tolerated{1}, true, true), Features{});
  EXPECT_EQ(Policy::featuresToTurnOff(Policy::Clean{}, true, true), Features{});
  EXPECT_EQ(enabledSettingName(LockScreenFeature::notch), "lockScreenNotch");
  EXPECT_EQ(noticeSettingName(LockScreenFeature::widgets), "lockScreenNotice");
}

TEST(LockSessionPolicyTest, NoticeKeptInSettings) {
  const LockScreenNotice notice{Reason::restartedWhileLocked, 1700000000.125, "14.5"};
  EXPECT_EQ(notice.settingText(),
            R"({"date":1700000000.125,"osVersion":"14.5","reason":"restartedWhileLocked"})");
  EXPECT_EQ(LockScreenNotice::fromSettingText(notice.settingText()), notice);
  EXPECT_EQ(LockScreenNotice::fromSettingText(""), std::nullopt);
  EXPECT_EQ(LockScreenNotice::fromSettingText(R"({"date":1,"osVersion":"14","reason":"crashed"})"),
            std::nullopt);
  EXPECT_EQ(LockScreenNotice::fromSettingText(R"({"date":1,"reason":"unreadableRecord"})"),
            std::nullopt);
  EXPECT_NE(LockScreenNotice::message(Reason::unsupportedSystem, LockScreenFeature::notch),
            LockScreenNotice::message(Reason::unsupportedSystem, LockScreenFeature::widgets));
}

TEST(LockSessionPolicyTest, WidgetOffsetIsClamped) {
  EXPECT_EQ(clampedLockWidgetOffset(250), 100);
  EXPECT_EQ(clampedLockWidgetOffset(-300), -100);
  EXPECT_EQ(clampedLockWidgetOffset(100), 100);
  EXPECT_EQ(clampedLockWidgetOffset(-42.5), -42.5);
  EXPECT_EQ(clampedLockWidgetOffset(std::numeric_limits<double>::infinity()), 0);
  EXPECT_EQ(clampedLockWidgetOffset(std::numeric_limits<double>::quiet_NaN()), 0);
}

}  // namespace
}  // namespace tindra
