// SettingsWindow: every preference Tindra keeps, on pages by subsystem (settings_pages.h), each
// with its description, an editor that fits its type and a reset, and a reset for the whole page.
// The search field keeps only the settings whose name or description has the words, greys out the
// pages without one and jumps to the first. Edits are written through the store at once; changes
// from elsewhere (another process, the program itself) show up as they happen. A write that fails
// is said below the pages, with the reason, until a later one succeeds.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStackedWidget>
#include <QWidget>
#include <functional>
#include <map>
#include <string>

#include "settings/settings_keys.h"
#include "settings/settings_store.h"

class QGridLayout;
class QScrollArea;
class QVBoxLayout;

namespace tindra {

class ViewRegistry;

class SettingsWindow : public QWidget {
  Q_OBJECT

 public:
  // `views` names the sections that `pinnedWidgets` can pin.
  SettingsWindow(SettingsStore& settings, const ViewRegistry& views, QWidget* parent = nullptr);

  // The editor of the key called `name` (for tests), or nullptr.
  QWidget* editorFor(std::string_view name) const;
  // The line that reports a failed write; empty while all is well.
  QString problem() const { return problem_.text(); }
  // Puts `extra` (owned from now on) under the key's row, below any put there before, shown and
  // hidden with it: a note, or a richer editor than the key's own (the list of calendars).
  void setExtra(std::string_view name, QWidget* extra);
  // Puts `editor` (owned from now on) in place of the key's own, for a key whose values only the
  // running program knows (the attached displays): `show` puts a value in it; it hands its edits
  // to edit().
  void setEditor(std::string_view name, QWidget* editor,
                 std::function<void(const JSONValue&)> show);
  // Writes `value` to the key as an edit in this window does; a failure is said below the pages.
  void edit(std::string_view name, JSONValue value) { write(name, std::move(value)); }
  // Keys that do not apply here (the battery's on a desktop) are not listed.
  void setHidden(std::function<bool(std::string_view name)> hidden);
  // Puts `widget` (owned from now on) at the top of the page called `title` (the checks on the
  // Diagnostics page).
  void addToPage(const QString& title, QWidget* widget);

  // What the search field does with `text`.
  void search(const QString& text) { search_.setText(text); }
  int currentPage() const { return stack_.currentIndex(); }
  void showPage(int page) { pageList_.setCurrentRow(page); }
  // Whether the key's row is listed now (not hidden, and found by the search).
  bool isListed(std::string_view name) const;
  // Resets every key listed on the page.
  void resetPage(int page);

 private:
  struct Page {
    QScrollArea* scroll = nullptr;
    QGridLayout* grid = nullptr;
    QVBoxLayout* top = nullptr;  // above the grid: what addToPage puts there
  };
  struct Row {
    int page = 0;
    QWidget* label = nullptr;
    QWidget* editor = nullptr;
    QWidget* reset = nullptr;
    QWidget* extra = nullptr;
    int line = 0;
    QString about;  // what the search looks in: the key's name and its description
    std::function<void(const JSONValue&)> show;  // puts a value in the editor
  };

  void addRow(int page, int line, const settings::SettingsKeyDescription& key);
  Row makeEditor(const settings::SettingsKeyDescription& key);
  void addPage(const QString& title);
  void refresh(std::string_view name);
  void filter(const QString& text);
  void write(std::string_view name, JSONValue value);
  void reset(const std::string& name);
  void report(const SettingsStore::WriteResult& result);

  SettingsStore& settings_;
  const ViewRegistry& views_;
  SettingsObservation observation_;
  QLineEdit search_;
  QListWidget pageList_;
  QStackedWidget stack_;
  std::vector<Page> pages_;
  QLabel problem_;
  std::map<std::string, Row, std::less<>> rows_;
  std::function<bool(std::string_view)> hidden_;
};

}  // namespace tindra
