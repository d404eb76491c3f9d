#include "activity/swipe_recognizer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace tindra {
namespace {

// Feeds `steps` equal steps of (dx, dy), 10 ms apart from `start`; returns every swipe seen.
std::vector<SwipeDirection> stroke(SwipeRecognizer& recognizer, int steps, double dx, double dy,
                                   double start) {
  std::vector<SwipeDirection> swipes;
  for (int i = 0; i < steps; ++i) {
    if (auto swipe = recognizer.scroll(dx, dy, start + i * 0.01)) swipes.push_back(*swipe);
  }
  return swipes;
}

TEST(SwipeRecognizerTest, AStrokeIsOneSwipeOnceItHasGoneFarEnough) {
  SwipeRecognizer recognizer;
  // 5 px steps: nothing before 48 px, then one swipe, however far the fingers go on.
  EXPECT_TRUE(stroke(recognizer, 9, -5, 1, 0).empty());
  EXPECT_EQ(recognizer.scroll(-5, 0, 0.09), SwipeDirection::left);
  EXPECT_TRUE(stroke(recognizer, 40, -5, 0, 0.1).empty());

  // A pause ends the gesture; the next stroke counts again, whatever way it goes.
  EXPECT_EQ(stroke(recognizer, 20, 0, 6, 1.0), std::vector{SwipeDirection::down});
  recognizer.end();
  EXPECT_EQ(stroke(recognizer, 20, 0, -6, 1.3), std::vector{SwipeDirection::up});
  recognizer.end();
  EXPECT_EQ(stroke(recognizer, 20, 6, 0, 1.6), std::vector{SwipeDirection::right});
}

TEST(SwipeRecognizerTest, DiagonalsAndBackAndForthAreNoSwipe) {
  SwipeRecognizer recognizer;
  EXPECT_TRUE(stroke(recognizer, 40, 5, 4, 0).empty());
  recognizer.end();
  // Fingers that go right a little and come back never travel far enough.
  EXPECT_TRUE(stroke(recognizer, 8, 5, 0, 1).empty());
  EXPECT_TRUE(stroke(recognizer, 8, -5, 0, 1.08).empty());
  // Nonsense from a device is ignored rather than poisoning the gesture.
  EXPECT_FALSE(recognizer.scroll(NAN, 0, 1.2));
  EXPECT_FALSE(recognizer.scroll(INFINITY, 0, 1.2));
  EXPECT_EQ(recognizer.scroll(-60, 0, 1.21), SwipeDirection::left);
}

TEST(SwipeRecognizerTest, OneMouseWheelNotchIsASwipe) {
  // A wheel notch is 120 eighths of a degree, taken as 60 pixels.
  SwipeRecognizer recognizer;
  EXPECT_EQ(recognizer.scroll(0, 60, 0), SwipeDirection::down);
  EXPECT_FALSE(recognizer.scroll(0, 60, 0.1));
  EXPECT_EQ(recognizer.scroll(0, 60, 0.5), SwipeDirection::down);
}

TEST(SwipeRecognizerTest, DragsAreClassifiedWhole) {
  EXPECT_EQ(SwipeRecognizer::classify(-80, 10), SwipeDirection::left);
  EXPECT_EQ(SwipeRecognizer::classify(0, 50), SwipeDirection::down);
  EXPECT_FALSE(SwipeRecognizer::classify(20, 5));   // a click that slipped
  EXPECT_FALSE(SwipeRecognizer::classify(60, 50));  // neither way
}

}  // namespace
}  // namespace tindra
