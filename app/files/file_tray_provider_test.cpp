#include "files/file_tray_provider.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <filesystem>

#include "base/diagnostics_log.h"
#include "base/qt_text.h"
#include "files/fake_file_tray_backend.h"
#include "files/linux/posix_file_tray_backend.h"
#include "settings/settings_keys.h"
#include "testing/picture_checks.h"
#include "testing/provider_test_context.h"
#include "testing/view_shot.h"

namespace tindra {
namespace {

namespace fs = std::filesystem;

bool waitFor(const std::function<bool()>& condition) {
  return QTest::qWaitFor(condition, 10000);
}

class FileTrayProviderTest : public ::testing::Test {
 protected:
  FileTrayProviderTest() {
    EXPECT_TRUE(context_.settings().write(settings::experimentalFileTray, true));
    QDir().mkpath(files_.path());
  }

  // On the real file system unless another is given; opening is recorded.
  std::unique_ptr<FileTrayProvider> started(std::unique_ptr<FileTrayBackend> fileSystem = nullptr) {
    if (!fileSystem) {
      fileSystem = std::make_unique<PosixFileTrayBackend>([this](const std::string& path) {
        opened_ << toQString(path);
        return true;
      });
    }
    auto provider = std::make_unique<FileTrayProvider>(
        context_, std::move(fileSystem), data_.path().toStdString(), [] { return 1000.0; });
    provider->start();
    return provider;
  }
  // A file of `bytes` bytes (sparse: nothing is written), as a dropped URL.
  QUrl file(const QString& name, qint64 bytes = 5) {
    QFile made(files_.filePath(name));
    EXPECT_TRUE(made.open(QIODevice::WriteOnly));
    EXPECT_TRUE(made.resize(bytes));
    return QUrl::fromLocalFile(made.fileName());
  }
  static QVariantMap item(FileTrayProvider& tray, int index) {
    return tray.viewModel()->items().value(index).toMap();
  }

