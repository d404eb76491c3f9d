// PayloadStream: writes the chosen player's payload as adapter messages, one JSON object per
// line: the full payload first, then only what changed (a removed key as null), and nothing at
// all while nothing changed. A change after a quiet spell goes out at once (with whatever else
// the same moment brought); changes that follow it within the debounce interval share one
// message at its end.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <functional>
#include <optional>
#include <string>

#include "base/json_value.h"

namespace tindra {

class PayloadStream : public QObject {
  Q_OBJECT

 public:
  using Make = std::function<JSONValue::Object()>;
  using Write = std::function<void(const std::string& line)>;

  PayloadStream(int debounceMilliseconds, Make make, Write write, QObject* parent = nullptr);

  // Something changed: a message follows within the debounce interval.
  void touch();

  // The keys of `next` that differ from `previous`, with null for the ones it lost.
  static JSONValue::Object diff(const JSONValue::Object& previous, const JSONValue::Object& next);

 private:
  void flush();

  Make make_;
  Write write_;
  int debounce_;
  QTimer timer_;
  QElapsedTimer sinceSent_;
  std::optional<JSONValue::Object> sent_;
};

}  // namespace tindra
