#include "nowplaying/spectrum_analyzer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <numbers>

#include "nowplaying/fft.h"

namespace tindra {
namespace {

using Configuration = SpectrumAnalyzer::Configuration;

std::vector<std::complex<double>> naiveDFT(const std::vector<float>& x) {
  const std::size_t n = x.size();
  std::vector<std::complex<double>> out(n);
  for (std::size_t k = 0; k < n; ++k) {
    for (std::size_t t = 0; t < n; ++t) {
      out[k] += static_cast<double>(x[t]) *
                std::polar(1.0, -2 * std::numbers::pi * static_cast<double>(k * t) /
                                    static_cast<double>(n));
    }
  }
  return out;
}

TEST(FFTTest, BothTransformsAgreeWithTheDefinition) {
  for (int size : {4, 8, 16, 64, 1024}) {
    std::vector<float> signal(static_cast<std::size_t>(size));
    for (int i = 0; i < size; ++i)
      signal[static_cast<std::size_t>(i)] = std::sin(i * 0.7f) + (i % 3) - 1;
    const auto expected = naiveDFT(signal);
    const FFT fft(size);

    std::vector<float> re = signal, im(signal.size(), 0.0f);
    fft.transform(re, im);
    std::vector<float> realRe = signal, realIm(signal.size(), 123.0f);
    fft.transformReal(realRe, realIm);
    const double tolerance = 1e-4 * size;
    for (int k = 0; k < size; ++k) {
      const auto i = static_cast<std::size_t>(k);
      EXPECT_NEAR(re[i], expected[i].real(), tolerance) << size << " bin " << k;
      EXPECT_NEAR(im[i], expected[i].imag(), tolerance) << size << " bin " << k;
      if (k > size / 2) continue;
      EXPECT_NEAR(realRe[i], expected[i].real(), tolerance) << size << " real bin " << k;
      EXPECT_NEAR(realIm[i], expected[i].imag(), tolerance) << size << " real bin " << k;
    }
  }
}

TEST(SpectrumAnalyzerTest, SixtyFourBandsAtTheSessionSettings) {
  const auto bins = SpectrumAnalyzer::bandBins({.fftSize = 1024, .bandCount = 64});
  ASSERT_EQ(bins.size(), 64u);
  EXPECT_EQ(bins.front().lo, 1) << "60 Hz lies in bin 1 of 46.875 Hz";
  for (std::size_t band = 0; band < bins.size(); ++band) {
    EXPECT_GE(bins[band].hi - bins[band].lo, 1) << band;
    EXPECT_LE(bins[band].hi, 513) << band;
    if (band > 0) {
      EXPECT_EQ(bins[band].lo, bins[band - 1].hi) << "contiguous at " << band;
    }
  }
  EXPECT_EQ(bins.back().hi, 256) << "12 kHz is exactly bin 256, where the last band ends";
  EXPECT_EQ(bins[1], (SpectrumAnalyzer::BinRange{2, 3})) << "narrow low bands still hold a bin";
  EXPECT_TRUE(SpectrumAnalyzer::bandBins({.bandCount = 0}).empty());
}

std::vector<float> sine(double frequency, int count, double amplitude = 1) {
  std::vector<float> samples(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    samples[static_cast<std::size_t>(i)] =
        static_cast<float>(amplitude * std::sin(2 * std::numbers::pi * frequency * i / 48'000));
  }
  return samples;
}

TEST(SpectrumAnalyzerTest, ASineLightsItsBandAndNotDistantOnes) {
  SpectrumAnalyzer analyzer(Configuration{});
  const auto band = analyzer.bins()[40];
  const double centre = (band.lo + band.hi) / 2.0 * 48'000 / 1024;
  analyzer.append(sine(centre, 1024));
  const auto levels = analyzer.analyze();
  EXPECT_GT(levels[40], 0.95f);
  for (std::size_t far : {0u, 10u, 20u, 60u, 63u}) {
    EXPECT_EQ(levels[far], 0.0f) << far;
  }

  // A sine at a quarter of full scale sits 12 dB lower: level 0.8 on a 60 dB scale.
  SpectrumAnalyzer quieter(Configuration{});
  quieter.append(sine(48'000.0 * 128 / 1024, 1024, 0.25));  // exactly bin 128
  const auto bin128 = [&] {
    for (std::size_t b = 0; b < quieter.bins().size(); ++b) {
      if (quieter.bins()[b].lo <= 128 && 128 < quieter.bins()[b].hi) return b;
    }
    return std::size_t{0};
  }();
  EXPECT_NEAR(quieter.analyze()[bin128], 0.8f, 0.01f);
}

TEST(SpectrumAnalyzerTest, SilenceIsZeroAndBarsFallByAQuarterOfTheGap) {
  SpectrumAnalyzer analyzer(Configuration{});
  for (float level : analyzer.analyze()) EXPECT_EQ(level, 0.0f);

  analyzer.append(sine(3000, 1024));
  const std::vector<float> loud(analyzer.analyze().begin(), analyzer.analyze().end());
  analyzer.append(std::vector<float>(1024, 0.0f));
  const auto after = analyzer.analyze();
  for (std::size_t band = 0; band < loud.size(); ++band) {
    EXPECT_FLOAT_EQ(after[band], loud[band] * 0.75f) << band;
  }
  analyzer.append(sine(3000, 1024));
  EXPECT_EQ(std::vector<float>(analyzer.analyze().begin(), analyzer.analyze().end()), loud)
      << "a rising bar is taken at once";
}

TEST(SpectrumAnalyzerTest, TheRingKeepsTheLatestSamplesOldestFirst) {
  SpectrumAnalyzer pieces(Configuration{});
  SpectrumAnalyzer whole(Configuration{});
  const auto signal = sine(440, 3000);
  for (std::size_t at = 0; at < signal.size(); at += 700) {
    pieces.append(std::span(signal).subspan(at, std::min<std::size_t>(700, signal.size() - at)));
  }
  whole.append(signal);
  EXPECT_EQ(pieces.filled(), 1024);
  const std::vector<float> expected(whole.analyze().begin(), whole.analyze().end());
  const auto got = pieces.analyze();
  for (std::size_t band = 0; band < expected.size(); ++band) {
    EXPECT_NEAR(got[band], expected[band], 1e-5f) << band;
  }
}

}  // namespace
}  // namespace tindra
