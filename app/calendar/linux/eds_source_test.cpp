#include "calendar/linux/eds_source.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

const QString personal = QStringLiteral(
    "\n[Data Source]\nDisplayName[de]=Persönlich\nDisplayName[nb]=Personlig\n"
    "DisplayName=Personal\nEnabled=true\nParent=local-stub\n\n[Calendar]\nBackendName=local\n"
    "Color=#62a0ea\n");

TEST(EdsSourceTest, ReadsNameInTheUsersLanguageKindColourAndSwitch) {
  const EdsSource norwegian = EdsSource::parse("system-calendar", personal, {"nb_NO", "nb"});
  EXPECT_EQ(norwegian.name, "Personlig");
  EXPECT_EQ(norwegian.parent, "local-stub");
  EXPECT_TRUE(norwegian.enabled);
  EXPECT_EQ(norwegian.kind, EdsSource::Kind::events);
  ASSERT_TRUE(norwegian.color);
  EXPECT_NEAR(norwegian.color->blue, 0xea / 255.0, 1e-3);
  EXPECT_EQ(EdsSource::parse("system-calendar", personal, {"fi_FI", "fi"}).name, "Personal");

  // Escapes, spaces around '=', comments, a task list without a colour, switched off.
  const EdsSource tasks =
      EdsSource::parse("t",
                       "# written by hand\n[Data Source]\nDisplayName = Home\\sand\\\\garden\\x\n"
                       "Enabled=false\n[Task List]\nColor=not a colour\n",
                       {});
  EXPECT_EQ(tasks.name, "Home and\\garden\\x");
  EXPECT_FALSE(tasks.enabled);
  EXPECT_EQ(tasks.kind, EdsSource::Kind::tasks);
  EXPECT_FALSE(tasks.color);

  // An account with its calendars unticked; an address book; nothing readable at all.
  const EdsSource account = EdsSource::parse(
      "google", "[Data Source]\nDisplayName=me@example.com\n[Collection]\nCalendarEnabled=false\n",
      {});
  EXPECT_TRUE(account.calendarsOff);
  EXPECT_EQ(account.kind, EdsSource::Kind::other);
  EXPECT_EQ(EdsSource::parse("book", "[Data Source]\n[Address Book]\n", {}).kind,
            EdsSource::Kind::other);
  const EdsSource garbage = EdsSource::parse("x", "=\n[\nDisplayName=stray\n[Calendar", {});
  EXPECT_EQ(garbage.name, "x");  // the uid, when the source names itself nowhere
  EXPECT_EQ(garbage.kind, EdsSource::Kind::other);
}

TEST(EdsSourceTest, ListsOnlyCalendarsSwitchedOnAllTheWayUp) {
  const auto source = [](QString uid, QString parent, EdsSource::Kind kind, bool enabled = true,
                         bool calendarsOff = false) {
    EdsSource made;
    made.uid = uid;
    made.name = uid.toUpper();
    made.parent = std::move(parent);
    made.kind = kind;
    made.enabled = enabled;
    made.calendarsOff = calendarsOff;
    return std::pair{std::move(uid), std::move(made)};
  };
  using K = EdsSource::Kind;
  const std::map<QString, EdsSource> sources{
      source("local-stub", "", K::other),
      source("personal", "local-stub", K::events),
      source("chores", "local-stub", K::tasks),
      source("off", "local-stub", K::events, false),
      source("google", "", K::other, false),  // the account switched off
      source("work", "google", K::events),
      source("outlook", "", K::other, true, true),  // calendars unticked
      source("meetings", "outlook", K::events),
      source("book", "local-stub", K::other),
      source("orphan", "gone", K::events),  // its account not (yet) listed
      source("a", "b", K::events),
      source("b", "a", K::other),  // a loop of parents ends
  };
  std::vector<QString> uids;
  for (const EdsCalendar& calendar : EdsCalendar::among(sources)) uids.push_back(calendar.uid);
  EXPECT_EQ(uids, (std::vector<QString>{"a", "chores", "orphan", "personal"}));
  const auto listed = EdsCalendar::among(sources);
  EXPECT_EQ(listed[1].account, "LOCAL-STUB");
  EXPECT_EQ(listed[1].kind, K::tasks);
  EXPECT_EQ(listed[2].account, "");
}

}  // namespace
}  // namespace tindra
