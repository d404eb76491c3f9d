// FakeScreenSource: displays as a test describes them, in Qt's top-left coordinates like the real
// source, named from their connectors and product names as the real source names them.
#pragma once

#include <QRect>
#include <string>
#include <vector>

#include "notch/screen_source.h"

namespace tindra {

class FakeScreenSource : public ScreenSource {
 public:
  struct Screen {
    std::uint32_t id;
    std::string connector;
    QRect geometry;
    QRect available;
    bool isMain = false;
    std::string productName{};
  };

  void set(std::vector<Screen> screens) {
    screens_ = std::move(screens);
    emit screensChanged();
  }

  ScreenCoordinates coordinates() const override {
    for (const Screen& s : screens_) {
      if (s.isMain) return {static_cast<double>(s.geometry.bottom() + 1)};
    }
    return {};
  }

  std::vector<PlatformScreen> screens() const override {
    std::vector<PlatformScreen> result;
    for (const Screen& s : screens_) {
      PlatformScreen p;
      p.candidate.id = s.id;
      p.candidate.isMain = s.isMain;
      p.identity = {s.connector, s.productName};
      p.descriptor.frame = coordinates().toCore(s.geometry);
      p.descriptor.visibleFrame = coordinates().toCore(s.available);
      result.push_back(p);
    }
    nameScreens(result);
    return result;
  }

 private:
  std::vector<Screen> screens_;
};

}  // namespace tindra
