// Runs in: private-session --xvfb
// The opened notch of the whole program with every backend invented, as the demo shows it: no
// text in it loses its end to an ellipsis, and none reaches past the panel's edge.

#include <gtest/gtest.h>

#include <QQuickItem>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include "base/activity_center.h"
#include "notch/notch_screen_manager.h"
#include "notch/notch_window.h"
#include "settings/settings_keys.h"
#include "testing/notch_displays.h"
#include "testing/view_shot.h"
#include "tindra_app.h"

namespace tindra {
namespace {

// A program of its own: invented backends and a settings file no other test sees.
class OpenedNotchTest : public ::testing::Test {
 protected:
  OpenedNotchTest() {
    qputenv("TINDRA_FAKE", "all");
    qputenv("XDG_CONFIG_HOME", config_.path().toUtf8());
  }
  ~OpenedNotchTest() override {
    qunsetenv("TINDRA_FAKE");
    qputenv("XDG_CONFIG_HOME", savedConfig_);
  }

  QByteArray savedConfig_ = qgetenv("XDG_CONFIG_HOME");
  QTemporaryDir config_;
};

struct DrawnText {
  QString text;
  QRectF bounds;   // the item, in the section row's coordinates
  QRectF painted;  // what its letters cover, in the same
  QQuickItem* section;
  bool truncated;
};

// The part of a text item its letters cover, in its own coordinates.
QRectF paintedArea(QQuickItem* text) {
  const qreal width = text->property("contentWidth").toReal();
  const qreal height = text->property("contentHeight").toReal();
  const int horizontal = text->property("effectiveHorizontalAlignment").toInt();
  const int vertical = text->property("verticalAlignment").toInt();
  const qreal x = horizontal == Qt::AlignRight     ? text->width() - width
                  : horizontal == Qt::AlignHCenter ? (text->width() - width) / 2
                                                   : 0;
  const qreal y = vertical == Qt::AlignBottom    ? text->height() - height
                  : vertical == Qt::AlignVCenter ? (text->height() - height) / 2
                                                 : 0;
  return QRectF(x, y, width, height);
}

// Every visible text under `item`, with the section of `row` it is drawn in.
void collectTexts(QQuickItem* item, QQuickItem* row, QQuickItem* section,
                  std::vector<DrawnText>& texts) {
  if (!item->isVisible()) return;
  if (item->inherits("QQuickText") && !item->property("text").toString().trimmed().isEmpty()) {
    texts.push_back({item->property("text").toString(),
                     item->mapRectToItem(row, QRectF(0, 0, item->width(), item->height())),
                     item->mapRectToItem(row, paintedArea(item)), section,
                     item->property("truncated").toBool()});
  }
  for (QQuickItem* child : item->childItems()) {
    collectTexts(child, row, item == row ? child : section, texts);
  }
}

std::string described(const DrawnText& text) {
  const QRectF& area = text.painted;
  return QStringLiteral("\"%1\" at %2,%3 %4x%5")
      .arg(text.text)
      .arg(area.x())
      .arg(area.y())
      .arg(area.width())
      .arg(area.height())
      .toStdString();
}

// Checks the opened panel's texts and returns them: none is cut, none reaches out of its section
// or the panel, and none is drawn over another.
QStringList expectWholeTexts(NotchWindow& window, const char* what) {
  SCOPED_TRACE(what);
  auto* row = window.sceneRoot()->findChild<QQuickItem*>(QStringLiteral("sectionRow"));
  std::vector<DrawnText> texts;
  collectTexts(row, row, nullptr, texts);
  // The panel clips at its edge; half a pixel is rounding.
  const auto roomOf = [row](QQuickItem* item) {
    return row->mapRectFromItem(item, QRectF(0, 0, item->width(), item->height()))
        .adjusted(-0.5, -0.5, 0.5, 0.5);
  };
  const QRectF panel = roomOf(row);
  QStringList seen;
  for (const DrawnText& text : texts) {
    EXPECT_FALSE(text.truncated) << text.text.toStdString();
    EXPECT_TRUE(panel.contains(text.bounds)) << described(text);
    EXPECT_TRUE(roomOf(text.section).contains(text.painted)) << described(text);
    seen << text.text;
  }
  for (auto a = texts.begin(); a != texts.end(); ++a) {
    for (auto b = std::next(a); b != texts.end(); ++b) {
      const QRectF both = a->painted.adjusted(0.5, 0.5, -0.5, -0.5) & b->painted;
      EXPECT_TRUE(both.isEmpty()) << described(*a) << " over " << described(*b);
    }
  }
  return seen;
}

// The opened notch with the invented track, then with the meeting, calendar and weather on.
void expectNothingCut(const QString& shotSuffix) {
  TindraApp app({.animated = false});
  NotchWindow& window = *app.notches().windows().front();
  window.open();
  QTest::qWait(300);
  const QStringList playing = expectWholeTexts(window, "playing");
  EXPECT_TRUE(playing.contains(QStringLiteral("Invented Track 1")))
      << playing.join(" | ").toStdString();
  // The idle layout has the battery; the section does not say it again without accessories
  // beside it.
  EXPECT_FALSE(playing.contains(QStringLiteral("Battery"))) << playing.join(" | ").toStdString();
  keepScreenshot(grabDisplay().copy(window.geometry()), "opened-playing" + shotSuffix);

  ASSERT_TRUE(app.settings().write(settings::calendarEnabled, true));
  ASSERT_TRUE(app.settings().write(settings::weatherEnabled, true));
  ASSERT_TRUE(app.settings().write(settings::remindersEnabled, true));
  ASSERT_TRUE(QTest::qWaitFor(
      [&] { return app.activities().current() == ActivityKind::upcomingEvent; }, 3000));
  QTest::qWait(300);
  const QStringList meeting = expectWholeTexts(window, "meeting");
  EXPECT_TRUE(meeting.contains(QStringLiteral("Design review")))
      << meeting.join(" | ").toStdString();
  keepScreenshot(grabDisplay().copy(window.geometry()), "opened-meeting" + shotSuffix);
  window.close();
  QTest::qWait(300);
  keepScreenshot(grabDisplay().copy(window.geometry()), "closed-meeting" + shotSuffix);
}

TEST_F(OpenedNotchTest, NoTextIsCutWithTheInventedTrackMeetingAndWeather) {
  expectNothingCut(QString());
}

// A 12-hour clock makes the widest times: the idle clock with its AM or PM, the agenda's ranges.
TEST_F(OpenedNotchTest, NoTextIsCutWhereTheClockHasTwelveHours) {
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  expectNothingCut(QStringLiteral("-12-hour"));
  QLocale::setDefault(QLocale::system());
}

// The text item under `item` that says `text`, visible or not.
QQuickItem* findText(QQuickItem* item, const QString& text) {
  if (item->inherits("QQuickText") && item->property("text").toString() == text) return item;
  for (QQuickItem* child : item->childItems()) {
    if (QQuickItem* found = findText(child, text)) return found;
  }
  return nullptr;
}

TEST_F(OpenedNotchTest, PanelViewsAreMadeOnTheFirstOpeningAndKeptAfterwards) {
  TindraApp app({.animated = false});
  NotchWindow& window = *app.notches().windows().front();
  QTest::qWait(300);
  // The track is known and shown in the closed notch, drawn without QML: nothing of the panel
  // exists yet.
  EXPECT_EQ(window.sceneRoot(), nullptr);

  window.open();
  QTest::qWait(300);
  ASSERT_NE(window.sceneRoot(), nullptr);
  auto* row = window.sceneRoot()->findChild<QQuickItem*>(QStringLiteral("sectionRow"));
  ASSERT_NE(row, nullptr);
  QQuickItem* title = findText(row, QStringLiteral("Invented Track 1"));
  ASSERT_NE(title, nullptr);
  EXPECT_TRUE(title->isVisible());
  // The idle layout on the left is made with the sections, its clock among its texts.
  const QStringList texts = expectWholeTexts(window, "first opening");
  EXPECT_TRUE(texts.indexOf(QRegularExpression(QStringLiteral("^\\d{1,2}[:.]\\d{2}"))) >= 0)
      << texts.join(" | ").toStdString();

  window.close();
  QTest::qWait(300);
  window.open();
  QTest::qWait(300);
  // The same view again, not one made anew on every opening.
  EXPECT_EQ(findText(row, QStringLiteral("Invented Track 1")), title);
  EXPECT_TRUE(title->isVisible());
}

}  // namespace
}  // namespace tindra
