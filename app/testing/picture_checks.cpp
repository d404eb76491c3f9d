#include "testing/picture_checks.h"

#include <QBuffer>

#include <algorithm>
#include <cstdlib>

namespace tindra {

QByteArray solidPng(const QColor& color, int side) {
  QImage image(side, side, QImage::Format_RGB32);
  image.fill(color);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return bytes;
}

namespace {

QRect within(const QImage& picture, const QRect& region) {
  return region.isEmpty() ? picture.rect() : region & picture.rect();
}

}  // namespace

bool isDrawn(const QColor& pixel) {
  return std::max({pixel.red(), pixel.green(), pixel.blue()}) > 60;
}

PixelTest hueOf(const QColor& colour) {
  return [hue = colour.hsvHue()](const QColor& pixel) {
    const int apart = std::abs(pixel.hsvHue() - hue);
    return pixel.hsvSaturation() > 120 && pixel.value() > 60 && std::min(apart, 360 - apart) <= 12;
  };
}

PixelTest near(const QColor& colour, int tolerance) {
  return [colour, tolerance](const QColor& pixel) {
    return std::abs(pixel.red() - colour.red()) <= tolerance &&
           std::abs(pixel.green() - colour.green()) <= tolerance &&
           std::abs(pixel.blue() - colour.blue()) <= tolerance;
  };
}

int countPixels(const QImage& picture, const PixelTest& test, const QRect& region) {
  const QRect area = within(picture, region);
  int count = 0;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x)
      count += test(picture.pixelColor(x, y)) ? 1 : 0;
  }
  return count;
}

QRect areaOf(const QImage& picture, const PixelTest& test, const QRect& region) {
  const QRect area = within(picture, region);
  QRect found;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) {
      if (test(picture.pixelColor(x, y))) found |= QRect(x, y, 1, 1);
    }
  }
  return found;
}

QRect drawnArea(const QImage& picture, const QRect& region) {
  return areaOf(picture, isDrawn, region);
}

QRect leftHalf(const QImage& picture) {
  return {0, 0, picture.width() / 2, picture.height()};
}

QRect rightHalf(const QImage& picture) {
  return {picture.width() / 2, 0, picture.width() - picture.width() / 2, picture.height()};
}

}  // namespace tindra
