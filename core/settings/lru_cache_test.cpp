#include "settings/lru_cache.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "settings/uuid.h"

namespace tindra {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(LRUCache, EvictsTheLeastRecentlyUsedBeyondCapacity) {
  LRUCache<std::string, int> cache(3);
  cache.insert("a", 1);
  cache.insert("b", 2);
  cache.insert("c", 3);
  EXPECT_THAT(cache.order(), ElementsAre("a", "b", "c"));

  // A look-up saves "a"; a miss changes nothing; the next insert pushes out "b".
  ASSERT_NE(cache.find("a"), nullptr);
  EXPECT_EQ(cache.find("zzz"), nullptr);
  EXPECT_TRUE(cache.contains("b"));  // contains does not count as use
  cache.insert("d", 4);
  EXPECT_THAT(cache.order(), ElementsAre("c", "a", "d"));
  EXPECT_FALSE(cache.contains("b"));
  EXPECT_EQ(cache.size(), 3U);
}

TEST(LRUCache, InsertingAPresentKeyReplacesAndRefreshesWithoutEvicting) {
  LRUCache<std::string, int> cache(2);
  cache.insert("a", 1);
  cache.insert("b", 2);
  cache.insert("a", 10);
  EXPECT_THAT(cache.order(), ElementsAre("b", "a"));
  EXPECT_EQ(*cache.find("a"), 10);
  EXPECT_EQ(*cache.find("b"), 2);

  // Values found can be changed in place.
  *cache.find("b") = 20;
  cache.insert("c", 3);
  EXPECT_THAT(cache.order(), ElementsAre("b", "c"));
  EXPECT_EQ(*cache.find("b"), 20);
}

TEST(LRUCache, SmallCapacitiesAndRemoval) {
  LRUCache<int, std::unique_ptr<int>> none(0);
  none.insert(1, std::make_unique<int>(1));
  EXPECT_TRUE(none.empty());
  EXPECT_EQ(none.find(1), nullptr);

  LRUCache<int, std::unique_ptr<int>> one(1);
  one.insert(1, std::make_unique<int>(1));
  one.insert(2, std::make_unique<int>(2));
  EXPECT_THAT(one.order(), ElementsAre(2));
  EXPECT_EQ(**one.find(2), 2);

  EXPECT_FALSE(one.remove(1));
  EXPECT_TRUE(one.remove(2));
  EXPECT_THAT(one.order(), IsEmpty());
  one.insert(3, std::make_unique<int>(3));
  one.clear();
  EXPECT_TRUE(one.empty());
  one.insert(4, std::make_unique<int>(4));
  EXPECT_THAT(one.order(), ElementsAre(4));
}

TEST(LRUCache, ManyEntriesKeepTheirOrder) {
  LRUCache<UUID, int> cache(100);
  std::vector<UUID> keys;
  for (int i = 0; i < 250; ++i) {
    keys.push_back(UUID::random());
    cache.insert(keys.back(), i);
  }
  EXPECT_EQ(cache.size(), 100U);
  EXPECT_EQ(cache.order().front(), keys[150]);
  EXPECT_EQ(cache.find(keys[149]), nullptr);
  EXPECT_EQ(*cache.find(keys[150]), 150);
  EXPECT_EQ(cache.order().back(), keys[150]);
}

}  // namespace
}  // namespace tindra
