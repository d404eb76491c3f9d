// FileTrayStorageMode: whether dropped files are kept as references (`link`) or as the tray's own
// copies (`copy`); stored by its raw string in the settings. Changing it leaves held items alone.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class FileTrayStorageMode { link, copy };

template <>
struct EnumTable<FileTrayStorageMode> {
  static constexpr std::array cases{EnumCase{FileTrayStorageMode::link, "link"},
                                    EnumCase{FileTrayStorageMode::copy, "copy"}};
};

}  // namespace tindra
