#include "shell/settings_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>
#include <cmath>

#include "base/json_reader.h"
#include "base/json_writer.h"
#include "base/qt_text.h"
#include "settings/settings_keys.h"
#include "shell/game_list_editor.h"
#include "shell/pinned_sections_editor.h"
#include "shell/settings_key_texts.h"
#include "shell/settings_pages.h"

namespace tindra {

namespace {

using Type = settings::SettingsKeyDescription::Type;

// Whole numbers a double carries exactly, as the store keeps integers.
constexpr double maxExactInteger = 9007199254740992.0;

}  // namespace

SettingsWindow::SettingsWindow(SettingsStore& settings, const ViewRegistry& views, QWidget* parent)
    : QWidget(parent), settings_(settings), views_(views) {
  setWindowTitle(tr("Tindra Settings"));
  resize(820, 640);
  search_.setPlaceholderText(tr("Search settings"));
  search_.setClearButtonEnabled(true);
  connect(&search_, &QLineEdit::textChanged, this, &SettingsWindow::filter);
  pageList_.setFixedWidth(200);
  connect(&pageList_, &QListWidget::currentRowChanged, &stack_, &QStackedWidget::setCurrentIndex);

  for (const SettingsPage& page : settingsPages()) addPage(page.title);
  std::vector<std::string> names;
  std::vector<int> lines(pages_.size(), 0);
  // Two lines a key: its row, and below it a place for what belongs with it (setExtra).
  for (const settings::SettingsKeyDescription& key : settings::allKeys()) {
    const int page = std::max(0, settingsPageOf(key.name));
    addRow(page, lines[page], key);
    lines[page] += 2;
    names.emplace_back(key.name);
  }
  for (std::size_t page = 0; page < pages_.size(); ++page) {
    pages_[page].grid->setRowStretch(lines[page], 1);
  }
  pageList_.setCurrentRow(0);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(&search_);
  auto* body = new QHBoxLayout;
  body->addWidget(&pageList_);
  body->addWidget(&stack_, 1);
  layout->addLayout(body, 1);
  problem_.setStyleSheet(QStringLiteral("color: #d70015"));
  problem_.setWordWrap(true);
  problem_.hide();
  layout->addWidget(&problem_);

  observation_ =
      settings_.observe(std::move(names), [this](std::string_view name) { refresh(name); });
}

void SettingsWindow::addPage(const QString& title) {
  const int index = static_cast<int>(pages_.size());
  pageList_.addItem(title);
  auto* content = new QWidget;
  auto* column = new QVBoxLayout(content);
  Page page;
  page.top = new QVBoxLayout;
  column->addLayout(page.top);
  page.grid = new QGridLayout;
  // The words get more room than the controls, which need little.
  page.grid->setColumnStretch(0, 3);
  page.grid->setColumnStretch(1, 2);
  column->addLayout(page.grid, 1);
  if (!settingsPages()[static_cast<std::size_t>(index)].keys.empty()) {
    auto* resetAll = new QPushButton(tr("Reset Page"));
    resetAll->setToolTip(tr("Use the default value of every setting on this page"));
    connect(resetAll, &QPushButton::clicked, this, [this, index] { resetPage(index); });
    column->addWidget(resetAll, 0, Qt::AlignLeft);
  }
  page.scroll = new QScrollArea;
  page.scroll->setWidgetResizable(true);
  page.scroll->setWidget(content);
  stack_.addWidget(page.scroll);
  pages_.push_back(page);
}

void SettingsWindow::addToPage(const QString& title, QWidget* widget) {
  for (int page = 0; page < pageList_.count(); ++page) {
    if (pageList_.item(page)->text() == title) {
      pages_[static_cast<std::size_t>(page)].top->addWidget(widget);
      return;
    }
  }
  delete widget;
}

bool SettingsWindow::isListed(std::string_view name) const {
  const auto row = rows_.find(name);
  return row != rows_.end() && !row->second.label->isHidden();
}

void SettingsWindow::resetPage(int page) {
  for (const auto& [name, row] : rows_) {
    if (row.page == page && (!hidden_ || !hidden_(name))) reset(name);
  }
}

QWidget* SettingsWindow::editorFor(std::string_view name) const {
  auto row = rows_.find(name);
  return row == rows_.end() ? nullptr : row->second.editor;
}

void SettingsWindow::addRow(int page, int line, const settings::SettingsKeyDescription& key) {
  QGridLayout& grid = *pages_[static_cast<std::size_t>(page)].grid;
  Row row = makeEditor(key);
  row.page = page;
  // The description in the desktop's language (settings_key_texts.cpp marks them all).
  const char* here = settingsDescriptionHere(key.name);
  const QString description = QCoreApplication::translate(
      "SettingsKeys", here != nullptr ? here : std::string(key.description).c_str());
  // What it is for, in words, and below it in grey the key's name, which the preferences file,
  // scripts and bug reports use.
  auto* label =
      new QLabel(QStringLiteral("%1<br><small style=\"color: gray\">%2</small>")
                     .arg(description.toHtmlEscaped(), toQString(key.name).toHtmlEscaped()));
  label->setWordWrap(true);
  label->setToolTip(toQString(key.name));
  row.label = label;
  row.about = toQString(key.name) + QLatin1Char(' ') + description;
  auto* reset = new QToolButton;
  reset->setText(tr("Reset"));
  reset->setToolTip(tr("Use the default value"));
  const std::string name(key.name);
  connect(reset, &QToolButton::clicked, this, [this, name] { this->reset(name); });
  row.reset = reset;
  grid.addWidget(row.label, line, 0);
  grid.addWidget(row.editor, line, 1);
  grid.addWidget(row.reset, line, 2);
  row.line = line;
  rows_.emplace(name, std::move(row));
  refresh(name);
}

SettingsWindow::Row SettingsWindow::makeEditor(const settings::SettingsKeyDescription& key) {
  const std::string name(key.name);
  Row row;
  switch (key.type) {
    case Type::boolean: {
      auto* box = new QCheckBox;
      connect(box, &QCheckBox::toggled, this, [this, name](bool on) { write(name, on); });
      row.editor = box;
      row.show = [box](const JSONValue& v) {
        box->setChecked(v.asBool() != nullptr && *v.asBool());
      };
      break;
    }
    case Type::integer: {
      // QSpinBox holds ints; thresholds and minutes fit with room to spare.
      auto* box = new QSpinBox;
      const std::optional<SettingsRange> range = settingsRangeOf(key.name);
      box->setRange(range ? static_cast<int>(range->minimum) : -1'000'000'000,
                    range ? static_cast<int>(range->maximum) : 1'000'000'000);
      connect(box, &QSpinBox::valueChanged, this, [this, name](int v) { write(name, v); });
      row.editor = box;
      row.show = [box](const JSONValue& v) {
        const double* n = v.asNumber();
        if (n != nullptr && std::abs(*n) <= maxExactInteger) box->setValue(static_cast<int>(*n));
      };
      break;
    }
    case Type::number: {
      auto* box = new QDoubleSpinBox;
      const std::optional<SettingsRange> range = settingsRangeOf(key.name);
      box->setRange(range ? range->minimum : -1e6, range ? range->maximum : 1e6);
      box->setDecimals(2);
      box->setSingleStep(range ? range->step : 0.05);
      connect(box, &QDoubleSpinBox::valueChanged, this, [this, name](double v) { write(name, v); });
      row.editor = box;
      row.show = [box](const JSONValue& v) {
        if (v.asNumber() != nullptr) box->setValue(*v.asNumber());
      };
      break;
    }
    case Type::enumeration: {
      // Each choice in the desktop's language, its stored value beside it.
      auto* box = new QComboBox;
      for (std::string_view c : key.cases) {
        const auto words = settingsValueTexts().find(c);
        const std::string text(words != settingsValueTexts().end() ? words->second : c);
        box->addItem(QCoreApplication::translate("SettingsValues", text.c_str()), toQString(c));
      }
      connect(box, &QComboBox::activated, this, [this, name, box](int index) {
        write(name, box->itemData(index).toString().toStdString());
      });
      row.editor = box;
      row.show = [box](const JSONValue& v) {
        if (v.asString() != nullptr) {
          box->setCurrentIndex(box->findData(QString::fromStdString(*v.asString())));
        }
      };
      break;
    }
    case Type::string:
      if (key.name == settings::gameBundleIdentifiers.name) {
        auto* games = new GameListEditor;
        connect(games, &GameListEditor::edited, this,
                [this, games, name] { write(name, games->stored().toStdString()); });
        row.editor = games;
        row.show = [games](const JSONValue& v) {
          games->setStored(v.asString() != nullptr ? QString::fromStdString(*v.asString())
                                                   : QString());
        };
        break;
      }
      [[fallthrough]];
    case Type::optionalString: {
      auto* edit = new QLineEdit;
      if (key.type == Type::optionalString) edit->setPlaceholderText(tr("(none)"));
      const bool optional = key.type == Type::optionalString;
      connect(edit, &QLineEdit::editingFinished, this, [this, edit, name, optional] {
        if (optional && edit->text().isEmpty()) {
          reset(name);
        } else {
          write(name, edit->text().toStdString());
        }
      });
      row.editor = edit;
      row.show = [edit](const JSONValue& v) {
        edit->setText(v.asString() != nullptr ? QString::fromStdString(*v.asString()) : QString());
      };
      break;
    }
    case Type::list:
      if (key.name == settings::pinnedWidgets.name) {
        auto* list = new PinnedSectionsEditor(views_);
        using Codec = SettingsCodec<std::vector<std::string>>;
        connect(list, &PinnedSectionsEditor::edited, this,
                [this, list, name] { write(name, Codec::encode(list->pinned())); });
        row.editor = list;
        // A stored value of the wrong type counts as none, as it does for the notch.
        row.show = [list](const JSONValue& v) {
          list->setPinned(Codec::decode(v).value_or(std::vector<std::string>{}));
        };
        break;
      }
      [[fallthrough]];
    case Type::dictionary: {
      // Lists and dictionaries are edited as JSON text; text that does not read is not written.
      auto* edit = new QLineEdit;
      const Type type = key.type;
      connect(edit, &QLineEdit::editingFinished, this, [this, edit, name, type] {
        auto parsed = JSONReader::parse(edit->text().toStdString());
        const bool fits = parsed && (type == Type::list ? parsed->asArray() != nullptr
                                                        : parsed->asObject() != nullptr);
        edit->setStyleSheet(fits ? QString() : QStringLiteral("color: #d70015"));
        if (fits) write(name, *std::move(parsed));
      });
      row.editor = edit;
      row.show = [edit](const JSONValue& v) {
        edit->setStyleSheet(QString());
        edit->setText(QString::fromStdString(JSONWriter::write(v)));
      };
      break;
    }
  }
  return row;
}

void SettingsWindow::write(std::string_view name, JSONValue value) {
  const JSONValue* stored = settings_.stored(name);
  if (stored != nullptr && *stored == value) return;
  report(settings_.writeStored(name, std::move(value)));
}

void SettingsWindow::reset(const std::string& name) {
  report(settings_.resetStored(name));
}

void SettingsWindow::report(const SettingsStore::WriteResult& result) {
  if (result) {
    problem_.clear();
    problem_.hide();
    return;
  }
  problem_.setText(tr("The change was not saved: %1")
                       .arg(QString::fromStdString(result.error().message(settings_.file()))));
  problem_.show();
}

void SettingsWindow::refresh(std::string_view name) {
  auto row = rows_.find(name);
  const settings::SettingsKeyDescription* key = settings::describeKey(name);
  if (row == rows_.end() || key == nullptr) return;
  const QSignalBlocker quiet(row->second.editor);
  const JSONValue* stored = settings_.stored(name);
  row->second.show(stored != nullptr ? *stored : key->defaultValue);
}

void SettingsWindow::setExtra(std::string_view name, QWidget* extra) {
  auto row = rows_.find(name);
  if (row == rows_.end()) {
    delete extra;
    return;
  }
  // Several extras stand one below the other, in the order they were put there.
  if (row->second.extra == nullptr) {
    row->second.extra = new QWidget;
    auto* stack = new QVBoxLayout(row->second.extra);
    stack->setContentsMargins(0, 0, 0, 0);
    pages_[static_cast<std::size_t>(row->second.page)].grid->addWidget(
        row->second.extra, row->second.line + 1, 0, 1, 3);
  }
  row->second.extra->layout()->addWidget(extra);
  filter(search_.text());
}

void SettingsWindow::setEditor(std::string_view name, QWidget* editor,
                               std::function<void(const JSONValue&)> show) {
  auto row = rows_.find(name);
  if (row == rows_.end()) {
    delete editor;
    return;
  }
  QGridLayout& grid = *pages_[static_cast<std::size_t>(row->second.page)].grid;
  delete row->second.editor;
  row->second.editor = editor;
  row->second.show = std::move(show);
  grid.addWidget(editor, row->second.line, 1);
  refresh(name);
  filter(search_.text());
}

void SettingsWindow::setHidden(std::function<bool(std::string_view name)> hidden) {
  hidden_ = std::move(hidden);
  filter(search_.text());
}

void SettingsWindow::filter(const QString& text) {
  const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  std::vector<const Row*> firstFound(pages_.size(), nullptr);
  for (const auto& [name, row] : rows_) {
    const bool match =
        (!hidden_ || !hidden_(name)) && std::ranges::all_of(words, [&](const QString& word) {
          return row.about.contains(word, Qt::CaseInsensitive);
        });
    row.label->setVisible(match);
    row.editor->setVisible(match);
    row.reset->setVisible(match);
    if (row.extra != nullptr) row.extra->setVisible(match);
    const Row*& first = firstFound[static_cast<std::size_t>(row.page)];
    if (match && (first == nullptr || row.line < first->line)) first = &row;
  }
  if (words.isEmpty()) {
    for (int page = 0; page < pageList_.count(); ++page)
      pageList_.item(page)->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    return;
  }
  // Pages without a match are greyed out; the first page with one is shown at its first match.
  int jumpTo = -1;
  for (std::size_t page = 0; page < pages_.size(); ++page) {
    const bool found = firstFound[page] != nullptr;
    pageList_.item(static_cast<int>(page))
        ->setFlags(found ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags);
    if (found && jumpTo < 0) jumpTo = static_cast<int>(page);
  }
  const int current = stack_.currentIndex();
  if (jumpTo >= 0 && firstFound[static_cast<std::size_t>(current)] == nullptr) {
    pageList_.setCurrentRow(jumpTo);
  }
  if (const Row* first = firstFound[static_cast<std::size_t>(stack_.currentIndex())]) {
    pages_[static_cast<std::size_t>(stack_.currentIndex())].scroll->ensureWidgetVisible(
        first->label);
  }
}

}  // namespace tindra
