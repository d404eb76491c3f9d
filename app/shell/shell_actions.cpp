#include "shell/shell_actions.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/logging_categories.h"
#include "levels/hud_provider.h"
#include "power/battery_view_model.h"
#include "settings/settings_keys.h"
#include "shell/calendar_list_editor.h"
#include "shell/diagnostics_window.h"
#include "shell/display_selection_editor.h"
#include "shell/settings_pages.h"
#include "shell/settings_window.h"
#include "shell/weather_settings_editor.h"

namespace tindra {

ShellActions::ShellActions(SettingsStore& settings, DiagnosticsLog& diagnostics,
                           const ViewRegistry& views, QObject* parent)
    : QObject(parent),
      settings_(settings),
      views_(views),
      diagnostics_(diagnostics),
      settingsAction_(tr("Settings…")),
      diagnosticsAction_(tr("Diagnostics…")),
      startAtLoginAction_(tr("Start at Login")),
      quitAction_(tr("Quit Tindra")),
      autostart_(AutostartEntry::forThisProgram()) {
  connect(&settingsAction_, &QAction::triggered, this, &ShellActions::openSettings);
  connect(&diagnosticsAction_, &QAction::triggered, this, &ShellActions::openDiagnostics);
  // Out of the event loop without closing the windows first, as quit() would: quitting while the
  // first start's introduction shows is no answer to it, and it shows again next time.
  connect(
      &quitAction_, &QAction::triggered, qApp, [] { QCoreApplication::exit(0); },
      Qt::QueuedConnection);
  // The autostart entry itself is the setting; it is read again each time the menu opens.
  startAtLoginAction_.setCheckable(true);
  connect(&menu_, &QMenu::aboutToShow, this,
          [this] { startAtLoginAction_.setChecked(autostart_.enabled()); });
  connect(&startAtLoginAction_, &QAction::toggled, this, &ShellActions::startAtLogin);
  startAtLoginAction_.setChecked(autostart_.enabled());
  menu_.addAction(&settingsAction_);
  menu_.addAction(&diagnosticsAction_);
  menu_.addSeparator();
  menu_.addAction(&startAtLoginAction_);
  menu_.addSeparator();
  menu_.addAction(&quitAction_);
}

// The Diagnostics page: what the checks are, and the way to them and to the report.
QWidget* ShellActions::diagnosticsPanel() {
  auto* panel = new QWidget;
  auto* layout = new QVBoxLayout(panel);
  auto* about =
      new QLabel(tr("Each service Tindra uses says here whether it answers, and every "
                    "change since Tindra started is in the log. The report has the "
                    "versions, the session and the log, for a bug report; it names none "
                    "of your files, events or messages."));
  about->setWordWrap(true);
  layout->addWidget(about);
  auto* buttons = new QHBoxLayout;
  auto* open = new QPushButton(tr("Diagnostics…"));
  connect(open, &QPushButton::clicked, this, &ShellActions::openDiagnostics);
  buttons->addWidget(open);
  buttons->addWidget(DiagnosticsWindow::copyReportButton(diagnostics_));
  buttons->addStretch();
  layout->addLayout(buttons);
  return panel;
}

void ShellActions::startAtLogin(bool on) {
  if (on == autostart_.enabled()) return;
  if (const Sentence problem = autostart_.setEnabled(on); !problem.isEmpty()) {
    diagnostics_.record(lcApp(), QStringLiteral("autostart"), DiagnosticsLog::Outcome::failed,
                        problem);
    startAtLoginAction_.setChecked(autostart_.enabled());
  }
}

// Notes that follow what a provider finds while Settings is open.
void ShellActions::addFollowedNotes() {
  const auto followed = [](const auto* source, auto changed, auto text) {
    auto* label = new QLabel;
    label->setWordWrap(true);
    label->setStyleSheet(QStringLiteral("color: #b25000"));
    const auto update = [label, text] {
      label->setText(text());
      label->setVisible(!label->text().isEmpty());
    };
    connect(source, changed, label, update);
    // Not shown yet: a label without a parent would become a window of its own.
    label->setText(text());
    if (label->text().isEmpty()) label->hide();
    return label;
  };
  if (hud_ != nullptr) {
    settingsWindow_->setExtra(
        settings::experimentalKeyboardBacklight.name,
        followed(hud_, &HudProvider::keyboardTroubleChanged, [hud = hud_] {
          switch (hud->keyboardTrouble()) {
            case HudProvider::KeyboardTrouble::none:
              return QString();
            case HudProvider::KeyboardTrouble::notFound:
              return tr(
                  "No keyboard backlight that Tindra can control was found on this "
                  "computer.");
            case HudProvider::KeyboardTrouble::unreadable:
              return tr(
                  "Tindra could not read the keyboard backlight just now, so this was "
                  "turned off. Try again with the lid open.");
          }
          return QString();
        }));
  }
  if (battery_ != nullptr) {
    const int page = settingsPageOf(settings::batteryLowAlert.name);
    settingsWindow_->addToPage(
        settingsPages()[static_cast<std::size_t>(page)].title,
        followed(battery_, &BatteryViewModel::changed, [battery = battery_] {
          return battery->available()
                     ? QString()
                     : tr("This computer has no battery, so there is nothing to show here.");
        }));
  }
}

ShellActions::~ShellActions() = default;

void ShellActions::openDiagnostics() {
  if (!diagnosticsWindow_) {
    diagnosticsWindow_ = std::make_unique<DiagnosticsWindow>(diagnostics_, checks_);
  }
  diagnosticsWindow_->show();
  diagnosticsWindow_->raise();
  diagnosticsWindow_->activateWindow();
}

// The displays as a list to choose from, in place of the text of the choice.
void ShellActions::offerDisplays() {
  auto* displays = new DisplaySelectionEditor(*screens_);
  const std::string name(settings::displaySelection.name);
  connect(displays, &DisplaySelectionEditor::chosen, this,
          [this, name](const QString& text) { settingsWindow_->edit(name, text.toStdString()); });
  settingsWindow_->setEditor(name, displays, [displays](const JSONValue& value) {
    displays->showSelection(value.asString() != nullptr ? QString::fromStdString(*value.asString())
                                                        : QString());
  });
}

void ShellActions::openSettings() {
  if (!settingsWindow_) {
    settingsWindow_ = std::make_unique<SettingsWindow>(settings_, views_);
    if (calendars_ != nullptr) {
      settingsWindow_->setExtra(settings::calendarExcludedIdentifiers.name,
                                new CalendarListEditor(*calendars_, settings_));
    }
    if (weather_ != nullptr) {
      settingsWindow_->setExtra(settings::weatherEnabled.name,
                                new WeatherSettingsEditor(*weather_, weather_->cities()));
    }
    if (screens_ != nullptr) offerDisplays();
    settingsWindow_->addToPage(settingsPages().back().title, diagnosticsPanel());
    std::vector<Note> notes = notes_;
    for (const settings::SettingsKeyDescription& key : settings::allKeys()) {
      if (const std::optional<SettingsNote> here = settingsNoteHere(key.name)) {
        notes.push_back({std::string(key.name),
                         QCoreApplication::translate("SettingsNotes", here->text),
                         here->unavailable});
      }
    }
    addFollowedNotes();
    for (const Note& note : notes) {
      auto* label = new QLabel(note.text);
      label->setWordWrap(true);
      label->setStyleSheet(note.unavailable ? QStringLiteral("color: #b25000")
                                            : QStringLiteral("color: gray"));
      settingsWindow_->setExtra(note.name, label);
      QWidget* editor = settingsWindow_->editorFor(note.name);
      if (editor && note.unavailable) editor->setEnabled(false);
    }
  }
  settingsWindow_->setHidden([this](std::string_view name) {
    return settingsHiddenHere(name) || (hiddenSettings_ && hiddenSettings_(name));
  });
  settingsWindow_->show();
  settingsWindow_->raise();
  settingsWindow_->activateWindow();
}

}  // namespace tindra
