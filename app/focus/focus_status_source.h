// FocusStatusSource: whether the desktop's own do-not-disturb (its Focus) is on. A source reports
// each change when it happens and says which service it reads; the state is unknown until read.
// NullFocusStatusSource is the do-nothing source of a desktop that has no such switch to read.
#pragma once

#include <QObject>
#include <optional>

#include "base/service_check.h"

namespace tindra {

class FocusStatusSource : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  virtual void start() = 0;
  // Whether the desktop's do-not-disturb is on; nothing while unknown.
  virtual std::optional<bool> focused() const = 0;
  virtual ServiceCheck check() const = 0;

 signals:
  void focusedChanged();
  void checkChanged();
};

class NullFocusStatusSource final : public FocusStatusSource {
 public:
  explicit NullFocusStatusSource(QString reason, QObject* parent = nullptr)
      : FocusStatusSource(parent), check_{DiagnosticsLog::Outcome::degraded, std::move(reason)} {}

  void start() override {}
  std::optional<bool> focused() const override { return std::nullopt; }
  ServiceCheck check() const override { return check_; }

 private:
  ServiceCheck check_;
};

}  // namespace tindra
