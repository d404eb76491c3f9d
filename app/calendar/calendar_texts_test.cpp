#include "calendar/calendar_texts.h"

#include <gtest/gtest.h>

#include <QDateTime>

namespace tindra::CalendarTexts {
namespace {

double today(int hour, int minute) {
  return static_cast<double>(
      QDateTime(QDate(2026, 11, 27), QTime(hour, minute)).toSecsSinceEpoch());
}

TEST(CalendarTextsTest, TwelveHourRangesNameTheHalfOfTheDayOnceWhereBothEndsShareIt) {
  const QLocale us(QLocale::English, QLocale::UnitedStates);
  EXPECT_EQ(timeRange(today(9, 32), today(10, 32), false, us), QStringLiteral("9:32–10:32 AM"));
  EXPECT_EQ(timeRange(today(13, 0), today(14, 15), false, us), QStringLiteral("1:00–2:15 PM"));
  EXPECT_EQ(timeRange(today(11, 30), today(12, 30), false, us),
            QStringLiteral("11:30 AM–12:30 PM"));
  // Where the half comes first, the range keeps it at the start.
  const QLocale korea(QLocale::Korean, QLocale::SouthKorea);
  const QString morning = korea.amText();
  EXPECT_EQ(timeRange(today(9, 32), today(10, 32), false, korea),
            morning + QStringLiteral(" 9:32–10:32"));
  const QLocale norway(QLocale::NorwegianBokmal, QLocale::Norway);
  EXPECT_EQ(timeRange(today(9, 32), today(10, 32), false, norway), QStringLiteral("09:32–10:32"));
  EXPECT_EQ(timeRange(today(0, 0), today(0, 0), true, us), QStringLiteral("All day"));
}

}  // namespace
}  // namespace tindra::CalendarTexts
