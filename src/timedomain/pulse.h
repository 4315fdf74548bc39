#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace lumivex {

enum class PulseForm { Rectangular, RaisedCosine, Hamming, Gaussian, AM, FM };

/// How a light pulse is asked for.
struct PulseRequest {
  PulseForm form = PulseForm::Gaussian;
  double wavelength = 0.65;    ///< um in the vacuum, > 0
  double duration = 5.0;       ///< Tp in fs, > 0: the amplitude's full width at half height (Hamming: 1.055 of it)
  std::int32_t length = 2048;  ///< N, samples of time; a power of two, 128 at least
  std::int32_t sampling = 1;   ///< samples in a quarter of an optical period
  double cutOff = -20.0;       ///< dB, < 0: the band's edge under the highest magnitude of the spectrum
  double carrier = 10.64e6;    ///< Hz, of the signals AM and FM
  double modulation = 9500.0;  ///< Hz
  double deviation = 75e3;     ///< Hz
  double sampleRate = 608e3;   ///< Hz
  bool operator==(const PulseRequest&) const = default;
};

/// The constant by which path lengths become times, um/fs.
inline constexpr double lightSpeed = 0.3;

/// A pulse in time and frequency, and the band of wavelengths that it holds.
///
/// Sample j stands at (j - N/2) dt: both sides of the centre have the value of the form at |t| times cos(2 pi t/T0); AM
/// and FM are test signals of their own clock. The spectrum is the forward transform of N samples; index k is the
/// wavelength Lambda c/k, c = N/(4 sampling). The band begins at the lowest index up to N/4 whose magnitude exceeds
/// 10^(cutOff/20) of the highest, and lies evenly about c.
struct Pulse {
  PulseRequest asked;
  double period = 0.0;                   ///< T0, fs
  double step = 0.0;                     ///< dt, fs
  double window = 0.0;                   ///< N dt, fs
  std::vector<double> real, imag;        ///< N samples of time, from 0
  std::vector<double> outReal, outImag;  ///< N samples of the spectrum, from 0
  std::int32_t centre = 0;               ///< c
  std::int32_t peakIndex = 0;            ///< of the highest magnitude, 0..N/2
  double peak = 0.0;                     ///< the highest magnitude
  std::int32_t low = 0, high = 0;        ///< the band, where it was found
  bool valid = false;                    ///< there is a band: 0 < low <= c, c >= 4

  std::int32_t Bands() const { return valid ? high - low + 1 : 0; }
  /// um in the vacuum, of a frequency index > 0.
  double Wavelength(std::int32_t k) const { return asked.wavelength * centre / k; }
  double Magnitude(std::int32_t k) const;
  /// fs from the centre.
  double Time(std::int32_t j) const { return (j - asked.length / 2) * step; }
};

Pulse BuildPulse(const PulseRequest& request);

/// What the correlation of an answer with its pulse makes of the frequencies of the band, k = low..high: the factor
/// sum_(m = -M..M) pulse(N/2 + m) exp(-2 pi i m k/N), M = Tp/dt, of CCF: out'(j) = sum_m out(j + m) pulse(N/2 + m). It
/// is real, as pulses are the same on both sides of their centre.
std::vector<double> CorrelationOf(const Pulse& pulse);

/// From sample to sample (fs).
double SampleStep(const PulseRequest& request);

/// The value of a pulse at the distance t >= 0 from its centre, without its carrier; 0 outside it. `t` and `duration`
/// in one unit. Not for AM and FM.
double PulseEnvelope(PulseForm form, double t, double duration);

}  // namespace lumivex
