// FileTrayProvider ("files"): with `experimentalFileTray` on, files and folders dropped on the
// notch are kept in the tray section: as links (the path and the file's device and inode, so a
// file moved away or replaced shows as missing instead of opening something else) or, as
// `fileTrayMode` says, as the tray's own copies in the "file-tray" folder of Tindra's data
// folder, made off the main thread with their progress shown and a way to stop them. The list is
// saved through DurableFile; a list that cannot be read is kept aside and said so. Each drop's
// refusals (not a file, already there, the 20 items, the 2 GB of copies) are told in a status
// line. The folders holding linked items are watched, so a missing file is seen when it goes.
#pragma once

#include <QFileSystemWatcher>
#include <QFutureWatcher>
#include <QMimeDatabase>
#include <QTimer>
#include <QUrl>
#include <atomic>
#include <filesystem>
#include <functional>
#include <memory>

#include "base/provider.h"
#include "base/provider_views.h"
#include "files/file_tray.h"
#include "files/file_tray_backend.h"
#include "files/file_tray_storage.h"
#include "files/file_tray_view_model.h"
#include "settings/settings_store.h"

namespace tindra {

class FileTrayProvider final : public Provider {
  Q_OBJECT

 public:
  static constexpr std::string_view id = "files";
  // With the backends this platform gives it (the fake ones when TINDRA_FAKE names "files").
  static std::unique_ptr<FileTrayProvider> make(ProviderContext& context);
  static ProviderViews views();

  // `now` gives seconds since 1970.
  FileTrayProvider(ProviderContext context, std::unique_ptr<FileTrayBackend> backend,
                   std::filesystem::path dataFolder, std::function<double()> now,
                   QObject* parent = nullptr);
  ~FileTrayProvider() override;

  // Tindra's data folder: "$XDG_DATA_HOME/tindra".
  static std::filesystem::path defaultDataFolder();

  void start() override;
  FileTrayViewModel* viewModel() override { return &viewModel_; }

  // Takes a drop on the notch; false (the drop is refused) while the tray is off.
  bool drop(const QList<QUrl>& urls);
  const FileTray& tray() const { return tray_; }
  FileTrayBackend& backend() { return *backend_; }
  bool copying() const { return copy_ != nullptr; }

 private:
  struct Copy;

  void open(const QString& id);
  void remove(const QString& id);
  void removeAll();
  void cancelCopy();
  void addLinks(const std::vector<std::string>& paths, QStringList& status);
  // `status` says what the drop refused before measuring.
  void measured(const std::vector<FileTrayCopyRequest>& requests, QStringList status);
  void startCopy();
  void copied(const TrayCopyResult& result);
  // Takes the item out of the tray, deleting the tray's copy; false for an unknown one.
  bool takeOut(const UUID& id);
  void setStatus(QStringList parts);
  void itemsChanged();
  void save();
  void publish();
  void publishProgress();
  void watchFolders();
  bool missing(const FileTrayItem& item) const;

  // The path and its bookmark as the tray keeps them.
  FileTrayCandidate candidateFor(const std::string& path, const QMimeDatabase& types) const;

  std::unique_ptr<FileTrayBackend> backend_;
  FileTrayStorage storage_;
  std::function<double()> now_;
  FileTray tray_;
  QString status_;
  SettingsObservation observation_;
  QFileSystemWatcher folders_;
  std::vector<FileTrayCopyRequest> pending_;  // admitted, being copied or waiting to be
  std::vector<FileTrayCopyRequest> waiting_;  // admitted while another copy ran
  std::unique_ptr<Copy> copy_;
  QTimer progressTimer_;
  FileTrayViewModel viewModel_;
};

}  // namespace tindra
