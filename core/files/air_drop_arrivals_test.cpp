#include "files/air_drop_arrivals.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace tindra {
namespace {

TEST(AirDropArrivals, KeepsOnlyFreshSharingdArrivalsInFolderOrder) {
  const double now = 0x6750a3c1 + 120;
  const std::string recent = "0083;6750a3c1;sharingd;";
  const std::vector<AirDropArrivals::Entry> entries{
      {"b.jpg", recent},
      {"seen.jpg", recent},
      {".hidden.jpg", recent},
      {"photo.JPG.part", recent},
      {"report.PDF.CRDOWNLOAD", recent},
      {"movie.Download", recent},
      {"plain.txt", std::nullopt},
      {"garbled.txt", "0083"},
      {"browser.zip", "0083;6750a3c1;Safari;"},
      {"capital.jpg", "0083;6750a3c1;Sharingd;"},
      {"old.jpg", "0083;6750a3c0;sharingd;"},  // 121 s before now
      {"undated.jpg", "0083;;sharingd;"},
      {"a.jpg", recent},
      {"partial.jpg", recent},
  };
  const std::set<std::string, std::less<>> known{"seen.jpg"};
  EXPECT_THAT(AirDropArrivals::arrivals(entries, known, now),
              testing::ElementsAre("b.jpg", "undated.jpg", "a.jpg", "partial.jpg"));
}

}  // namespace
}  // namespace tindra
