#include "base/base64.h"

#include <gtest/gtest.h>

#include <string>

namespace tindra {
namespace {

std::string encode(const std::vector<std::uint8_t>& bytes) {
  return encodeBase64(bytes);
}

std::vector<std::uint8_t> bytesOf(std::string_view text) {
  return {text.begin(), text.end()};
}

TEST(Base64Test, DecodesEveryByteValueAtEveryLengthAndPadding) {
  EXPECT_EQ(decodeBase64("").value(), std::vector<std::uint8_t>{});
  EXPECT_EQ(decodeBase64("TWFu").value(), bytesOf("Man"));
  EXPECT_EQ(decodeBase64("TWE=").value(), bytesOf("Ma"));
  EXPECT_EQ(decodeBase64("TQ==").value(), bytesOf("M"));
  EXPECT_EQ(decodeBase64("+/+/").value(), (std::vector<std::uint8_t>{0xFB, 0xFF, 0xBF}));
  EXPECT_EQ(encode(bytesOf("Ma")), "TWE=");
  EXPECT_EQ(encode(bytesOf("M")), "TQ==");

  // Lengths around the four-group unrolled loop, with every byte value.
  std::vector<std::uint8_t> bytes;
  for (int length = 0; length < 80; ++length) {
    EXPECT_EQ(decodeBase64(encode(bytes)).value(), bytes) << length;
    bytes.push_back(static_cast<std::uint8_t>(length * 97 + 13));
  }
  std::vector<std::uint8_t> all(768);
  for (std::size_t i = 0; i < all.size(); ++i) all[i] = static_cast<std::uint8_t>(i * 7);
  EXPECT_EQ(decodeBase64(encode(all)).value(), all);
}

TEST(Base64Test, RefusesAnythingButTheStrictForm) {
  EXPECT_EQ(decodeBase64("TQ").error(), Base64Error::badLength) << "padding is required";
  EXPECT_EQ(decodeBase64("TWFuT").error(), Base64Error::badLength);
  for (const char* bad : {"TW-u", "TW_u", "TW u", "TWFu\n", "TWFu====", "T===", "====", "TW=u",
                          "TQ==TWFu", "TWFu TWF", "TWF\x80"}) {
    EXPECT_FALSE(decodeBase64(bad)) << bad;
  }
  const std::string withNul("TWF\0", 4);
  EXPECT_EQ(decodeBase64(withNul).error(), Base64Error::badCharacter);

  // A bad character deep inside a long text, in each place of its group, is still found.
  const std::string good = encode(std::vector<std::uint8_t>(300, 0x5A));
  for (std::size_t at : {0u, 1u, 2u, 3u, 201u, 398u}) {
    std::string bad = good;
    bad[at] = '*';
    EXPECT_EQ(decodeBase64(bad).error(), Base64Error::badCharacter) << at;
  }
}

}  // namespace
}  // namespace tindra
