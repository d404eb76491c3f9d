#include "settings/settings_store.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <set>
#include <system_error>

#include "base/json_reader.h"
#include "base/json_writer.h"

namespace tindra {

struct SettingsObservation::Registry {
  struct Entry {
    std::uint64_t id;
    std::vector<std::string> names;
    std::function<void(std::string_view)> onChange;
  };
  std::vector<Entry> entries;
  std::uint64_t nextId = 1;

  void remove(std::uint64_t id) {
    std::erase_if(entries, [id](const Entry& entry) { return entry.id == id; });
  }
};

SettingsObservation& SettingsObservation::operator=(SettingsObservation&& other) noexcept {
  if (this != &other) {
    reset();
    registry_ = std::move(other.registry_);
    id_ = std::exchange(other.id_, 0);
  }
  return *this;
}

SettingsObservation::~SettingsObservation() {
  reset();
}

void SettingsObservation::reset() {
  if (auto registry = registry_.lock()) registry->remove(id_);
  registry_.reset();
  id_ = 0;
}

namespace {

std::filesystem::path homeFolder() {
  if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0') return home;
  if (const passwd* entry = getpwuid(getuid()); entry != nullptr) return entry->pw_dir;
  return "/";
}

// "20261122T210800Z": sorts by time and is safe in file names.
std::string compactUTCStamp(double secondsSince1970) {
  const auto seconds =
      static_cast<std::time_t>(std::isfinite(secondsSince1970) ? secondsSince1970 : 0);
  std::tm parts{};
  gmtime_r(&seconds, &parts);
  char text[32];
  std::strftime(text, sizeof text, "%Y%m%dT%H%M%SZ", &parts);
  return text;
}

}  // namespace

std::filesystem::path SettingsStore::defaultFile() {
  const char* configHome = std::getenv("XDG_CONFIG_HOME");
  // The XDG rules ignore a relative XDG_CONFIG_HOME.
  std::filesystem::path folder = configHome != nullptr && configHome[0] == '/'
                                     ? std::filesystem::path(configHome)
                                     : homeFolder() / ".config";
  return folder / "tindra" / "settings.json";
}

SettingsStore::SettingsStore(std::filesystem::path file, Clock clock, FileSystemCalls& calls)
    : file_(std::move(file)),
      clock_(std::move(clock)),
      calls_(calls),
      registry_(std::make_shared<SettingsObservation::Registry>()) {
  load();
}

SettingsStore::~SettingsStore() = default;

const JSONValue* SettingsStore::stored(std::string_view name) const {
  auto it = values_.find(name);
  return it == values_.end() ? nullptr : &it->second;
}

SettingsStore::WriteResult SettingsStore::writeStored(std::string_view name, JSONValue value) {
  return change(name, std::move(value));
}

SettingsStore::WriteResult SettingsStore::resetStored(std::string_view name) {
  return change(name, std::nullopt);
}

SettingsObservation SettingsStore::observe(std::vector<std::string> names,
                                           std::function<void(std::string_view)> onChange) {
  const std::uint64_t id = registry_->nextId++;
  registry_->entries.push_back({id, std::move(names), std::move(onChange)});
  return SettingsObservation(registry_, id);
}

void SettingsStore::reload() {
  for (const std::string& name : load()) notify(name);
}

std::vector<std::string> SettingsStore::load() {
  JSONValue::Object loaded;
  keepAsideError_ = 0;
  const DurableFile durable(file_, calls_);
  std::expected<std::string, int> bytes = durable.read();
  if (bytes) {
    std::expected<JSONValue, JSONParseError> document = JSONReader::parse(*bytes);
    if (document && document->asObject() != nullptr) {
      loaded = std::move(*document->asObject());
    } else {
      keepAside();
    }
  } else if (bytes.error() != ENOENT) {
    keepAside();
  }

  std::set<std::string, std::less<>> changed;
  for (const auto& [name, value] : loaded) {
    const JSONValue* before = stored(name);
    if (before == nullptr || *before != value) changed.insert(name);
  }
  for (const auto& [name, value] : values_) {
    if (!loaded.contains(name)) changed.insert(name);
  }
  values_ = std::move(loaded);
  return {changed.begin(), changed.end()};
}

// Moves an unreadable file out of the way under a dated name, so that saving never overwrites
// whatever the user had in it. When the move fails, saving waits until a later load manages it.
void SettingsStore::keepAside() {
  const std::string stem = file_.filename().string() + ".unreadable-" + compactUTCStamp(clock_());
  std::filesystem::path aside = file_.parent_path() / stem;
  for (int attempt = 2; calls_.access(aside.c_str(), F_OK) == 0; ++attempt) {
    aside = file_.parent_path() / (stem + "-" + std::to_string(attempt));
  }
  if (calls_.rename(file_.c_str(), aside.c_str()) == 0) {
    keptAside_ = aside;
  } else {
    keepAsideError_ = errno != 0 ? errno : EIO;
  }
}

SettingsStore::WriteResult SettingsStore::change(std::string_view name,
                                                 std::optional<JSONValue> value) {
  reload();  // merge what other processes wrote since, so saving does not undo it
  if (value) {
    values_.insert_or_assign(std::string(name), *std::move(value));
  } else if (auto it = values_.find(name); it != values_.end()) {
    values_.erase(it);
  }
  WriteResult saved = save();
  notify(name);
  return saved;
}

SettingsStore::WriteResult SettingsStore::save() {
  if (keepAsideError_ != 0) {
    return std::unexpected(
        DurableFile::Failure{DurableFile::Failure::Step::rename, keepAsideError_});
  }
  return DurableFile(file_, calls_).write(JSONWriter::writePretty(JSONValue(values_)));
}

void SettingsStore::notify(std::string_view name) {
  std::vector<std::uint64_t> ids;
  for (const auto& entry : registry_->entries) {
    if (std::find(entry.names.begin(), entry.names.end(), name) != entry.names.end()) {
      ids.push_back(entry.id);
    }
  }
  // A callback may end observations (its own or others'), so look each one up again.
  for (std::uint64_t id : ids) {
    auto& entries = registry_->entries;
    auto it = std::find_if(entries.begin(), entries.end(),
                           [id](const auto& entry) { return entry.id == id; });
    if (it == entries.end()) continue;
    std::function<void(std::string_view)> onChange = it->onChange;
    onChange(name);
  }
}

}  // namespace tindra
