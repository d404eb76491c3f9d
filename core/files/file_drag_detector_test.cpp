#include "files/file_drag_detector.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tindra {
namespace {

TEST(FileDragDetector, ChangedCountAfterMouseDownIsADrag) {
  FileDragDetector detector;
  EXPECT_FALSE(detector.dragBegan(4));
  detector.mouseDown(4);
  EXPECT_FALSE(detector.dragBegan(4));
  EXPECT_TRUE(detector.dragBegan(5));
  detector.mouseUp();
  EXPECT_FALSE(detector.dragBegan(5));
}

}  // namespace
}  // namespace tindra
