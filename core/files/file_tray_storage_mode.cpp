#include "files/file_tray_storage_mode.h"

namespace tindra {

std::string_view rawValue(FileTrayStorageMode mode) {
  switch (mode) {
    case FileTrayStorageMode::link:
      return "link";
    case FileTrayStorageMode::copy:
      return "copy";
  }
  return "link";
}

std::optional<FileTrayStorageMode> fileTrayStorageModeFromRaw(std::string_view raw) {
  for (FileTrayStorageMode mode : allFileTrayStorageModes) {
    if (rawValue(mode) == raw) return mode;
  }
  return std::nullopt;
}

}  // namespace tindra
