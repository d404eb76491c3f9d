// The live spectrum's cost per frame (1024 points, 64 bands) against FFTW in the same run:
// the real transform alone, and the whole analyser frame beside the same frame built on FFTW.
#include <benchmark/benchmark.h>
#include <fftw3.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>
#include <vector>

#include "nowplaying/fft.h"
#include "nowplaying/spectrum_analyzer.h"

namespace {

constexpr int points = 1024;

std::vector<float> music() {
  std::vector<float> samples(points);
  for (int i = 0; i < points; ++i) {
    const double t = i / 48'000.0;
    samples[static_cast<std::size_t>(i)] =
        static_cast<float>(0.5 * std::sin(2 * std::numbers::pi * 220 * t) +
                           0.3 * std::sin(2 * std::numbers::pi * 3'100 * t) + 0.01 * (i % 7));
  }
  return samples;
}

// FFTW's real transform with a plan made once; the input is refreshed each time, as ours is.
struct FFTWReal {
  double* in = fftw_alloc_real(points);
  fftw_complex* out = fftw_alloc_complex(points / 2 + 1);
  fftw_plan plan = fftw_plan_dft_r2c_1d(points, in, out, FFTW_MEASURE);
  ~FFTWReal() {
    fftw_destroy_plan(plan);
    fftw_free(in);
    fftw_free(out);
  }
};

void BM_FFTWRealTransform(benchmark::State& state) {
  FFTWReal fftw;
  const auto signal = music();
  for (auto _ : state) {
    for (int i = 0; i < points; ++i) fftw.in[i] = signal[static_cast<std::size_t>(i)];
    fftw_execute(fftw.plan);
    benchmark::DoNotOptimize(fftw.out[points / 4][0]);
  }
}
BENCHMARK(BM_FFTWRealTransform);

void BM_TindraRealTransform(benchmark::State& state) {
  const tindra::FFT fft(points);
  const auto signal = music();
  std::vector<float> real(points), imaginary(points);
  for (auto _ : state) {
    std::memcpy(real.data(), signal.data(), points * sizeof(float));
    fft.transformReal(real, imaginary);
    benchmark::DoNotOptimize(real[points / 4]);
  }
}
BENCHMARK(BM_TindraRealTransform);

// The plain radix-2 over all 1024 complex points, for scale.
void BM_TindraComplexTransform(benchmark::State& state) {
  const tindra::FFT fft(points);
  const auto signal = music();
  std::vector<float> real(points), imaginary(points);
  for (auto _ : state) {
    std::memcpy(real.data(), signal.data(), points * sizeof(float));
    std::fill(imaginary.begin(), imaginary.end(), 0.0f);
    fft.transform(real, imaginary);
    benchmark::DoNotOptimize(real[points / 4]);
  }
}
BENCHMARK(BM_TindraComplexTransform);

void BM_TindraAnalyzerFrame(benchmark::State& state) {
  tindra::SpectrumAnalyzer analyzer(tindra::SpectrumAnalyzer::Configuration{});
  analyzer.append(music());
  for (auto _ : state) benchmark::DoNotOptimize(analyzer.analyze().data());
}
BENCHMARK(BM_TindraAnalyzerFrame);

// The same frame on FFTW: window the ring, transform, loudest bin per band, one logarithm per
// band, asymmetric smoothing.
void BM_FFTWAnalyzerFrame(benchmark::State& state) {
  const tindra::SpectrumAnalyzer::Configuration configuration;
  const auto bins = tindra::SpectrumAnalyzer::bandBins(configuration);
  std::vector<double> window(points);
  double windowSum = 0;
  for (int n = 0; n < points; ++n) {
    window[static_cast<std::size_t>(n)] =
        0.5 - 0.5 * std::cos(2 * std::numbers::pi * n / (points - 1));
    windowSum += window[static_cast<std::size_t>(n)];
  }
  const double scale = 2 / windowSum;
  const auto ring = music();
  const std::size_t writeIndex = 300;
  std::vector<float> levels(bins.size());
  FFTWReal fftw;
  for (auto _ : state) {
    for (std::size_t i = 0; i < points; ++i) {
      fftw.in[i] = ring[(writeIndex + i) % points] * window[i];
    }
    fftw_execute(fftw.plan);
    for (std::size_t band = 0; band < bins.size(); ++band) {
      double loudest = 0;
      for (int bin = bins[band].lo; bin < bins[band].hi; ++bin) {
        const double re = fftw.out[bin][0], im = fftw.out[bin][1];
        loudest = std::max(loudest, re * re + im * im);
      }
      const double magnitude = std::max(scale * std::sqrt(loudest), 1e-9);
      const float level = std::max(
          0.0f, std::min(1.0f, static_cast<float>((20 * std::log10(magnitude) + 60) / 60)));
      const float previous = levels[band];
      levels[band] = level >= previous ? level : previous * 0.75f + level * 0.25f;
    }
    benchmark::DoNotOptimize(levels.data());
  }
}
BENCHMARK(BM_FFTWAnalyzerFrame);

}  // namespace

BENCHMARK_MAIN();
