// PinnedSectionsEditor: which of the opened notch's sections are pinned, and in what order: a box
// to tick for each section that can be pinned, dragged into the order they are to stand in. With
// none ticked nothing is pinned, and every section that has something to show appears.
#pragma once

#include <QListWidget>
#include <string>
#include <vector>

namespace tindra {

class ViewRegistry;

class PinnedSectionsEditor : public QListWidget {
  Q_OBJECT

 public:
  explicit PinnedSectionsEditor(const ViewRegistry& views, QWidget* parent = nullptr);

  // The pinned sections ticked first, in their order, then the rest; unknown names are dropped.
  void setPinned(const std::vector<std::string>& pinned);
  std::vector<std::string> pinned() const;

 signals:
  // A box ticked or cleared, or a section moved.
  void edited();

 private:
  const ViewRegistry& views_;
};

}  // namespace tindra
