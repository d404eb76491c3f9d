// FocusViewModel: what the Focus views draw: the Focus just shown (its name, or "Focus" for one
// without a name, and its symbol) and the indicator kept while it lasts.
#pragma once

#include <QObject>
#include <QString>
#include <optional>

#include "base/assign_if_changed.h"
#include "base/qt_text.h"
#include "focus/focus_presentation.h"

namespace tindra {

class FocusViewModel : public QObject {
  Q_OBJECT
  Q_PROPERTY(bool shown READ shown NOTIFY changed)
  Q_PROPERTY(QString name READ name NOTIFY changed)
  // The symbol's raw value: "moon", "book", ...
  Q_PROPERTY(QString symbol READ symbol NOTIFY changed)
  Q_PROPERTY(bool indicator READ indicator NOTIFY changed)

 public:
  using QObject::QObject;

  bool shown() const { return shown_.has_value(); }
  QString name() const { return shown_ && shown_->name ? toQString(*shown_->name) : tr("Focus"); }
  QString symbol() const {
    return toQString(rawValue(shown_ ? shown_->symbol : FocusSymbol::moon));
  }
  bool indicator() const { return indicator_.has_value(); }

  void set(std::optional<FocusPresentation::Shown> shown,
           std::optional<FocusPresentation::Shown> indicator) {
    const bool changedShown = assignIfChanged(shown_, std::move(shown));
    if (assignIfChanged(indicator_, std::move(indicator)) || changedShown) emit changed();
  }

 signals:
  void changed();

 private:
  std::optional<FocusPresentation::Shown> shown_;
  std::optional<FocusPresentation::Shown> indicator_;
};

}  // namespace tindra
