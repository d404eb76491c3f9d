#include "lockscreen/lock_screen_notice.h"

#include "base/json_reader.h"
#include "base/json_writer.h"

namespace tindra {

using Reason = LockScreenNotice::Reason;

std::string_view LockScreenNotice::message(Reason reason, LockScreenFeature feature) {
  switch (reason) {
    case Reason::stoppedWhileLocked:
      return "Tindra stopped while the screen was locked.";
    case Reason::restartedWhileLocked:
      return "The Mac restarted twice in a row while the screen was locked.";
    case Reason::unreadableRecord:
      return "Tindra could not tell whether the last lock ended normally.";
    case Reason::unsupportedSystem:
      return feature == LockScreenFeature::notch
                 ? "This version of macOS does not let Tindra show the notch on the lock screen."
                 : "This version of macOS does not let Tindra show widgets on the lock screen.";
  }
  return "";
}

std::string LockScreenNotice::settingText() const {
  return JSONWriter::write(JSONValue(
      JSONValue::Object{{"reason", rawValue(reason)}, {"date", date}, {"osVersion", osVersion}}));
}

std::optional<LockScreenNotice> LockScreenNotice::fromSettingText(std::string_view text) {
  if (text.empty()) return std::nullopt;
  const auto json = JSONReader::parse(text);
  if (!json) return std::nullopt;
  const JSONValue* reason = json->find("reason");
  const JSONValue* date = json->find("date");
  const JSONValue* osVersion = json->find("osVersion");
  if (!reason || !reason->asString() || !date || !date->asNumber() || !osVersion ||
      !osVersion->asString()) {
    return std::nullopt;
  }
  const std::optional<Reason> known = enumFromRaw<Reason>(*reason->asString());
  if (!known) return std::nullopt;
  return LockScreenNotice{*known, *date->asNumber(), *osVersion->asString()};
}

}  // namespace tindra
