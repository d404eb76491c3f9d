// Point, Size and Rect: plain geometry in points with the origin at the bottom left (y grows
// upwards, so a display's top edge is its maxY). The app converts from top-left toolkits before
// calling the core. Widths and heights are expected to be non-negative.
#pragma once

namespace tindra {

struct Point {
  double x = 0;
  double y = 0;

  friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
  double width = 0;
  double height = 0;

  friend bool operator==(const Size&, const Size&) = default;
};

struct Rect {
  double x = 0;  // left edge
  double y = 0;  // bottom edge
  double width = 0;
  double height = 0;

  constexpr double minX() const { return x; }
  constexpr double maxX() const { return x + width; }
  constexpr double midX() const { return x + (width / 2); }
  constexpr double minY() const { return y; }
  constexpr double maxY() const { return y + height; }
  constexpr double midY() const { return y + (height / 2); }
  constexpr Point origin() const { return {x, y}; }
  constexpr Size size() const { return {width, height}; }

  // Half-open: the left and bottom edges belong to the rectangle, the right and top edges do
  // not, so a point on the seam between two side-by-side displays belongs to exactly one.
  constexpr bool contains(Point p) const {
    return p.x >= minX() && p.x < maxX() && p.y >= minY() && p.y < maxY();
  }

  // Field by field, so a rectangle with a NaN field never equals itself.
  friend bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace tindra
