// FFT: an iterative radix-2 fast Fourier transform of a fixed power-of-two size, with its
// twiddle and bit-reversal tables computed once. `transformReal` is the fast path for real
// input (the spectrum analyser's): a half-size complex transform plus one untangling pass.
// Allocates only when built; transforms are const and allocation-free, so one FFT can serve
// several threads, each with its own arrays.
#pragma once

#include <span>
#include <vector>

namespace tindra {

class FFT {
 public:
  // `size` must be a power of two, at least 4.
  explicit FFT(int size);

  // The forward transform of `size` complex points, in place, in natural order.
  void transform(std::span<float> real, std::span<float> imaginary) const;

  // The forward transform of `size` real samples held in `real`: bins 0 … size/2 land in
  // `real` and `imaginary` (both `size` long; entries above size/2 are left as work space).
  void transformReal(std::span<float> real, std::span<float> imaginary) const;

  int size() const { return size_; }
  // cos and sin of −2πk/size for k = 0 … size/2 − 1.
  const std::vector<float>& cosTable() const { return cosTable_; }
  const std::vector<float>& sinTable() const { return sinTable_; }
  // The bit-reversal permutation of 0 … size − 1.
  const std::vector<int>& bitReversed() const { return bitReversed_; }

 private:
  void halfSizeStages(float* re, float* im) const;
  void untangle(std::span<float> real, std::span<float> imaginary) const;

  int size_;
  std::vector<float> cosTable_;
  std::vector<float> sinTable_;
  std::vector<int> bitReversed_;
  // For the half-size transform: its bit reversal, and each stage's twiddles laid out one stage
  // after another so the butterfly loop reads them in sequence.
  std::vector<int> halfBitReversed_;
  std::vector<float> stageCos_;
  std::vector<float> stageSin_;
};

}  // namespace tindra
