#include "shell/onboarding_window.h"

#include <QCloseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <map>

#include "base/logging_categories.h"
#include "settings/settings_keys.h"

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
    : QWidget(parent), settings_(settings), log_(log), autostart_(std::move(autostart)) {
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
         "<p><b>What Tindra found here</b> (✓ in use, – waiting or limited, ✗ not available, and "
         "what that means):</p>"));
  about->setWordWrap(true);
  layout->addWidget(about);
  services_.setWordWrap(true);
  services_.setTextFormat(Qt::PlainText);
  services_.setTextInteractionFlags(Qt::TextSelectableByMouse);
  layout->addWidget(&services_);
  connect(&log_, &DiagnosticsLog::recorded, this, &OnboardingWindow::listServices);
  listServices();

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
  // Each source's latest word, in the order the sources first spoke.
  std::vector<QString> order;
  std::map<QString, const DiagnosticsLog::Entry*> latest;
  for (const DiagnosticsLog::Entry& entry : log_.entries()) {
    if (!latest.contains(entry.source)) order.push_back(entry.source);
    latest[entry.source] = &entry;
  }
  QStringList lines;
  for (const QString& source : order) {
    const DiagnosticsLog::Entry& entry = *latest[source];
    lines << QStringLiteral("%1  %2: %3").arg(mark(entry.outcome), source, entry.text.translated());
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
