// SettingsStore: the typed preferences of one user, kept in one JSON file. Reading never fails
// (nothing stored, or a value of the wrong type, reads as the key's default); defaults are never
// written. Every write reaches the file at once through DurableFile; `reload` picks up what
// another process wrote and tells the observers of the keys that changed. A file that cannot be
// read as JSON is kept aside under a dated name, never deleted; until that move succeeds nothing
// is saved over it. All file access goes through FileSystemCalls. Single-threaded: use it from
// one thread (the app's main thread).
#pragma once

#include <algorithm>
#include <cstdint>
#include <expected>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "base/json_value.h"
#include "settings/durable_file.h"
#include "settings/settings_key.h"

namespace tindra {

// Ends its observation when destroyed (or reset). Safe to outlive the store.
class SettingsObservation {
 public:
  SettingsObservation() = default;
  SettingsObservation(SettingsObservation&&) noexcept = default;
  SettingsObservation& operator=(SettingsObservation&&) noexcept;
  SettingsObservation(const SettingsObservation&) = delete;
  SettingsObservation& operator=(const SettingsObservation&) = delete;
  ~SettingsObservation();
  void reset();

 private:
  friend class SettingsStore;
  struct Registry;
  SettingsObservation(std::weak_ptr<Registry> registry, std::uint64_t id)
      : registry_(std::move(registry)), id_(id) {}
  std::weak_ptr<Registry> registry_;
  std::uint64_t id_ = 0;
};

class SettingsStore {
 public:
  using Clock = std::function<double()>;  // seconds since 1970, for naming kept-aside files
  using WriteResult = std::expected<void, DurableFile::Failure>;

  // "$XDG_CONFIG_HOME/tindra/settings.json", or "~/.config/tindra/settings.json" without it.
  static std::filesystem::path defaultFile();

  // Loads `file` (a missing file means every key reads its default). `calls` must outlive the
  // store; tests pass a fault-injecting one.
  SettingsStore(std::filesystem::path file, Clock clock,
                FileSystemCalls& calls = FileSystemCalls::system());
  ~SettingsStore();
  SettingsStore(const SettingsStore&) = delete;
  SettingsStore& operator=(const SettingsStore&) = delete;

  const std::filesystem::path& file() const { return file_; }

  template <class T>
  T read(const SettingsKey<T>& key) const;

  // Stores the value (also when it equals the default), saves the file and calls the key's
  // observers. The value stays in effect for this process even when saving fails.
  template <class T>
  WriteResult write(const SettingsKey<T>& key, const std::type_identity_t<T>& value);

  // Removes the stored value so the default applies again.
  template <class T>
  WriteResult reset(const SettingsKey<T>& key);

  // Calls `onChange` with the new value after every write, reset or outside change of the key.
  template <class T>
  [[nodiscard]] SettingsObservation observe(
      const SettingsKey<T>& key, std::function<void(const std::type_identity_t<T>&)> onChange);

  // Calls `onChange` with the key's name after every change of any of the named keys.
  [[nodiscard]] SettingsObservation observe(std::vector<std::string> names,
                                            std::function<void(std::string_view name)> onChange);

  // The stored form of a key, or nullptr; for the Settings window and diagnostics.
  const JSONValue* stored(std::string_view name) const;
  // Writes a stored form directly (the Settings window edits keys it knows only by description).
  WriteResult writeStored(std::string_view name, JSONValue value);
  WriteResult resetStored(std::string_view name);

  // Re-reads the file and notifies the observers of every key whose stored value changed.
  void reload();

  // Where the last unreadable file was moved, if any, so the app can tell the user.
  const std::optional<std::filesystem::path>& keptAside() const { return keptAside_; }

 private:
  std::vector<std::string> load();  // names whose stored values changed
  WriteResult save();
  WriteResult change(std::string_view name, std::optional<JSONValue> value);
  void notify(std::string_view name);
  void keepAside();

  std::filesystem::path file_;
  Clock clock_;
  FileSystemCalls& calls_;
  // errno of the last failed attempt to move an unreadable file aside; while set, nothing is
  // saved, so the unreadable file is never overwritten.
  int keepAsideError_ = 0;
  JSONValue::Object values_;
  std::shared_ptr<SettingsObservation::Registry> registry_;
  std::optional<std::filesystem::path> keptAside_;
};

// ---- template members ----

template <class T>
T SettingsStore::read(const SettingsKey<T>& key) const {
  const JSONValue* value = stored(key.name);
  if (value == nullptr) return key.defaultValue;
  std::optional<T> decoded = SettingsCodec<T>::decode(*value);
  return decoded ? *std::move(decoded) : key.defaultValue;
}

template <class T>
SettingsStore::WriteResult SettingsStore::write(const SettingsKey<T>& key,
                                                const std::type_identity_t<T>& value) {
  return change(key.name, SettingsCodec<T>::encode(value));
}

template <class T>
SettingsStore::WriteResult SettingsStore::reset(const SettingsKey<T>& key) {
  return change(key.name, std::nullopt);
}

template <class T>
SettingsObservation SettingsStore::observe(
    const SettingsKey<T>& key, std::function<void(const std::type_identity_t<T>&)> onChange) {
  return observe(
      std::vector<std::string>{std::string(key.name)},
      [this, key, onChange = std::move(onChange)](std::string_view) { onChange(read(key)); });
}

}  // namespace tindra
