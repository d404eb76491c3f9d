#include "power/accessory_view_model.h"

#include "base/qt_text.h"

namespace tindra {

QVariantMap AccessoryViewModel::describe(const BluetoothAccessory& accessory) {
  QVariantMap map{{"name", QString::fromStdString(accessory.name)},
                  {"kind", toQString(rawValue(accessory.kind))}};
  for (const AccessoryBatteryPart part : allCases<AccessoryBatteryPart>()) {
    map.insert(toQString(rawValue(part)), accessory.battery.level(part).value_or(-1));
  }
  return map;
}

QString AccessoryViewModel::notice() const {
  return notice_ ? toQString(rawValue(notice_->kind)) : QString();
}

QVariantMap AccessoryViewModel::noticeAccessory() const {
  return notice_ ? describe(notice_->accessory) : QVariantMap();
}

QString AccessoryViewModel::noticePart() const {
  return notice_ && notice_->part ? toQString(rawValue(*notice_->part)) : QString();
}

QString AccessoryViewModel::batteryStyle() const {
  return toQString(rawValue(style_));
}

void AccessoryViewModel::setDrawing(AccessoryBatteryStyle style, int lowThreshold) {
  if (style == style_ && lowThreshold == lowThreshold_) return;
  style_ = style;
  lowThreshold_ = lowThreshold;
  emit drawingChanged();
}

void AccessoryViewModel::setAccessories(const std::vector<BluetoothAccessory>& accessories) {
  QVariantList list;
  for (const BluetoothAccessory& accessory : accessories) list << describe(accessory);
  if (list == accessories_) return;
  accessories_ = list;
  emit accessoriesChanged();
}

void AccessoryViewModel::setNotice(const AccessoryNotice& notice) {
  notice_ = notice;
  emit noticeChanged();
}

}  // namespace tindra
