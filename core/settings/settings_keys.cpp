#include "settings/settings_keys.h"

#include <algorithm>

namespace tindra::settings {
namespace {

using Type = SettingsKeyDescription::Type;

template <class T>
SettingsKeyDescription describe(const SettingsKey<T>& key) {
  SettingsKeyDescription description{
      key.name, Type::string, SettingsCodec<T>::encode(key.defaultValue), key.description, {}};
  if constexpr (std::is_same_v<T, bool>) description.type = Type::boolean;
  if constexpr (std::is_same_v<T, std::int64_t>) description.type = Type::integer;
  if constexpr (std::is_same_v<T, double>) description.type = Type::number;
  if constexpr (std::is_same_v<T, std::optional<std::string>>)
    description.type = Type::optionalString;
  if constexpr (std::is_same_v<T, std::vector<std::string>>) description.type = Type::list;
  if constexpr (std::is_same_v<T, JSONValue::Object>) description.type = Type::dictionary;
  if constexpr (StringEnumeration<T>) {
    description.type = Type::enumeration;
    description.cases = enumRawValues<T>;
  }
  return description;
}

}  // namespace

const std::vector<SettingsKeyDescription>& allKeys() {
#define TINDRA_DESCRIBE_SETTINGS_KEY(type, name, defaultValue, description) describe(name),
  static const std::vector<SettingsKeyDescription> keys{
      TINDRA_SETTINGS_KEYS(TINDRA_DESCRIBE_SETTINGS_KEY)};
#undef TINDRA_DESCRIBE_SETTINGS_KEY
  return keys;
}

const SettingsKeyDescription* describeKey(std::string_view name) {
  const auto& keys = allKeys();
  auto it = std::find_if(keys.begin(), keys.end(),
                         [name](const SettingsKeyDescription& key) { return key.name == name; });
  return it == keys.end() ? nullptr : &*it;
}

}  // namespace tindra::settings
