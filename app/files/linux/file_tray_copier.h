// Measuring and copying for the file tray's copy mode, run off the main thread. A copy is written
// under a name beginning with ".incoming" in the copies folder and renamed when complete, so an
// interrupted one is never taken for a finished copy; a cancelled or failed one is removed.
#pragma once

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "files/file_tray_backend.h"
#include "files/file_tray_item.h"

namespace tindra {

// The bytes of each file, or of the regular files inside each folder (symbolic links are not
// followed); -1 for one that cannot be read, which the admission counts as invalid.
std::vector<FileTrayCopyRequest> measureForTray(const std::vector<std::string>& paths);

// Copies the requests in order into `copiesFolder`, each into a folder of its own named by a
// fresh UUID, adding to `copiedBytes` as it goes and stopping at the next chunk once `cancel`
// is set (the copies already complete are kept).
TrayCopyResult copyIntoTray(const std::vector<FileTrayCopyRequest>& requests,
                            const std::filesystem::path& copiesFolder,
                            std::atomic<std::int64_t>& copiedBytes,
                            const std::atomic<bool>& cancel);

}  // namespace tindra
