#include "base/dbus/dbus_value.h"

namespace tindra::dbus {

bool isInteger(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
      return true;
    default:
      return false;
  }
}

}  // namespace tindra::dbus
