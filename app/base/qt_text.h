// toQString: the core's UTF-8 text (raw values, names, symbols) as a QString for Qt and QML.
#pragma once

#include <QString>
#include <string_view>

namespace tindra {

inline QString toQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace tindra
