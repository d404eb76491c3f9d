// Checks on what a view drew (viewShot), so a test asserts the picture rather than that there is
// one: a blank, wrongly coloured or misplaced view fails them. Views are drawn on black.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QRect>
#include <functional>

namespace tindra {

using PixelTest = std::function<bool(const QColor&)>;

// A PNG of one colour, `side` pixels square: a cover for a test to serve and then look for.
QByteArray solidPng(const QColor& color, int side = 64);

// Stands out from the black the views are drawn on.
bool isDrawn(const QColor& pixel);

// Of the hue of `colour`, a saturated one, however dim: the anti-aliased edges of text drawn in
// that colour count too.
PixelTest hueOf(const QColor& colour);

// Within `tolerance` of `colour` in each channel.
PixelTest near(const QColor& colour, int tolerance = 24);

// The pixels of `picture` within `region` (all of it when empty) that pass `test`.
int countPixels(const QImage& picture, const PixelTest& test, const QRect& region = {});

// The smallest rectangle around the pixels within `region` (all of `picture` when empty) that
// pass `test`; empty when none does.
QRect areaOf(const QImage& picture, const PixelTest& test, const QRect& region = {});
// The same for what is drawn.
QRect drawnArea(const QImage& picture, const QRect& region = {});

// The halves of a picture of a compact view: its left ear, and its right one.
QRect leftHalf(const QImage& picture);
QRect rightHalf(const QImage& picture);

}  // namespace tindra
