// AccessoryViewModel: the connected Bluetooth accessories for the "batteries" section, and the
// latest accessory notice for the compact view, and how both draw the levels. Kinds are
// BluetoothAccessoryKind's raw values ("airPodsPro", "headphones", "speaker", ...), levels are
// percentages, -1 where unknown.
#pragma once

#include <QObject>
#include <QVariantList>
#include <optional>
#include <vector>

#include "power/accessory_battery_style.h"
#include "power/accessory_notice_tracker.h"
#include "power/battery_threshold.h"

namespace tindra {

class AccessoryViewModel : public QObject {
  Q_OBJECT
  // One map per connected accessory: name, kind, left, right, caseLevel, main.
  Q_PROPERTY(QVariantList accessories READ accessories NOTIFY accessoriesChanged)
  Q_PROPERTY(bool hasContent READ hasContent NOTIFY accessoriesChanged)
  // The latest notice: "connected", "disconnected", "low" or "routed" (the sound moved to it); its
  // accessory as one map as above;
  // for "low", the part that is low ("left", "right", "caseLevel", "main").
  Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)
  Q_PROPERTY(QVariantMap noticeAccessory READ noticeAccessory NOTIFY noticeChanged)
  Q_PROPERTY(QString noticePart READ noticePart NOTIFY noticeChanged)
  // How levels are drawn: "percentage" (numbers) or "ring"; and the percent at or below which a
  // ring is drawn in the warning colour.
  Q_PROPERTY(QString batteryStyle READ batteryStyle NOTIFY drawingChanged)
  Q_PROPERTY(int lowThreshold READ lowThreshold NOTIFY drawingChanged)

 public:
  using QObject::QObject;

  QVariantList accessories() const { return accessories_; }
  bool hasContent() const { return !accessories_.isEmpty(); }
  QString notice() const;
  QVariantMap noticeAccessory() const;
  QString noticePart() const;
  QString batteryStyle() const;
  int lowThreshold() const { return lowThreshold_; }

  void setAccessories(const std::vector<BluetoothAccessory>& accessories);
  void setNotice(const AccessoryNotice& notice);
  void setDrawing(AccessoryBatteryStyle style, int lowThreshold);

  static QVariantMap describe(const BluetoothAccessory& accessory);

 signals:
  void accessoriesChanged();
  void noticeChanged();
  void drawingChanged();

 private:
  QVariantList accessories_;
  std::optional<AccessoryNotice> notice_;
  AccessoryBatteryStyle style_ = AccessoryBatteryStyle::percentage;
  int lowThreshold_ = BatteryThreshold::defaultValue;
};

}  // namespace tindra
