#include "files/file_tray_provider.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <QtConcurrent>
#include <cstring>

#include "base/backend_selection.h"
#include "base/diagnostics_log.h"
#include "base/logging_categories.h"
#include "base/qt_text.h"
#include "base/run_off_thread.h"
#include "base/wall_clock.h"
#include "files/fake_file_tray_backend.h"
#include "settings/settings_keys.h"

namespace tindra {

// One running copy: what it copies and how far it got, shared with its worker thread.
struct FileTrayProvider::Copy {
  std::vector<FileTrayCopyRequest> requests;
  std::int64_t totalBytes = 0;
  std::atomic<std::int64_t> copiedBytes = 0;
  std::atomic<bool> cancel = false;
  QFutureWatcher<TrayCopyResult> watcher;
};

namespace {

constexpr std::chrono::milliseconds progressInterval{100};

QString nameOf(const std::string& path) {
  return QFileInfo(QString::fromStdString(path)).fileName();
}

}  // namespace

// The candidate a file or folder at `path` makes: what it names as the bookmark, its name and
// type.
FileTrayCandidate FileTrayProvider::candidateFor(const std::string& path,
                                                 const QMimeDatabase& types) const {
  return {.bookmark = backend_->bookmark(path),
          .displayName = nameOf(path).toStdString(),
          .path = path,
          .contentType = types.mimeTypeForFile(QString::fromStdString(path)).name().toStdString(),
          .copiedBytes = std::nullopt,
          .sourcePath = std::nullopt};
}

namespace {

// "Already in the tray: a.txt, b.txt." and the like; nothing for no names.
void tell(QStringList& status, const QString& before, const QStringList& names,
          const QString& after = QString()) {
  if (names.isEmpty()) return;
  const QString list = names.join(QStringLiteral(", "));
  status << ((before.isEmpty() ? list : before + QLatin1Char(' ') + list) +
             (after.isEmpty() ? QStringLiteral(".") : QLatin1Char(' ') + after));
}

}  // namespace

FileTrayProvider::FileTrayProvider(ProviderContext context,
                                   std::unique_ptr<FileTrayBackend> backend,
                                   std::filesystem::path dataFolder, std::function<double()> now,
                                   QObject* parent)
    : Provider(context, id, parent),
      backend_(std::move(backend)),
      storage_(std::move(dataFolder)),
      now_(std::move(now)),
      viewModel_({[this](const QString& id) { open(id); },
                  [this](const QString& id) { remove(id); }, [this] { removeAll(); },
                  [this] { cancelCopy(); }}) {
  progressTimer_.setInterval(progressInterval);
  connect(&progressTimer_, &QTimer::timeout, this, &FileTrayProvider::publishProgress);
  connect(&folders_, &QFileSystemWatcher::directoryChanged, this, &FileTrayProvider::publish);
}

// The workers use the backend: they finish before it goes.
FileTrayProvider::~FileTrayProvider() {
  if (copy_) copy_->cancel = true;
  for (QFutureWatcherBase* worker : findChildren<QFutureWatcherBase*>()) worker->waitForFinished();
  if (copy_) copy_->watcher.waitForFinished();
}

std::filesystem::path FileTrayProvider::defaultDataFolder() {
  return (QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
          QStringLiteral("/tindra"))
      .toStdString();
}

void FileTrayProvider::start() {
  followCheck(lcFiles(), *backend_, QStringLiteral("file system"));
  backend_->start();
  observation_ =
      settings().observe(settings::experimentalFileTray, [this](const bool&) { publish(); });
  FileTrayStorage::Loaded loaded = storage_.load();
  tray_ = std::move(loaded.tray);
  const QString kept = loaded.keptAside ? toQString(loaded.keptAside->string()) : QString();
  using Problem = FileTrayStorage::Loaded::Problem;
  if (!loaded.problem) {
    diagnostics().record(lcFiles(), name(), DiagnosticsLog::Outcome::ok,
                         Sentence(QT_TR_NOOP("keeping the file tray in %1"), tr)
                             .arg(toQString(storage_.listFile().string())));
  } else if (*loaded.problem == Problem::skippedItems) {
    diagnostics().record(
        lcFiles(), name(), DiagnosticsLog::Outcome::degraded,
        Sentence(QT_TR_NOOP("some items of the saved file tray could not be read and "
                            "were left out; the list as it was is kept as %1"),
                 tr)
            .arg(kept));
  } else {
    diagnostics().record(
        lcFiles(), name(), DiagnosticsLog::Outcome::degraded,
        Sentence(QT_TR_NOOP("the saved file tray %1; it is kept as %2 and the tray starts empty"),
                 tr)
            .arg(*loaded.problem == Problem::newerVersion
                     ? Sentence(QT_TR_NOOP("was written by a newer Tindra"), tr)
                     : Sentence(QT_TR_NOOP("could not be read"), tr))
            .arg(kept));
  }
  storage_.removeStaleIncoming(now_());
  watchFolders();
  publish();
}

bool FileTrayProvider::drop(const QList<QUrl>& urls) {
  if (!settings().read(settings::experimentalFileTray)) return false;
  QStringList status;
  std::vector<std::string> paths;
  bool other = false;
  for (const QUrl& url : urls) {
    std::string path = QFileInfo(url.toLocalFile()).absoluteFilePath().toStdString();
    if (!url.isLocalFile() || backend_->bookmark(path).empty()) {
      other = true;
      continue;
    }
    paths.push_back(std::move(path));
  }
  if (other) status << tr("Only files and folders can go in the tray.");
  if (settings().read(settings::fileTrayMode) == FileTrayStorageMode::link) {
    addLinks(paths, status);
    setStatus(status);
    itemsChanged();
    return true;
  }
  // Folders can be large: they are measured off the main thread, then admitted.
  runOffThread(
      this, [&backend = *backend_, paths] { return backend.measure(paths); },
      [this, status](std::vector<FileTrayCopyRequest> requests) { measured(requests, status); });
  return true;
}

void FileTrayProvider::addLinks(const std::vector<std::string>& paths, QStringList& status) {
  QStringList duplicates;
  QStringList full;
  QStringList unreadable;
  QMimeDatabase types;
  for (const std::string& path : paths) {
    const FileTrayCandidate candidate = candidateFor(path, types);
    const QString shown = toQString(candidate.displayName);
    const FileTray::AddResult result = tray_.add({&candidate, 1}, now_());
    if (result.duplicates > 0) duplicates << shown;
    if (result.refusedForCapacity > 0) full << shown;
    if (result.invalid > 0) unreadable << shown;
  }
  tell(status, tr("Already in the tray:"), duplicates);
  tell(status, tr("The tray is full:"), full, tr("not added. Remove some items first."));
  tell(status, tr("Only files and folders can go in the tray:"), unreadable);
}

void FileTrayProvider::measured(const std::vector<FileTrayCopyRequest>& requests,
                                QStringList status) {
  QStringList duplicates;
  QStringList full;
  QStringList tooBig;
  QStringList failed;
  for (const FileTrayCopyRequest& request : requests) {
    const FileTray::CopyAdmission admission = tray_.admitCopies({&request, 1}, pending_);
    const QString shown = nameOf(request.sourcePath);
    if (admission.duplicates > 0) duplicates << shown;
    if (admission.refusedForCapacity > 0) full << shown;
    if (admission.refusedForStoreLimit > 0) tooBig << shown;
    if (admission.invalid > 0) failed << shown;
    for (const FileTrayCopyRequest& accepted : admission.accepted) {
      pending_.push_back(accepted);
      waiting_.push_back(accepted);
    }
  }
  tell(status, tr("Already in the tray:"), duplicates);
  tell(status, tr("The tray is full:"), full, tr("not added. Remove some items first."));
  tell(status, tr("Copies in the tray are limited to 2 GB:"), tooBig,
       tr("not added. Remove some items first."));
  tell(status, QString(), failed, tr("could not be copied into the tray."));
  setStatus(status);
  startCopy();
  publish();
}

void FileTrayProvider::startCopy() {
  if (copy_ || waiting_.empty()) return;
  copy_ = std::make_unique<Copy>();
  copy_->requests = std::exchange(waiting_, {});
  for (const FileTrayCopyRequest& request : copy_->requests) copy_->totalBytes += request.byteCount;
  connect(&copy_->watcher, &QFutureWatcherBase::finished, this,
          [this] { copied(copy_->watcher.result()); });
  Copy& copy = *copy_;
  copy_->watcher.setFuture(
      QtConcurrent::run([&backend = *backend_, &copy, folder = storage_.copiesFolder()] {
        return backend.copy(copy.requests, folder, copy.copiedBytes, copy.cancel);
      }));
  progressTimer_.start();
  publishProgress();
}

void FileTrayProvider::copied(const TrayCopyResult& result) {
  QStringList status{status_};
  const QMimeDatabase types;
  for (const TrayCopy& copy : result.copied) {
    FileTrayCandidate candidate = candidateFor(copy.copyPath, types);
    candidate.copiedBytes = copy.bytes;
    candidate.sourcePath = copy.sourcePath;
    tray_.add({&candidate, 1}, now_());
  }
  QStringList failed;
  for (const std::string& path : result.failed) failed << nameOf(path);
  tell(status, QString(), failed, tr("could not be copied into the tray."));
  if (result.cancelled) status << tr("The copy into the tray was stopped.");
  for (const FileTrayCopyRequest& request : copy_->requests) {
    std::erase(pending_, request);
  }
  setStatus(status);
  // Its watcher is telling us it finished: it goes once that is over.
  QMetaObject::invokeMethod(
      this, [finished = std::shared_ptr<Copy>(copy_.release())] {}, Qt::QueuedConnection);
  progressTimer_.stop();
  publishProgress();
  itemsChanged();
  startCopy();
}

void FileTrayProvider::cancelCopy() {
  if (copy_) copy_->cancel = true;
  for (const FileTrayCopyRequest& request : waiting_) std::erase(pending_, request);
  waiting_.clear();
}

void FileTrayProvider::open(const QString& id) {
  const std::optional<UUID> uuid = UUID::fromText(id.toStdString());
  for (const FileTrayItem& item : tray_.items()) {
    if (uuid && item.id == *uuid && !missing(item)) {
      backend_->open(item.path);
    }
  }
}

void FileTrayProvider::remove(const QString& id) {
  const std::optional<UUID> uuid = UUID::fromText(id.toStdString());
  if (!uuid || !takeOut(*uuid)) return;
  status_.clear();
  itemsChanged();
}

void FileTrayProvider::removeAll() {
  std::vector<UUID> ids;
  for (const FileTrayItem& item : tray_.items()) ids.push_back(item.id);
  for (const UUID& id : ids) takeOut(id);
  status_.clear();
  itemsChanged();
}

bool FileTrayProvider::takeOut(const UUID& id) {
  const std::optional<FileTrayItem> removed = tray_.remove(id);
  if (!removed) return false;
  // The tray's copy goes with its item; a link's file is never touched.
  if (removed->isCopy()) {
    if (const auto deleted = storage_.deleteCopy(*removed); !deleted) {
      qCWarning(lcFiles).noquote() << "could not delete the tray's copy" << toQString(removed->path)
                                   << std::strerror(deleted.error().error);
    }
  }
  return true;
}

void FileTrayProvider::setStatus(QStringList parts) {
  parts.removeAll(QString());
  status_ = parts.join(QLatin1Char(' ')).trimmed();
}

// The items changed: saved, their folders watched, drawn.
void FileTrayProvider::itemsChanged() {
  save();
  watchFolders();
  publish();
}

void FileTrayProvider::save() {
  if (const auto saved = storage_.save(tray_); !saved) {
    diagnostics().record(
        lcFiles(), name(), DiagnosticsLog::Outcome::failed,
        saved.error().code == FileTrayStorage::SaveError::Code::fileInTheWay
            ? Sentence(QT_TR_NOOP("the file tray is not saved: an unreadable list "
                                  "could not be moved aside"),
                       tr)
            : Sentence::verbatim(toQString(saved.error().failure.message(storage_.listFile()))));
  }
}

bool FileTrayProvider::missing(const FileTrayItem& item) const {
  return !backend_->stillNames(item.path, item.bookmark);
}

void FileTrayProvider::watchFolders() {
  if (!folders_.directories().isEmpty()) folders_.removePaths(folders_.directories());
  QStringList folders;
  for (const FileTrayItem& item : tray_.items()) {
    const QString folder = QFileInfo(QString::fromStdString(item.path)).absolutePath();
    if (!folders.contains(folder) && QFileInfo::exists(folder)) folders << folder;
  }
  if (!folders.isEmpty()) folders_.addPaths(folders);
}

void FileTrayProvider::publish() {
  QVariantList items;
  for (const FileTrayItem& item : tray_.items()) {
    items << QVariantMap{{"id", toQString(item.id.text())},
                         {"name", toQString(item.displayName)},
                         {"url", QUrl::fromLocalFile(toQString(item.path)).toString()},
                         {"missing", missing(item)},
                         {"copy", item.isCopy()}};
  }
  viewModel_.set(settings().read(settings::experimentalFileTray), items, status_);
}

void FileTrayProvider::publishProgress() {
  if (!copy_) {
    viewModel_.setProgress(false, 0, QString());
    return;
  }
  const double done = copy_->totalBytes > 0 ? static_cast<double>(copy_->copiedBytes.load()) /
                                                  static_cast<double>(copy_->totalBytes)
                                            : 0.0;
  const int count = static_cast<int>(copy_->requests.size());
  viewModel_.setProgress(true, done, tr("Copying %n item(s) into the tray…", nullptr, count));
}

std::unique_ptr<FileTrayProvider> FileTrayProvider::make(ProviderContext& context) {
  SharedBackends& shared = *context.shared;
  return std::make_unique<FileTrayProvider>(
      context,
      chooseBackend(
          id, shared, [] { return std::make_unique<FakeFileTrayBackend>(); },
          [&] { return FileTrayBackend::forPlatform(shared); }),
      defaultDataFolder(), secondsSince1970);
}

ProviderViews FileTrayProvider::views() {
  return {.sections = {{.name = QStringLiteral("fileTray"),
                        .title = QT_TRANSLATE_NOOP("PinnedSectionsEditor", "File Tray"),
                        .rank = 50,
                        .file = QStringLiteral("files/FileTrayPanel.qml")}}};
}

}  // namespace tindra
