#include "shell/calendar_list_editor.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "calendar/linux/icalendar_backend.h"
#include "settings/settings_keys.h"
#include "testing/view_shot.h"

namespace tindra {
namespace {

TEST(CalendarListEditorTest, ListsTheCalendarsWithASwitchEachAndAddsFilesAndAddresses) {
  QTemporaryDir dir;
  QFile file(dir.filePath("team.ics"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(
      "BEGIN:VCALENDAR\r\nX-WR-CALNAME:Team\r\nBEGIN:VEVENT\r\nUID:a\r\n"
      "DTSTART:20261026T090000Z\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n");
  file.close();
  SettingsStore settings(dir.filePath("settings.json").toStdString(), [] { return 0.0; });
  ICalendarBackend backend(
      {dir.filePath("calendars.json").toStdString(), dir.filePath("kept"), {}, std::nullopt},
      [] { return 1792972800.0; });
  backend.start();
  CalendarListEditor editor(backend, settings);

  editor.field().setText("http://calendar.example.org/team.ics");
  EXPECT_FALSE(editor.addFromField());
  EXPECT_TRUE(editor.problem().contains("https://"));
  editor.field().setText(file.fileName());
  EXPECT_TRUE(editor.addFromField());
  EXPECT_TRUE(editor.problem().isEmpty());
  // The name is the document's, known once the reader thread has read it.
  QList<QCheckBox*> switches;
  ASSERT_TRUE(QTest::qWaitFor(
      [&] {
        switches = editor.findChildren<QCheckBox*>();
        return switches.size() == 1 && switches[0]->text() == "Team";
      },
      5000))
      << switches.size();
  EXPECT_TRUE(switches[0]->isChecked());
  switches[0]->setChecked(false);
  QCoreApplication::processEvents();
  EXPECT_EQ(settings.read(settings::calendarExcludedIdentifiers),
            std::vector<std::string>{ICalendarBackend::idFor(file.fileName()).toStdString()});

  ASSERT_EQ(editor.findChildren<QCheckBox*>().size(), 1);
  EXPECT_FALSE(editor.findChildren<QCheckBox*>()[0]->isChecked());
  editor.resize(560, 120);
  keepScreenshot(editor.grab().toImage(), QStringLiteral("settings-calendars"));
}

}  // namespace
}  // namespace tindra
