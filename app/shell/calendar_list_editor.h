// CalendarListEditor: the calendars in Settings: each with a switch (off puts its id in
// calendarExcludedIdentifiers), how reading it goes, and Remove for those the user added; a
// field to add a file, a folder or an address; and the user's own mail addresses, which tell
// the invitations the user declined.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QWidget>

#include "calendar/calendar_backend.h"
#include "settings/settings_store.h"

namespace tindra {

class CalendarListEditor : public QWidget {
  Q_OBJECT

 public:
  CalendarListEditor(CalendarBackend& backend, SettingsStore& settings, QWidget* parent = nullptr);

  // Adds what the field holds; false (and the reason below it) when it cannot be added.
  bool addFromField();
  QLineEdit& field() { return field_; }
  QString problem() const { return problem_.text(); }

 private:
  void rebuild();
  void setIncluded(const QString& id, bool included);

  CalendarBackend& backend_;
  SettingsStore& settings_;
  SettingsObservation observation_;
  QVBoxLayout* list_ = nullptr;
  QLineEdit field_;
  QLineEdit owners_;
  QLabel problem_;
};

}  // namespace tindra
