#include "nowplaying/fft.h"

#include <cassert>
#include <cmath>
#include <cstring>
#include <numbers>
#include <utility>

namespace tindra {
namespace {

// Four floats as one value; GCC and Clang lower it to SSE or NEON, and loads and stores go
// through memcpy so no alignment is assumed.
using Float4 = float __attribute__((vector_size(16)));

Float4 load(const float* p) {
  Float4 v;
  std::memcpy(&v, p, sizeof v);
  return v;
}

void store(float* p, Float4 v) {
  std::memcpy(p, &v, sizeof v);
}

std::vector<int> bitReversal(int size) {
  int bits = 0;
  while ((1 << bits) < size) ++bits;
  std::vector<int> reversed(static_cast<std::size_t>(size));
  for (int i = 0; i < size; ++i) {
    int r = 0;
    for (int b = 0; b < bits; ++b) r |= ((i >> b) & 1) << (bits - 1 - b);
    reversed[static_cast<std::size_t>(i)] = r;
  }
  return reversed;
}

// One radix-2 stage over butterflies `half` apart, with that stage's twiddles.
void stage(float* re, float* im, int count, int half, const float* wr, const float* wi) {
  for (int start = 0; start < count; start += 2 * half) {
    float* ar = re + start;
    float* ai = im + start;
    float* br = ar + half;
    float* bi = ai + half;
    int j = 0;
    for (; j + 4 <= half; j += 4) {
      const Float4 c = load(wr + j), s = load(wi + j);
      const Float4 xr = load(br + j), xi = load(bi + j);
      const Float4 tr = c * xr - s * xi;
      const Float4 ti = c * xi + s * xr;
      const Float4 yr = load(ar + j), yi = load(ai + j);
      store(br + j, yr - tr);
      store(bi + j, yi - ti);
      store(ar + j, yr + tr);
      store(ai + j, yi + ti);
    }
    for (; j < half; ++j) {
      const float tr = wr[j] * br[j] - wi[j] * bi[j];
      const float ti = wr[j] * bi[j] + wi[j] * br[j];
      br[j] = ar[j] - tr;
      bi[j] = ai[j] - ti;
      ar[j] += tr;
      ai[j] += ti;
    }
  }
}

// The first two stages at once (twiddles 1 and −i need no multiplications).
void firstTwoStages(float* re, float* im, int count) {
  for (int i = 0; i < count; i += 4) {
    const float r0 = re[i] + re[i + 1], i0 = im[i] + im[i + 1];
    const float r1 = re[i] - re[i + 1], i1 = im[i] - im[i + 1];
    const float r2 = re[i + 2] + re[i + 3], i2 = im[i + 2] + im[i + 3];
    const float r3 = re[i + 2] - re[i + 3], i3 = im[i + 2] - im[i + 3];
    re[i] = r0 + r2;
    im[i] = i0 + i2;
    re[i + 2] = r0 - r2;
    im[i + 2] = i0 - i2;
    // −i × (r3 + i·i3) = i3 − i·r3
    re[i + 1] = r1 + i3;
    im[i + 1] = i1 - r3;
    re[i + 3] = r1 - i3;
    im[i + 3] = i1 + r3;
  }
}

}  // namespace

FFT::FFT(int size) : size_(size), bitReversed_(bitReversal(size)) {
  assert(size >= 4 && (size & (size - 1)) == 0);
  const int half = size / 2;
  cosTable_.resize(static_cast<std::size_t>(half));
  sinTable_.resize(static_cast<std::size_t>(half));
  for (int k = 0; k < half; ++k) {
    const double angle = -2 * std::numbers::pi * k / size;
    cosTable_[static_cast<std::size_t>(k)] = static_cast<float>(std::cos(angle));
    sinTable_[static_cast<std::size_t>(k)] = static_cast<float>(std::sin(angle));
  }
  halfBitReversed_ = bitReversal(half);
  // Stage h of the half-size transform needs exp(−2πij/(2h)) = table entry j × size/(2h).
  for (int h = 1; h < half; h *= 2) {
    for (int j = 0; j < h; ++j) {
      const auto k = static_cast<std::size_t>(j * (size / (2 * h)));
      stageCos_.push_back(cosTable_[k]);
      stageSin_.push_back(sinTable_[k]);
    }
  }
}

void FFT::transform(std::span<float> real, std::span<float> imaginary) const {
  assert(real.size() >= static_cast<std::size_t>(size_) && imaginary.size() >= real.size());
  for (int i = 0; i < size_; ++i) {
    const int j = bitReversed_[static_cast<std::size_t>(i)];
    if (i < j) {
      std::swap(real[static_cast<std::size_t>(i)], real[static_cast<std::size_t>(j)]);
      std::swap(imaginary[static_cast<std::size_t>(i)], imaginary[static_cast<std::size_t>(j)]);
    }
  }
  for (int half = 1; half < size_; half *= 2) {
    const int step = size_ / (2 * half);
    for (int start = 0; start < size_; start += 2 * half) {
      for (int j = 0; j < half; ++j) {
        const auto a = static_cast<std::size_t>(start + j);
        const auto b = a + static_cast<std::size_t>(half);
        const float c = cosTable_[static_cast<std::size_t>(j * step)];
        const float s = sinTable_[static_cast<std::size_t>(j * step)];
        const float tr = c * real[b] - s * imaginary[b];
        const float ti = c * imaginary[b] + s * real[b];
        real[b] = real[a] - tr;
        imaginary[b] = imaginary[a] - ti;
        real[a] += tr;
        imaginary[a] += ti;
      }
    }
  }
}

void FFT::transformReal(std::span<float> real, std::span<float> imaginary) const {
  assert(real.size() >= static_cast<std::size_t>(size_) && imaginary.size() >= real.size());
  // Even samples as real parts, odd ones as imaginary parts of a half-size signal z, held in
  // the two halves of `imaginary` in bit-reversed order.
  const int half = size_ / 2;
  float* zr = imaginary.data();
  float* zi = imaginary.data() + half;
  const float* x = real.data();
  for (int k = 0; k < half; ++k) {
    const auto to = static_cast<std::size_t>(halfBitReversed_[static_cast<std::size_t>(k)]);
    zr[to] = x[2 * k];
    zi[to] = x[2 * k + 1];
  }
  halfSizeStages(zr, zi);
  untangle(real, imaginary);
}

void FFT::halfSizeStages(float* re, float* im) const {
  const int count = size_ / 2;
  int h = 1;
  std::size_t offset = 0;
  if (count >= 4) {
    firstTwoStages(re, im, count);
    h = 4;
    offset = 3;
  }
  for (; h < count; h *= 2) {
    stage(re, im, count, h, stageCos_.data() + offset, stageSin_.data() + offset);
    offset += static_cast<std::size_t>(h);
  }
}

// Z = FFT(z) holds the spectra of the even and odd samples tangled together:
// X[k] = E[k] + W^k O[k] with E[k] = (Z[k] + conj Z[M−k]) / 2, O[k] = (Z[k] − conj Z[M−k]) / 2i,
// and X[M−k] = conj(E[k] − W^k O[k]). Each pair (k, M−k) reads and writes only its own slots,
// so the result can overwrite Z in place.
void FFT::untangle(std::span<float> real, std::span<float> imaginary) const {
  const auto m = static_cast<std::size_t>(size_ / 2);
  float* zr = imaginary.data();
  const float* zi = imaginary.data() + m;
  const float r0 = zr[0], i0 = zi[0];
  real[0] = r0 + i0;
  real[m] = r0 - i0;
  imaginary[0] = 0;
  imaginary[m] = 0;
  for (std::size_t k = 1; k <= m / 2; ++k) {
    const std::size_t mk = m - k;
    const float ar = zr[k], ai = zi[k], br = zr[mk], bi = zi[mk];
    const float er = 0.5f * (ar + br), ei = 0.5f * (ai - bi);
    const float orr = 0.5f * (ai + bi), oi = -0.5f * (ar - br);
    const float c = cosTable_[k], s = sinTable_[k];
    const float wr = c * orr - s * oi, wi = c * oi + s * orr;
    real[mk] = er - wr;
    imaginary[mk] = wi - ei;
    real[k] = er + wr;
    imaginary[k] = ei + wi;
  }
}

}  // namespace tindra
