#include "base/lru_cache.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace tindra {
namespace {

using testing::ElementsAre;

TEST(LRUCache, LookUpRefreshesAndInsertEvictsTheLeastRecentlyUsed) {
  LRUCache<std::string, int> cache(3);
  for (const char* key : {"a", "b", "c"}) cache.insert(key, 1);
  ASSERT_NE(cache.find("a"), nullptr);
  EXPECT_EQ(cache.find("zzz"), nullptr);  // a miss changes nothing
  EXPECT_TRUE(cache.contains("b"));       // and neither does contains
  cache.insert("d", 4);
  EXPECT_THAT(cache.order(), ElementsAre("c", "a", "d"));
  EXPECT_FALSE(cache.contains("b"));
}

TEST(LRUCache, InsertingAPresentKeyReplacesAndRefreshesWithoutEvicting) {
  LRUCache<std::string, int> cache(2);
  cache.insert("a", 1);
  cache.insert("b", 2);
  cache.insert("a", 10);
  EXPECT_THAT(cache.order(), ElementsAre("b", "a"));
  EXPECT_EQ(*cache.find("a"), 10);
  *cache.find("b") = 20;
  cache.insert("c", 3);
  EXPECT_THAT(cache.order(), ElementsAre("b", "c"));
  EXPECT_EQ(*cache.find("b"), 20);
}

TEST(LRUCache, CapacitiesZeroAndOneAndRemoval) {
  LRUCache<int, std::unique_ptr<int>> none(0);
  none.insert(1, std::make_unique<int>(1));
  EXPECT_TRUE(none.empty());

  LRUCache<int, std::unique_ptr<int>> one(1);
  one.insert(1, std::make_unique<int>(1));
  one.insert(2, std::make_unique<int>(2));
  EXPECT_THAT(one.order(), ElementsAre(2));
  EXPECT_FALSE(one.remove(1));
  EXPECT_TRUE(one.remove(2));
  one.insert(3, std::make_unique<int>(3));  // the index must not remember removed keys
  one.insert(4, std::make_unique<int>(4));
  EXPECT_THAT(one.order(), ElementsAre(4));
  EXPECT_EQ(**one.find(4), 4);
}

}  // namespace
}  // namespace tindra
