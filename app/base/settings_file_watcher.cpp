#include "base/settings_file_watcher.h"

#include "settings/settings_store.h"

namespace tindra {

SettingsFileWatcher::SettingsFileWatcher(SettingsStore& store, QObject* parent)
    : QObject(parent), store_(store), file_(QString::fromStdString(store.file().string())) {
  connect(&file_, &WatchedFile::changed, this, &SettingsFileWatcher::reload);
}

void SettingsFileWatcher::reload() {
  store_.reload();
  emit reloaded();
}

}  // namespace tindra
