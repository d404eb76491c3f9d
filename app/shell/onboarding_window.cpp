#include "shell/onboarding_window.h"

#include <QCloseEvent>
#include <QDBusConnection>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "base/logging_categories.h"
#include "settings/settings_keys.h"
#include "shell/onboarding_features.h"

namespace tindra {

namespace {

QString mark(DiagnosticsLog::Outcome outcome) {
  switch (outcome) {
    case DiagnosticsLog::Outcome::ok:
      return QStringLiteral("✓");
    case DiagnosticsLog::Outcome::degraded:
      return QStringLiteral("–");
    case DiagnosticsLog::Outcome::failed:
      return QStringLiteral("✗");
  }
  return {};
}

}  // namespace

OnboardingWindow::OnboardingWindow(SettingsStore& settings, DiagnosticsLog& log,
                                   AutostartEntry autostart, QWidget* parent)
    : QWidget(parent),
      settings_(settings),
      log_(log),
      autostart_(std::move(autostart)),
      systemBus_(QDBusConnection::systemBus().isConnected()) {
  setWindowTitle(tr("Welcome to Tindra"));
  resize(640, 560);
  auto* layout = new QVBoxLayout(this);
  auto* about = new QLabel(
      tr("<h2>Welcome to Tindra</h2>"
         "<p>The strip at the top of your display is now a small live display. Closed, it shows "
         "one thing at a time: what is playing, a volume or brightness level, a battery or "
         "headphone notice, the next meeting, a call or a message. Rest the pointer on it and it "
         "opens into a panel with the controls, your calendar, the weather, your batteries and a "
         "file tray. Everything stays on this computer.</p>"
         "<p><b>What Tindra found here</b> (✓ works, – off or waiting, ✗ missing), and what you "
         "can do:</p>"));
  about->setWordWrap(true);
  layout->addWidget(about);
  services_.setWordWrap(true);
  services_.setTextFormat(Qt::PlainText);
  services_.setTextInteractionFlags(Qt::TextSelectableByMouse);
  layout->addWidget(&services_);
  // The checks keep coming in after the window opens (a player helper's self-test, a bus
  // service that starts late); each updates the list.
  connect(&log_, &DiagnosticsLog::recorded, this, &OnboardingWindow::listServices);
  listServices();
  auto* details =
      new QLabel(tr("Each service's own report is in Diagnostics… on Tindra's menu, "
                    "for a bug report."));
  details->setWordWrap(true);
  details->setStyleSheet(QStringLiteral("color: gray"));
  layout->addWidget(details);

  layout->addWidget(new QLabel(tr("<b>The notch opens</b>")));
  const NotchOpeningMode current = settings_.read(settings::notchOpeningMode);
  const std::pair<NotchOpeningMode, QString> modes[] = {
      {NotchOpeningMode::hover, tr("when the pointer rests on it")},
      {NotchOpeningMode::click, tr("when you click it")},
      {NotchOpeningMode::pressAndHold, tr("when you press and hold it")}};
  for (const auto& [mode, label] : modes) {
    auto* choice = new QRadioButton(label);
    choice->setChecked(mode == current);
    opening_.addButton(choice, static_cast<int>(mode));
    layout->addWidget(choice);
  }
  startAtLogin_.setText(tr("Start Tindra when I log in"));
  startAtLogin_.setChecked(autostart_.enabled());
  layout->addWidget(&startAtLogin_);
  layout->addStretch();
  auto* done = new QPushButton(tr("Start Using Tindra"));
  done->setDefault(true);
  connect(done, &QPushButton::clicked, this, &QWidget::close);
  layout->addWidget(done, 0, Qt::AlignRight);
}

void OnboardingWindow::listServices() {
  QStringList lines;
  for (const OnboardingFeatures::Line& line :
       OnboardingFeatures::describe(log_, settings_, systemBus_)) {
    lines << QStringLiteral("%1  %2").arg(mark(line.outcome), line.text);
  }
  services_.setText(lines.join(u'\n'));
}

void OnboardingWindow::finish() {
  if (const int mode = opening_.checkedId(); mode >= 0) {
    (void)settings_.write(settings::notchOpeningMode, static_cast<NotchOpeningMode>(mode));
  }
  if (startAtLogin_.isChecked() != autostart_.enabled()) {
    if (const Sentence problem = autostart_.setEnabled(startAtLogin_.isChecked());
        !problem.isEmpty()) {
      log_.record(lcApp(), QStringLiteral("autostart"), DiagnosticsLog::Outcome::failed, problem);
    }
  }
  (void)settings_.write(settings::onboardingCompleted, true);
}

void OnboardingWindow::closeEvent(QCloseEvent* event) {
  finish();
  event->accept();
}

}  // namespace tindra
