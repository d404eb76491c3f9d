#include "shell/pinned_sections_editor.h"

#include <QCoreApplication>
#include <QSignalBlocker>

#include "views/view_registry.h"

namespace tindra {

PinnedSectionsEditor::PinnedSectionsEditor(const ViewRegistry& views, QWidget* parent)
    : QListWidget(parent), views_(views) {
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
  QStringList order = views_.pinned(pinned);
  const qsizetype ticked = order.size();
  QHash<QString, QString> titles;
  for (const ViewRegistry::Section* section : views_.pinnable()) {
    if (!order.contains(section->name)) order << section->name;
    // The providers mark the titles under "PinnedSectionsEditor"; tr() here would look under
    // "tindra::PinnedSectionsEditor" and find nothing.
    titles[section->name] = QCoreApplication::translate("PinnedSectionsEditor", section->title);
  }
  for (qsizetype i = 0; i < order.size(); ++i) {
    auto* item = new QListWidgetItem(titles.value(order[i]), this);
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
