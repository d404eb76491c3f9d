// FileTrayStorageMode: whether dropped files are kept as references (`link`) or as the tray's own
// copies (`copy`); stored by its raw string in the settings. Changing it leaves held items alone.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tindra {

enum class FileTrayStorageMode { link, copy };

inline constexpr std::array<FileTrayStorageMode, 2> allFileTrayStorageModes{
    FileTrayStorageMode::link, FileTrayStorageMode::copy};

std::string_view rawValue(FileTrayStorageMode mode);
std::optional<FileTrayStorageMode> fileTrayStorageModeFromRaw(std::string_view raw);

}  // namespace tindra
