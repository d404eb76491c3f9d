#include "payload_stream.h"

#include "base/json_writer.h"

namespace tindra {

PayloadStream::PayloadStream(int debounceMilliseconds, Make make, Write write, QObject* parent)
    : QObject(parent),
      make_(std::move(make)),
      write_(std::move(write)),
      debounce_(std::max(0, debounceMilliseconds)) {
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, &PayloadStream::flush);
}

void PayloadStream::touch() {
  if (timer_.isActive()) return;  // a message is already on its way
  // After a quiet spell at once (once the current events are handled); else when the interval
  // since the last message is over.
  const qint64 quiet = sinceSent_.isValid() ? sinceSent_.elapsed() : debounce_;
  timer_.start(static_cast<int>(std::max<qint64>(0, debounce_ - quiet)));
}

JSONValue::Object PayloadStream::diff(const JSONValue::Object& previous,
                                      const JSONValue::Object& next) {
  JSONValue::Object changed;
  for (const auto& [name, value] : next) {
    const auto before = previous.find(name);
    if (before == previous.end() || before->second != value) changed.insert_or_assign(name, value);
  }
  for (const auto& [name, value] : previous) {
    if (!next.contains(name)) changed.insert_or_assign(name, nullptr);
  }
  return changed;
}

void PayloadStream::flush() {
  JSONValue::Object payload = make_();
  JSONValue::Object message{{"type", "data"}};
  if (!sent_) {
    message.insert_or_assign("payload", payload);
  } else {
    JSONValue::Object changed = diff(*sent_, payload);
    if (changed.empty()) return;
    message.insert_or_assign("diff", true);
    message.insert_or_assign("payload", std::move(changed));
  }
  sent_ = std::move(payload);
  sinceSent_.start();
  write_(JSONWriter::write(JSONValue(std::move(message))));
}

}  // namespace tindra
