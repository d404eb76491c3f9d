#include "shell/calendar_list_editor.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QPushButton>

#include "settings/settings_keys.h"

namespace tindra {

CalendarListEditor::CalendarListEditor(CalendarBackend& backend, SettingsStore& settings,
                                       QWidget* parent)
    : QWidget(parent), backend_(backend), settings_(settings) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(12, 0, 0, 8);
  auto* list = new QWidget;
  list_ = new QVBoxLayout(list);
  list_->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(list);

  field_.setPlaceholderText(tr("A file, a folder, or an https:// or webcal:// address"));
  auto* add = new QPushButton(tr("Add"));
  auto* choose = new QPushButton(tr("Choose File…"));
  connect(add, &QPushButton::clicked, this, &CalendarListEditor::addFromField);
  connect(&field_, &QLineEdit::returnPressed, this, &CalendarListEditor::addFromField);
  connect(choose, &QPushButton::clicked, this, [this] {
    const QString file = QFileDialog::getOpenFileName(this, tr("Add a Calendar"), QString(),
                                                      tr("iCalendar (*.ics);;All files (*)"));
    if (file.isEmpty()) return;
    field_.setText(file);
    addFromField();
  });
  auto* adding = new QHBoxLayout;
  adding->addWidget(&field_, 1);
  adding->addWidget(add);
  adding->addWidget(choose);
  layout->addLayout(adding);
  problem_.setStyleSheet(QStringLiteral("color: #d70015"));
  problem_.setWordWrap(true);
  problem_.hide();
  layout->addWidget(&problem_);

  owners_.setPlaceholderText(tr("Your mail addresses, separated by commas"));
  owners_.setToolTip(tr("Invitations you declined at these addresses are not shown."));
  owners_.setText(backend_.ownerAddresses().join(QStringLiteral(", ")));
  connect(&owners_, &QLineEdit::editingFinished, this, [this] {
    QStringList addresses;
    for (const QString& address : owners_.text().split(QLatin1Char(','), Qt::SkipEmptyParts)) {
      if (!address.trimmed().isEmpty()) addresses.append(address.trimmed());
    }
    backend_.setOwnerAddresses(addresses);
  });
  layout->addWidget(&owners_);

  // Later, not at once: the change may come from one of the rows' own buttons, which the
  // rebuild deletes.
  connect(&backend_, &CalendarBackend::changed, this, &CalendarListEditor::rebuild,
          Qt::QueuedConnection);
  observation_ = settings_.observe(settings::calendarExcludedIdentifiers, [this](const auto&) {
    QMetaObject::invokeMethod(this, &CalendarListEditor::rebuild, Qt::QueuedConnection);
  });
  rebuild();
}

bool CalendarListEditor::addFromField() {
  const std::optional<QString> problem = backend_.add(field_.text());
  problem_.setText(problem.value_or(QString()));
  problem_.setVisible(problem.has_value());
  if (!problem) field_.clear();
  return !problem;
}

void CalendarListEditor::rebuild() {
  while (QLayoutItem* item = list_->takeAt(0)) {
    delete item->widget();
    delete item;
  }
  const std::vector<std::string> excluded = settings_.read(settings::calendarExcludedIdentifiers);
  const std::vector<CalendarContents> calendars = backend_.calendars();
  if (calendars.empty()) {
    list_->addWidget(new QLabel(tr("No calendars yet.")));
    return;
  }
  for (const CalendarContents& calendar : calendars) {
    const CalendarSource& source = calendar.source;
    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    auto* box = new QCheckBox(source.name);
    box->setChecked(std::ranges::find(excluded, source.id.toStdString()) == excluded.end());
    box->setToolTip(source.location);
    connect(box, &QCheckBox::toggled, this,
            [this, id = source.id](bool on) { setIncluded(id, on); });
    auto* state = new QLabel(source.state.text.translated());
    state->setStyleSheet(source.state.outcome == DiagnosticsLog::Outcome::ok
                             ? QStringLiteral("color: gray")
                             : QStringLiteral("color: #b25000"));
    state->setWordWrap(true);
    row->addWidget(box);
    row->addWidget(state, 1);
    if (source.removable) {
      auto* remove = new QPushButton(tr("Remove"));
      connect(remove, &QPushButton::clicked, this, [this, id = source.id] { backend_.remove(id); });
      row->addWidget(remove);
    }
    list_->addWidget(line);
  }
}

void CalendarListEditor::setIncluded(const QString& id, bool included) {
  std::vector<std::string> excluded = settings_.read(settings::calendarExcludedIdentifiers);
  std::erase(excluded, id.toStdString());
  if (!included) excluded.push_back(id.toStdString());
  (void)settings_.write(settings::calendarExcludedIdentifiers, excluded);
}

}  // namespace tindra
