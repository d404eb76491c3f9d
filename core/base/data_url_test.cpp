#include "base/data_url.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

TEST(DataURLTest, BothFormsEscapesAndTheSizeLimit) {
  EXPECT_EQ(decodeDataURL("data:image/png;base64,UE5HIQ==", 100), "PNG!");
  EXPECT_EQ(decodeDataURL("DATA:image/png;BASE64,UE5HIQ%3D%3D", 100), "PNG!");
  EXPECT_EQ(decodeDataURL("data:,a%20b%00c", 100), std::string("a b\0c", 5));
  EXPECT_EQ(decodeDataURL("data:,", 100), "");

  EXPECT_EQ(decodeDataURL("data:image/png;base64,UE5HIQ", 100), std::nullopt);  // not strict
  EXPECT_EQ(decodeDataURL("data:image/png;base64", 100), std::nullopt);         // no comma
  EXPECT_EQ(decodeDataURL("data:,50%", 100), std::nullopt);
  EXPECT_EQ(decodeDataURL("data:,%zz", 100), std::nullopt);
  EXPECT_EQ(decodeDataURL("file:///a.png", 100), std::nullopt);
  EXPECT_EQ(decodeDataURL("dat", 100), std::nullopt);

  EXPECT_EQ(decodeDataURL("data:;base64,UE5HIQ==", 4), "PNG!");
  EXPECT_EQ(decodeDataURL("data:;base64,UE5HIQ==", 3), std::nullopt);
  EXPECT_EQ(decodeDataURL("data:,abcd", 4), "abcd");
  EXPECT_EQ(decodeDataURL("data:,abcde", 4), std::nullopt);
}

}  // namespace
}  // namespace tindra
