#include "shell/display_selection_editor.h"

#include <QSignalBlocker>
#include <algorithm>

#include "activity/display_selection.h"

namespace tindra {

namespace {

const QString everyDisplay = QStringLiteral("all");
const QString mainDisplay = QStringLiteral("main");
const QString builtInDisplay = QStringLiteral("builtIn");

QString textOf(const DisplaySelection& selection) {
  return QString::fromStdString(selection.text());
}

// A single built-in panel is offered as the built-in display, which keeps meaning it whatever
// the kernel calls its connector; with more than one, each goes by its name.
QString selectionOf(const PlatformScreen& screen, bool oneBuiltIn) {
  return screen.candidate.isBuiltIn && oneBuiltIn
             ? builtInDisplay
             : textOf(DisplaySelection::named(screen.candidate.name));
}

// The attached displays a named choice means (by their names now or before).
std::vector<const PlatformScreen*> screensMeant(const DisplaySelection& selection,
                                                const std::vector<PlatformScreen>& screens) {
  std::vector<const PlatformScreen*> meant;
  if (selection.kind() != DisplaySelection::Kind::named) return meant;
  for (const PlatformScreen& screen : screens) {
    if (ScreenSource::refersTo(screen, selection.name())) meant.push_back(&screen);
  }
  return meant;
}

}  // namespace

DisplaySelectionEditor::DisplaySelectionEditor(ScreenSource& screens, QWidget* parent)
    : QComboBox(parent), screens_(&screens) {
  setSizeAdjustPolicy(QComboBox::AdjustToContents);
  setToolTip(tr("While the chosen display is not connected, the notch is on the main display."));
  connect(&screens, &ScreenSource::screensChanged, this, &DisplaySelectionEditor::rebuild);
  connect(this, &QComboBox::activated, this,
          [this](int index) { emit chosen(itemData(index).toString()); });
  rebuild();
}

void DisplaySelectionEditor::showSelection(const QString& text) {
  stored_ = text;
  rebuild();
}

void DisplaySelectionEditor::rebuild() {
  const QSignalBlocker quiet(this);
  clear();
  std::vector<PlatformScreen> screens;
  if (screens_) screens = screens_->screens();
  std::ranges::stable_sort(screens, {}, [](const PlatformScreen& s) { return s.candidate.id; });
  const bool oneBuiltIn = std::ranges::count_if(screens, [](const PlatformScreen& s) {
                            return s.candidate.isBuiltIn;
                          }) == 1;

  addItem(tr("Every display"), everyDisplay);
  const auto main =
      std::ranges::find_if(screens, [](const PlatformScreen& s) { return s.candidate.isMain; });
  addItem(main == screens.end()
              ? tr("Main display")
              : tr("Main display (%1)").arg(QString::fromStdString(main->candidate.name)),
          mainDisplay);
  if (!screens.empty()) insertSeparator(count());
  for (const PlatformScreen& screen : screens) {
    addItem(QString::fromStdString(screen.candidate.name), selectionOf(screen, oneBuiltIn));
  }
  selectStored(screens, oneBuiltIn);
  // A name cut short could be any of two twins; the words beside the list wrap instead.
  setMinimumWidth(sizeHint().width());
}

void DisplaySelectionEditor::selectStored(const std::vector<PlatformScreen>& screens,
                                          bool oneBuiltIn) {
  // Text that names no selection reads as every display, as the notch reads it.
  const DisplaySelection selection = DisplaySelection::fromText(stored_.toStdString());
  const QString text = textOf(selection);
  if (const int exact = findData(text); exact >= 0) {
    setCurrentIndex(exact);
    return;
  }
  const std::vector<const PlatformScreen*> meant = screensMeant(selection, screens);
  if (meant.size() == 1) {
    setCurrentIndex(findData(selectionOf(*meant.front(), oneBuiltIn)));
    return;
  }
  // The choice stays as it is stored, to be kept or changed: a display that is not attached, or
  // a model name that twins share (chosen while one of them was unplugged).
  const QString name = selection.kind() == DisplaySelection::Kind::builtIn
                           ? ScreenSource::builtInName()
                           : QString::fromStdString(selection.name());
  insertSeparator(count());
  addItem(meant.empty() ? tr("%1 (not connected)").arg(name)
                        : tr("%1 (%n displays)", nullptr, static_cast<int>(meant.size())).arg(name),
          text);
  setCurrentIndex(count() - 1);
}

}  // namespace tindra
