// DisplaySelectionEditor: the choice of displays for the notch in Settings, as a list: every
// display, the main one, and each attached display by the name its owner knows it by (a laptop's
// panel as the built-in display). It follows displays as they come and go. A display chosen
// before and not attached now stays in the list, marked as not connected, so looking at the
// choice does not lose it; a choice stored under an older name of an attached display shows as
// that display.
#pragma once

#include <QComboBox>
#include <QPointer>

#include "notch/screen_source.h"

namespace tindra {

class DisplaySelectionEditor : public QComboBox {
  Q_OBJECT

 public:
  explicit DisplaySelectionEditor(ScreenSource& screens, QWidget* parent = nullptr);

  // Shows the stored selection `text` ("all", "main", "builtIn", "named:…") as chosen.
  void showSelection(const QString& text);

 signals:
  // The user picked the selection `text`.
  void chosen(const QString& text);

 private:
  void rebuild();
  // Selects the entry of the stored choice, adding one where no attached display stands for it.
  void selectStored(const std::vector<PlatformScreen>& screens, bool oneBuiltIn);

  QPointer<ScreenSource> screens_;
  QString stored_ = QStringLiteral("all");
};

}  // namespace tindra
