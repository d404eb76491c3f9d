#include "nowplaying/accent_color_policy.h"

#include <gtest/gtest.h>

#include <vector>

#include "base/readable_color.h"
#include "nowplaying/artwork_cache_key.h"
#include "nowplaying/artwork_url_policy.h"

namespace tindra {
namespace {

std::vector<std::uint8_t> pixels(std::size_t count, std::array<std::uint8_t, 4> rgba) {
  std::vector<std::uint8_t> bytes;
  for (std::size_t i = 0; i < count; ++i) bytes.insert(bytes.end(), rgba.begin(), rgba.end());
  return bytes;
}

TEST(AccentColorPolicyTest, AVividAccentBeatsALargerGreyAreaAndMustBeReadable) {
  auto cover = pixels(100, {128, 128, 128, 255});
  const auto accent = pixels(30, {250, 40, 40, 255});
  cover.insert(cover.end(), accent.begin(), accent.end());
  const auto color = AccentColorPolicy::dominantColor(cover);
  ASSERT_TRUE(color);
  EXPECT_NEAR(color->red, 250 / 255.0, 1e-9);
  EXPECT_NEAR(color->green, 40 / 255.0, 1e-9);
  EXPECT_TRUE(AccentColorPolicy::accentColor(cover, ReadableColor::black));

  EXPECT_EQ(AccentColorPolicy::accentColor(pixels(10, {20, 10, 40, 255}), ReadableColor::black),
            std::nullopt)
      << "a dark tint on the black bar would vanish";
  EXPECT_EQ(AccentColorPolicy::dominantColor(pixels(10, {255, 0, 0, 127})), std::nullopt)
      << "transparent pixels are skipped";
  EXPECT_EQ(AccentColorPolicy::dominantColor(std::vector<std::uint8_t>{255, 0, 0}), std::nullopt);
}

TEST(ArtworkURLPolicyTest, OnlyCatalogueHostsAreFetchedAndOverHTTPS) {
  using ArtworkURLPolicy::ImageHost;
  EXPECT_EQ(ArtworkURLPolicy::imageHost("https://i.scdn.co/image/ab67"), ImageHost::spotify);
  EXPECT_EQ(ArtworkURLPolicy::imageHost("HTTPS://IS3-SSL.mzstatic.com/a.jpg"), ImageHost::apple);
  EXPECT_EQ(ArtworkURLPolicy::downloadURL("http://i.scdn.co/image/ab67"),
            "https://i.scdn.co/image/ab67");
  for (std::string_view refused :
       {"https://mzstatic.com/a", "https://evil.com/i.scdn.co", "https://i.scdn.co.evil.com/a",
        "ftp://i.scdn.co/a", "file:///i.scdn.co", ""}) {
    EXPECT_EQ(ArtworkURLPolicy::downloadURL(refused), std::nullopt) << refused;
  }
}

TEST(ArtworkURLPolicyTest, SpotifyPageImagesGoToTheImageHostAndNothingElseOfThePageHostDoes) {
  EXPECT_EQ(ArtworkURLPolicy::downloadURL("https://open.spotify.com/image/ab67616d0000b273"),
            "https://i.scdn.co/image/ab67616d0000b273");
  EXPECT_EQ(ArtworkURLPolicy::downloadURL("http://OPEN.spotify.com/image/AB67"),
            "https://i.scdn.co/image/AB67");
  EXPECT_EQ(ArtworkURLPolicy::imageHost("https://open.spotify.com/image/ab67"),
            ArtworkURLPolicy::ImageHost::spotify);
  // The page host's other paths, and ids that would carry anything past the image host.
  for (std::string_view refused :
       {"https://open.spotify.com/track/ab67", "https://open.spotify.com/image/",
        "https://open.spotify.com/image/ab67/more", "https://open.spotify.com/image/a%2Fb",
        "https://open.spotify.com/image/ab67?x=1", "https://open.spotify.com:8443/image/ab67",
        "https://open.spotify.com.evil.com/image/ab67", "https://evil.com/open.spotify.com/image/a",
        "ftp://open.spotify.com/image/ab67"}) {
    EXPECT_EQ(ArtworkURLPolicy::downloadURL(refused), std::nullopt) << refused;
    EXPECT_EQ(ArtworkURLPolicy::imageHost(refused), std::nullopt) << refused;
  }
}

TEST(ArtworkCacheKeyTest, AlbumFirstThenTitleAndNeverWithoutArtist) {
  NowPlayingSnapshot snapshot;
  snapshot.title = "Song";
  EXPECT_EQ(ArtworkCacheKey::forSnapshot(snapshot), std::nullopt);
  snapshot.artist = "A";
  EXPECT_EQ(ArtworkCacheKey::forSnapshot(snapshot),
            (ArtworkCacheKey{ArtworkCacheKey::Kind::song, "A", "Song"}));
  snapshot.album = "Record";
  EXPECT_EQ(ArtworkCacheKey::forSnapshot(snapshot),
            (ArtworkCacheKey{ArtworkCacheKey::Kind::album, "A", "Record"}));
  EXPECT_NE(hashValue({ArtworkCacheKey::Kind::album, "ab", "c"}),
            hashValue({ArtworkCacheKey::Kind::album, "a", "bc"}));
}

}  // namespace
}  // namespace tindra
