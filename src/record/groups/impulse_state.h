#pragma once

#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

namespace lumivex {

/// The pulse of light that an impulse response is asked for, as it was built last, and what lies over its picture.
/// Lists have first index 1.
struct ImpulseState {
  std::int32_t FFTLength = 0;                      ///< N, samples; 0 before the first pulse
  double PulsePeriod = 0;                          ///< optical period (s)
  double SampleTime = 0, SampleTimeFs = 0;         ///< from sample to sample (s, fs)
  double PulseDuration = 0;                        ///< s
  std::string PulseShape;                          ///< as its list has it
  int PulseCutOff = 0;                             ///< dB, below 0
  double PulseWindow = 0;                          ///< N samples (fs)
  std::vector<double> PulseInReal, PulseInImag;    ///< samples of time, the centre at index N/2 + 1
  std::vector<double> PulseOutReal, PulseOutImag;  ///< spectrum; index k + 1 is frequency k
  std::vector<double> PulseEnvelopeFlag;  ///< 1 for samples within the pulse, otherwise 0; empty where unmarked
  std::int32_t SpectrumLowIndex = 0;      ///< ends of the band, from 0; both 0 where there is none
  std::int32_t SpectrumHighIndex = 0;
  double PulseBandLow = 0, PulseBandHigh = 0;  ///< the same as wavelengths (um)
  int PulseValid = 0;                          ///< 1 where the pulse has a band
  int TimePlotRays = 0, TimePlotWaves = 0;     ///< 1: rays, surface waves over the picture
};

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, ImpulseState>
void ForEachField(Group& g, Visitor&& visit) {
  visit("FFTLength", g.FFTLength);
  visit("PulsePeriod", g.PulsePeriod);
  visit("SampleTime", g.SampleTime);
  visit("SampleTimeFs", g.SampleTimeFs);
  visit("PulseDuration", g.PulseDuration);
  visit("PulseShape", g.PulseShape);
  visit("PulseCutOff", g.PulseCutOff);
  visit("PulseWindow", g.PulseWindow);
  visit("PulseInReal", g.PulseInReal);
  visit("PulseInImag", g.PulseInImag);
  visit("PulseOutReal", g.PulseOutReal);
  visit("PulseOutImag", g.PulseOutImag);
  visit("PulseEnvelopeFlag", g.PulseEnvelopeFlag);
  visit("SpectrumLowIndex", g.SpectrumLowIndex);
  visit("SpectrumHighIndex", g.SpectrumHighIndex);
  visit("PulseBandLow", g.PulseBandLow);
  visit("PulseBandHigh", g.PulseBandHigh);
  visit("PulseValid", g.PulseValid);
  visit("TimePlotRays", g.TimePlotRays);
  visit("TimePlotWaves", g.TimePlotWaves);
}

}  // namespace lumivex
