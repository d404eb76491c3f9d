// SettingsWindow: every preference Tindra keeps, listed from the key table with its description, an
// editor that fits its type, a search field, and a reset per key. Edits are written through the
// store at once; changes from elsewhere (another process, the program itself) show up as they
// happen. A write that fails is said below the list, with the reason, until a later one succeeds.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QWidget>
#include <functional>
#include <map>
#include <string>

#include "settings/settings_keys.h"
#include "settings/settings_store.h"

class QGridLayout;

namespace tindra {

class SettingsWindow : public QWidget {
  Q_OBJECT

 public:
  explicit SettingsWindow(SettingsStore& settings, QWidget* parent = nullptr);

  // The editor of the key called `name` (for tests), or nullptr.
  QWidget* editorFor(std::string_view name) const;
  // The line that reports a failed write; empty while all is well.
  QString problem() const { return problem_.text(); }
  // Puts `extra` (owned from now on) under the key's row, shown and hidden with it: a note, or a
  // richer editor than the key's own (the list of calendars).
  void setExtra(std::string_view name, QWidget* extra);
  // Keys that do not apply here (the battery's on a desktop) are not listed.
  void setHidden(std::function<bool(std::string_view name)> hidden);

 private:
  struct Row {
    QWidget* label = nullptr;
    QWidget* editor = nullptr;
    QWidget* reset = nullptr;
    QWidget* extra = nullptr;
    int line = 0;
    std::function<void(const JSONValue&)> show;  // puts a value in the editor
  };

  void addRow(QGridLayout& grid, int line, const settings::SettingsKeyDescription& key);
  Row makeEditor(const settings::SettingsKeyDescription& key);
  void refresh(std::string_view name);
  void filter(const QString& text);
  void write(std::string_view name, JSONValue value);
  void reset(const std::string& name);
  void report(const SettingsStore::WriteResult& result);

  SettingsStore& settings_;
  SettingsObservation observation_;
  QGridLayout* grid_ = nullptr;
  QLineEdit search_;
  QLabel problem_;
  std::map<std::string, Row, std::less<>> rows_;
  std::function<bool(std::string_view)> hidden_;
};

}  // namespace tindra
