#include "media/artwork_service.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QSignalSpy>
#include <QTest>
#include <map>

#include "testing/picture_checks.h"

namespace tindra {
namespace {

// Answers from a table of addresses; records every request. Nothing leaves the process.
class TableFetcher : public ArtworkFetcher {
 public:
  void fetch(const QUrl& url, qint64, Done done) override {
    asked.push_back(url.toString());
    const auto found = answers.find(url.toString());
    if (found == answers.end()) {
      done(std::nullopt, "404");
    } else {
      done(found->second, QString());
    }
  }
  std::map<QString, QByteArray> answers;
  std::vector<QString> asked;
};

NowPlayingSnapshot track(const std::string& title, const std::string& album) {
  NowPlayingSnapshot snapshot;
  snapshot.title = title;
  snapshot.artist = "Artist";
  snapshot.album = album;
  snapshot.isPlaying = true;
  return snapshot;
}

class ArtworkServiceTest : public ::testing::Test {
 protected:
  bool waitForCover(bool present) {
    return QTest::qWaitFor([&] { return service_.current().has_value() == present; }, 5000);
  }

  TableFetcher fetcher_;
  bool lookUp_ = true;
  double now_ = 1'800'000'000;
  ArtworkService service_{fetcher_, [this] { return lookUp_; }, [this] { return now_; }};
};

TEST_F(ArtworkServiceTest, EmbeddedCoversAreScaledAndTintedAndStaleOnesDropped) {
  // A bright yellow stands out on the bar's dark grey; a dark red would not.
  NowPlayingSnapshot yellow = track("Yellow", "Colours");
  const QByteArray big = solidPng(QColor(250, 210, 40), 1200);
  yellow.artwork = NowPlayingSnapshot::Artwork::embedded(
      std::span(reinterpret_cast<const std::uint8_t*>(big.constData()), std::size_t(big.size())));
  service_.show(yellow);
  ASSERT_TRUE(waitForCover(true));
  EXPECT_EQ(service_.current()->image.width(), ArtworkService::maxSide);
  ASSERT_TRUE(service_.current()->tint.has_value());
  EXPECT_GT(service_.current()->tint->red, 0.9);
  EXPECT_GT(service_.current()->tint->green, 0.7);
  EXPECT_FALSE(ArtworkService::decode(solidPng(QColor(120, 20, 20)))->tint.has_value());
  // A JPEG, decoded straight to the cover's size.
  QByteArray jpeg;
  QBuffer out(&jpeg);
  out.open(QIODevice::WriteOnly);
  QImage wide(1600, 900, QImage::Format_RGB32);
  wide.fill(QColor(250, 210, 40));
  ASSERT_TRUE(wide.save(&out, "JPEG"));
  const auto decoded = ArtworkService::decode(jpeg);
  ASSERT_TRUE(decoded.has_value());
  EXPECT_EQ(decoded->image.size(),
            QSize(ArtworkService::maxSide, ArtworkService::maxSide * 9 / 16));
  EXPECT_GT(decoded->tint->green, 0.7);

  // The track moves on while its cover is being decoded: that cover never shows up.
  NowPlayingSnapshot again = yellow;
  again.title = "Yellow again";
  service_.show(again);
  NowPlayingSnapshot bytesThatAreNoImage = track("Noise", "Other");
  const std::uint8_t noise[] = {1, 2, 3, 4};
  bytesThatAreNoImage.artwork = NowPlayingSnapshot::Artwork::embedded(noise);
  service_.show(bytesThatAreNoImage);
  ASSERT_TRUE(waitForCover(false));
  QTest::qWait(100);
  EXPECT_FALSE(service_.current().has_value());
  EXPECT_TRUE(fetcher_.asked.empty());
}

TEST_F(ArtworkServiceTest, OnlyCatalogueHostsAreDownloadedAndEachOnlyOnce) {
  const QString cover = "https://i.scdn.co/image/abc";
  fetcher_.answers[cover] = solidPng(Qt::darkGreen);
  NowPlayingSnapshot remote = track("Remote", "Album");
  remote.artwork = NowPlayingSnapshot::Artwork::remote("http://i.scdn.co/image/abc");  // upgraded
  service_.show(remote);
  ASSERT_TRUE(waitForCover(true));
  service_.show(std::nullopt);
  service_.show(remote);
  ASSERT_TRUE(waitForCover(true));
  EXPECT_EQ(fetcher_.asked, std::vector<QString>{cover});

  NowPlayingSnapshot elsewhere = track("Elsewhere", "Album");
  elsewhere.artwork = NowPlayingSnapshot::Artwork::remote("https://tracker.example/pixel.png");
  service_.show(elsewhere);
  EXPECT_FALSE(service_.current().has_value());
  // The other host is never asked; the catalogue is, as for a track that brings no cover.
  ASSERT_EQ(fetcher_.asked.size(), 2u);
  EXPECT_TRUE(fetcher_.asked[1].startsWith("https://itunes.apple.com/search?"));

  // So is it when a catalogue host's cover does not arrive.
  NowPlayingSnapshot missing = track("Missing", "Other album");
  missing.artwork = NowPlayingSnapshot::Artwork::remote("https://i.scdn.co/image/gone");
  service_.show(missing);
  ASSERT_EQ(fetcher_.asked.size(), 4u);
  EXPECT_EQ(fetcher_.asked[2], "https://i.scdn.co/image/gone");
  EXPECT_TRUE(fetcher_.asked[3].contains("Other"));
}

TEST_F(ArtworkServiceTest, TheCatalogueIsAskedOnlyWhenAllowedAndAMissIsRemembered) {
  lookUp_ = false;
  service_.show(track("Song", "Blue Hour"));
  EXPECT_TRUE(fetcher_.asked.empty());

  lookUp_ = true;
  service_.show(track("Other song", "Blue Hour"));  // same album: the same key
  ASSERT_EQ(fetcher_.asked.size(), 1u);
  EXPECT_TRUE(fetcher_.asked[0].startsWith("https://itunes.apple.com/search?"));
  service_.show(track("Third", "Blue Hour"));
  EXPECT_EQ(fetcher_.asked.size(), 1u);  // the miss blocks the key
  now_ += ArtworkMissMemo::defaultRetryAfter + 1;
  service_.show(track("Fourth", "Blue Hour"));
  EXPECT_EQ(fetcher_.asked.size(), 2u);

  // A hit: the search names a cover, which is downloaded and then kept for the album.
  const QString search = fetcher_.asked.back();
  fetcher_.answers[search] =
      R"({"results":[{"artistName":"Artist","collectionName":"Blue Hour - EP",)"
      R"("artworkUrl100":"https://is1-ssl.mzstatic.com/image/a/100x100bb.jpg"}]})";
  fetcher_.answers["https://is1-ssl.mzstatic.com/image/a/600x600bb.jpg"] = solidPng(Qt::blue);
  now_ += ArtworkMissMemo::defaultRetryAfter + 1;
  service_.show(track("Fifth", "Blue Hour"));
  ASSERT_TRUE(waitForCover(true));
  const std::size_t asked = fetcher_.asked.size();
  service_.show(track("Sixth", "Blue Hour"));
  EXPECT_TRUE(service_.current().has_value());
  EXPECT_EQ(fetcher_.asked.size(), asked);
}

}  // namespace
}  // namespace tindra
