#include "shell/pinned_sections_editor.h"

#include <QSignalBlocker>

#include "views/view_registry.h"

namespace tindra {

namespace {

// A section as the list names it.
QString title(const QString& name) {
  if (name == QLatin1String("media")) return PinnedSectionsEditor::tr("Now Playing");
  if (name == QLatin1String("calendar")) return PinnedSectionsEditor::tr("Calendar");
  if (name == QLatin1String("weather")) return PinnedSectionsEditor::tr("Weather");
  if (name == QLatin1String("fileTray")) return PinnedSectionsEditor::tr("File Tray");
  if (name == QLatin1String("batteries")) return PinnedSectionsEditor::tr("Batteries");
  return name;
}

}  // namespace

PinnedSectionsEditor::PinnedSectionsEditor(QWidget* parent) : QListWidget(parent) {
  setDragDropMode(QAbstractItemView::InternalMove);
  setToolTip(tr("Tick the sections to pin and drag them into order"));
  connect(this, &QListWidget::itemChanged, this, &PinnedSectionsEditor::edited);
  connect(model(), &QAbstractItemModel::rowsMoved, this, &PinnedSectionsEditor::edited);
  setPinned({});
}

void PinnedSectionsEditor::setPinned(const std::vector<std::string>& pinned) {
  // The list's own edit coming back from the settings leaves it as the person arranged it.
  if (count() > 0 && pinned == this->pinned()) return;
  const QSignalBlocker quiet(this);
  clear();
  QStringList order = ViewRegistry::pinned(pinned);
  const qsizetype ticked = order.size();
  for (const QString& name : ViewRegistry::pinnable()) {
    if (!order.contains(name)) order << name;
  }
  for (qsizetype i = 0; i < order.size(); ++i) {
    auto* item = new QListWidgetItem(title(order[i]), this);
    item->setData(Qt::UserRole, order[i]);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
                   Qt::ItemIsDragEnabled);
    item->setCheckState(i < ticked ? Qt::Checked : Qt::Unchecked);
  }
  setFixedHeight(sizeHintForRow(0) * count() + 2 * frameWidth());
}

std::vector<std::string> PinnedSectionsEditor::pinned() const {
  std::vector<std::string> names;
  for (int row = 0; row < count(); ++row) {
    if (item(row)->checkState() == Qt::Checked) {
      names.push_back(item(row)->data(Qt::UserRole).toString().toStdString());
    }
  }
  return names;
}

}  // namespace tindra