  ProviderTestContext context_;
  QTemporaryDir data_;
  QTemporaryDir files_;
  QStringList opened_;
};

TEST_F(FileTrayProviderTest, LinksToFilesMovedDeletedOrReplacedShowAsMissingAndNeverOpen) {
  auto tray = started();
  ASSERT_TRUE(tray->drop({file("kept.txt"), file("moved.txt"), file("deleted.txt"),
                          file("replaced.txt"), QUrl("https://example.com/page")}));
  EXPECT_EQ(tray->viewModel()->status(), "Only files and folders can go in the tray.");
  ASSERT_EQ(tray->tray().items().size(), 4u);

  QFile::rename(files_.filePath("moved.txt"), files_.filePath("elsewhere.txt"));
  QFile::remove(files_.filePath("deleted.txt"));
  QFile::remove(files_.filePath("replaced.txt"));
  file("replaced.txt");  // another file under the same name
  ASSERT_TRUE(waitFor([&] { return item(*tray, 3)["missing"].toBool(); }));
  EXPECT_FALSE(item(*tray, 0)["missing"].toBool());
  EXPECT_TRUE(item(*tray, 1)["missing"].toBool());
  EXPECT_TRUE(item(*tray, 2)["missing"].toBool());

  for (int i = 0; i < 4; ++i) tray->viewModel()->open(item(*tray, i)["id"].toString());
  EXPECT_EQ(opened_, QStringList{files_.filePath("kept.txt")});

  // Taking a link out of the tray leaves its file alone.
  tray->viewModel()->removeAll();
  EXPECT_TRUE(tray->tray().items().empty());
  EXPECT_TRUE(QFile::exists(files_.filePath("kept.txt")));
}

// Whether a file is there, is still the one dropped, how big it is and how it opens are the
// backend's to say, never the provider's own look at the disk.
TEST_F(FileTrayProviderTest, TheFileSystemIsTheBackends) {
  auto made = std::make_unique<FakeFileTrayBackend>();
  FakeFileTrayBackend& files = *made;
  files.invent("/invented/report.pdf", 5);
  files.invent("/invented/notes.txt", 5);
  auto tray = started(std::move(made));
  const auto url = [](const char* path) { return QUrl::fromLocalFile(QString::fromUtf8(path)); };
  ASSERT_TRUE(tray->drop({url("/invented/report.pdf"), url("/invented/notes.txt")}));
  ASSERT_EQ(tray->tray().items().size(), 2u);

  files.invent("/invented/notes.txt", 7);  // replaced under its name
  ASSERT_TRUE(context_.settings().write(settings::experimentalFileTray, false));
  ASSERT_TRUE(context_.settings().write(settings::experimentalFileTray, true));  // drawn again
  tray->viewModel()->open(item(*tray, 1)["id"].toString());
  tray->viewModel()->open(item(*tray, 0)["id"].toString());
  EXPECT_TRUE(item(*tray, 1)["missing"].toBool());
  EXPECT_EQ(files.opened, std::vector<std::string>{"/invented/report.pdf"});

  ASSERT_TRUE(context_.settings().write(settings::fileTrayMode, FileTrayStorageMode::copy));
  files.invent("/invented/photo.jpg", 9);
  ASSERT_TRUE(tray->drop({url("/invented/photo.jpg")}));
  ASSERT_TRUE(waitFor([&] { return !tray->copying() && !tray->viewModel()->status().isEmpty(); }));
  EXPECT_EQ(tray->viewModel()->status(), "photo.jpg could not be copied into the tray.");
  EXPECT_EQ(tray->tray().items().size(), 2u);
}

TEST_F(FileTrayProviderTest, TwentyItemsAndEachFileOnce) {
  auto tray = started();
  QList<QUrl> drop;
  for (int i = 1; i <= 25; ++i) drop << file(QStringLiteral("f%1").arg(i));
  ASSERT_TRUE(tray->drop(drop));
  EXPECT_EQ(tray->tray().items().size(), 20u);
  EXPECT_EQ(tray->viewModel()->status(),
            "The tray is full: f21, f22, f23, f24, f25 not added. Remove some items first.");

  tray->viewModel()->remove(item(*tray, 0)["id"].toString());
  ASSERT_TRUE(tray->drop({drop[1], drop[20]}));
  EXPECT_EQ(tray->viewModel()->status(), "Already in the tray: f2.");
  EXPECT_EQ(tray->tray().items().size(), 20u);

  // Saved and read back as it was.
  auto again = started();
  EXPECT_EQ(again->tray().items(), tray->tray().items());

  ASSERT_TRUE(context_.settings().write(settings::experimentalFileTray, false));
  EXPECT_FALSE(tray->drop({file("late")}));
  EXPECT_FALSE(tray->viewModel()->showing());
}

TEST_F(FileTrayProviderTest, CopiesAreMadeAsideWithProgressAndRemovedWithTheirItems) {
  ASSERT_TRUE(context_.settings().write(settings::fileTrayMode, FileTrayStorageMode::copy));
  auto tray = started();
  QDir().mkpath(files_.filePath("folder/inner"));
  QFile inner(files_.filePath("folder/inner/a.bin"));
  ASSERT_TRUE(inner.open(QIODevice::WriteOnly) && inner.resize(1000));
  inner.close();
  const QUrl big = file("big.bin", 200'000'000);
  std::vector<double> progress;
  QObject::connect(tray->viewModel(), &FileTrayViewModel::progressChanged,
                   [&] { progress.push_back(tray->viewModel()->progress()); });
  ASSERT_TRUE(tray->drop({big, QUrl::fromLocalFile(files_.filePath("folder"))}));
  ASSERT_TRUE(waitFor([&] { return tray->tray().items().size() == 2; }));
  EXPECT_FALSE(tray->copying());
  EXPECT_TRUE(std::is_sorted(progress.begin(), progress.end() - 1)) << progress.size();

  const FileTrayItem copy = tray->tray().items()[0];
  EXPECT_EQ(copy.copiedBytes, 200'000'000);
  EXPECT_EQ(copy.sourcePath, big.toLocalFile().toStdString());
  EXPECT_TRUE(copy.path.starts_with(data_.filePath("file-tray/").toStdString()));
  EXPECT_EQ(fs::file_size(copy.path), 200'000'000u);
  EXPECT_EQ(tray->tray().items()[1].copiedBytes, 1000);
  EXPECT_TRUE(fs::exists(fs::path(tray->tray().items()[1].path) / "inner/a.bin"));

  // The copy goes with its item; the original stays.
  tray->viewModel()->remove(toQString(copy.id.text()));
  EXPECT_FALSE(fs::exists(copy.path));
  EXPECT_TRUE(QFile::exists(big.toLocalFile()));
}

TEST_F(FileTrayProviderTest, CopiesHoldTwoGigabytesExactlyAndAStoppedCopyLeavesNothing) {
  ASSERT_TRUE(context_.settings().write(settings::fileTrayMode, FileTrayStorageMode::copy));
  auto tray = started();
  ASSERT_TRUE(tray->drop({file("too-big.bin", 2'000'000'001)}));
  ASSERT_TRUE(waitFor([&] { return !tray->viewModel()->status().isEmpty(); }));
  EXPECT_EQ(tray->viewModel()->status(),
            "Copies in the tray are limited to 2 GB: too-big.bin not added. Remove some items "
            "first.");
  EXPECT_FALSE(tray->copying());

  ASSERT_TRUE(tray->drop({file("exactly.bin", 2'000'000'000)}));
  ASSERT_TRUE(waitFor([&] { return tray->copying(); }));
  tray->viewModel()->cancelCopy();
  ASSERT_TRUE(waitFor([&] { return !tray->copying(); }));
  EXPECT_EQ(tray->viewModel()->status(), "The copy into the tray was stopped.");
  EXPECT_TRUE(tray->tray().items().empty());
  EXPECT_TRUE(fs::is_empty(data_.filePath("file-tray").toStdString()));
}

TEST_F(FileTrayProviderTest, AnUnreadableSavedListIsKeptAsideAndSaid) {
  QFile saved(data_.filePath("file-tray.json"));
  ASSERT_TRUE(saved.open(QIODevice::WriteOnly));
  saved.write("{\"version\": 1, \"items\": [tor");
  saved.close();
  auto tray = started();
  EXPECT_TRUE(tray->tray().items().empty());
  const DiagnosticsLog::Entry& said = context_.diagnostics().entries().back();
  EXPECT_EQ(said.outcome, DiagnosticsLog::Outcome::degraded);
  ASSERT_TRUE(said.text.english().contains("could not be read"))
      << said.text.english().toStdString();
  const QString kept =
      said.text.english().section(QStringLiteral("kept as "), 1).section(' ', 0, 0);
  QFile aside(kept);
  ASSERT_TRUE(aside.open(QIODevice::ReadOnly)) << kept.toStdString();
  EXPECT_EQ(aside.readAll(), "{\"version\": 1, \"items\": [tor");

  ASSERT_TRUE(tray->drop({file("new.txt")}));
  EXPECT_EQ(started()->tray().items().size(), 1u);
}

TEST_F(FileTrayProviderTest, TheSectionShowsItsItems) {
  auto tray = started();
  ASSERT_TRUE(tray->drop({file("Quarterly report.pdf"), file("photo.jpg"), file("notes.txt")}));
  QFile::remove(files_.filePath("notes.txt"));
  ASSERT_TRUE(waitFor([&] { return item(*tray, 2)["missing"].toBool(); }));
  ASSERT_TRUE(tray->drop({file("photo.jpg")}));
  const QImage panel = viewShot(QUrl("qrc:/Tindra/files/FileTrayPanel.qml"), tray->viewModel(),
                                {240, 150}, "file-tray-panel");
  // Remove All, for more than one item, top right; each row's × at the right.
  EXPECT_GT(countPixels(panel, isDrawn, {150, 0, 90, 14}), 30);
  EXPECT_GT(countPixels(panel, isDrawn, {225, 18, 15, 80}), 60);
  // Two files there, in white beside a light icon; the missing one's icon in red and the reason
  // below its name.
  EXPECT_GT(countPixels(panel, near("#d1d1d6"), {0, 18, 14, 46}), 250);
  EXPECT_GT(countPixels(panel, near(Qt::white), {20, 18, 200, 46}), 60);
  EXPECT_GT(countPixels(panel, hueOf("#ff453a"), {0, 74, 14, 24}), 100);
  EXPECT_GT(countPixels(panel, hueOf("#ff453a"), {20, 86, 200, 12}), 50);
  // What the last drop could not do, in orange at the bottom.
  EXPECT_GT(countPixels(panel, hueOf("#ff9f0a"), {0, 120, 240, 30}), 40);
}

}  // namespace
}  // namespace tindra
