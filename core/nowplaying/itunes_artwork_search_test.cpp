#include "nowplaying/itunes_artwork_search.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

using Kind = ArtworkCacheKey::Kind;

std::string result(std::string_view artist, std::string_view member, std::string_view name,
                   std::string_view cover) {
  return "{\"artistName\":\"" + std::string(artist) + "\",\"" + std::string(member) + "\":\"" +
         std::string(name) + "\",\"artworkUrl100\":\"" + std::string(cover) + "\"}";
}

std::string response(std::initializer_list<std::string> results) {
  std::string list;
  for (const std::string& item : results) list += (list.empty() ? "" : ",") + item;
  return "{\"resultCount\":" + std::to_string(results.size()) + ",\"results\":[" + list + "]}";
}

TEST(ITunesArtworkSearchTest, RequestHasItsQueryInOrderAndPercentEncoded) {
  EXPECT_EQ(ITunesArtworkSearch::request({Kind::album, "Sigur Rós", "Ágætis byrjun & more"}),
            "https://itunes.apple.com/search?term=Sigur%20R%C3%B3s%20%C3%81g%C3%A6tis%20byrjun%20%"
            "26%20more&media=music&entity=album&limit=10");
  EXPECT_EQ(ITunesArtworkSearch::request({Kind::song, "a+b=c", "x/y?~_.-"}),
            "https://itunes.apple.com/search?term=a%2Bb%3Dc%20x%2Fy%3F~_.-&media=music&entity=song&"
            "limit=10");
}

TEST(ITunesArtworkSearchTest, MatchesFoldCaseDiacriticsAndReleaseSuffixes) {
  const std::string cover = "https://is1-ssl.mzstatic.com/image/a/100x100bb.jpg";
  const std::string body = response({
      result("Someone Else", "collectionName", "Blue Hour", "https://x/other/100x100bb.jpg"),
      result("BEYONCE\\u0301", "collectionName", "Blue Hour - EP", cover),
      result("Beyoncé", "collectionName", "Blue Hour", "https://x/later/100x100bb.jpg"),
  });
  EXPECT_EQ(ITunesArtworkSearch::artworkURL(body, {Kind::album, "Beyoncé", "blue hour"}),
            "https://is1-ssl.mzstatic.com/image/a/600x600bb.jpg")
      << "a different artist never matches; the first match wins";
  EXPECT_EQ(ITunesArtworkSearch::artworkURL(body, {Kind::album, "Nobody", "Blue Hour"}),
            std::nullopt);
  EXPECT_EQ(ITunesArtworkSearch::artworkURL(body, {Kind::song, "Beyoncé", "Blue Hour"}),
            std::nullopt)
      << "song keys match trackName, which these results lack";
  EXPECT_EQ(ITunesArtworkSearch::artworkURL(
                response({result("A", "trackName", "Song - Single", "https://c/100x100bb.png")}),
                {Kind::song, "a", "SONG"}),
            "https://c/600x600bb.png");
  const std::string twoSuffixes =
      response({result("A", "collectionName", "B - EP - Single", "https://c/1.jpg"),
                result("A", "collectionName", "B", "https://c/2.jpg")});
  EXPECT_EQ(ITunesArtworkSearch::artworkURL(twoSuffixes, {Kind::album, "A", "B - EP"}),
            "https://c/2.jpg")
      << "only one suffix is dropped; a cover without the size keeps its address";
  EXPECT_EQ(ITunesArtworkSearch::normalizedForMatching("Ça - Single"), "ca");
  EXPECT_EQ(ITunesArtworkSearch::normalizedForMatching("Straße"), "strasse");
}

TEST(ITunesArtworkSearchTest, SizeLimitIsExactAndBadDocumentsGiveNothing) {
  const ArtworkCacheKey key{Kind::album, "A", "B"};
  const std::string body = response({result("A", "collectionName", "B", "https://c/100x100bb")});
  std::string padded = body + std::string(ITunesArtworkSearch::maxResponseBytes - body.size(), ' ');
  EXPECT_EQ(ITunesArtworkSearch::artworkURL(padded, key), "https://c/600x600bb");
  padded += ' ';
  EXPECT_EQ(ITunesArtworkSearch::artworkURL(padded, key), std::nullopt);

  for (std::string_view bad : {"", "[]", "{\"results\":{}}", "{\"results\":[1,null]}",
                               "{\"results\":[{\"artistName\":\"A\",\"collectionName\":\"B\"}]}",
                               "{\"results\":[{\"artistName\":\"A\",\"collectionName\":\"B\","
                               "\"artworkUrl100\":7}]}"}) {
    EXPECT_EQ(ITunesArtworkSearch::artworkURL(bad, key), std::nullopt) << bad;
  }
}

TEST(ITunesArtworkSearchTest, NoRequestWhenLookupIsOffOrAMissIsRecent) {
  const ArtworkCacheKey key{Kind::song, "A", "B"};
  ArtworkMissMemo misses;
  misses.retryAfter = 100;
  EXPECT_EQ(ITunesArtworkSearch::requestIfAllowed(key, false, misses, 0), std::nullopt);
  EXPECT_TRUE(ITunesArtworkSearch::requestIfAllowed(key, true, misses, 0));
  misses.recordMiss(key, 1000);
  EXPECT_EQ(ITunesArtworkSearch::requestIfAllowed(key, true, misses, 1099.9), std::nullopt);
  EXPECT_TRUE(ITunesArtworkSearch::requestIfAllowed(key, true, misses, 1100));
  EXPECT_TRUE(ITunesArtworkSearch::requestIfAllowed({Kind::album, "A", "B"}, true, misses, 1000))
      << "album and song keys are apart";
  misses.recordMiss({Kind::album, "A", "B"}, 1200);
  EXPECT_EQ(misses.misses.size(), 1u) << "expired misses are dropped";
}

}  // namespace
}  // namespace tindra
