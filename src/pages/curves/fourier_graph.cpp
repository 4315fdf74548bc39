#include "pages/curves/fourier_graph.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <optional>
#include <span>
#include <string>
#include <utility>

#include "runs/settings.h"
#include "timedomain/fourier_transform.h"
#include "timedomain/ray_times.h"

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi;
constexpr int highestOrder = 6;

/// The row of a curve that is nearest to an x; curves have first index 1.
std::size_t RowNearest(const std::vector<double>& x, double at) {
  std::size_t nearest = 1;
  double distance = std::numeric_limits<double>::infinity();
  for (std::size_t i = 1; i < x.size(); ++i) {
    if (!(std::fabs(x[i] - at) < distance)) continue;
    distance = std::fabs(x[i] - at);
    nearest = i;
  }
  return nearest;
}

/// One curve, or one part of amplitudes, as samples.
template <class ValueAt>
void TakeSamples(std::vector<double>& samples, std::size_t first, std::size_t size, ValueAt valueAt) {
  for (std::size_t j = 0; j < samples.size(); ++j) {
    const double value = first + j < size ? valueAt(first + j) : 0.0;
    samples[j] = std::isfinite(value) ? value : 0.0;
  }
}

struct Amplitudes {
  const AmplitudeTable *S1 = nullptr, *S2 = nullptr;
};

Amplitudes AmplitudesOf(const Results& results) {
  if (const auto* angles = results.Find<AngleFound>()) return {&angles->S1, &angles->S2};
  if (const auto* axis = results.Find<AxisFound>()) return {&axis->S1, &axis->S2};
  return {};
}

/// The bins that are shown, with negative ones below 0.
struct Bins {
  int low = 0, high = 0;
};

Bins BinsOf(const Results& results, const FourierLook& look) {
  const double bins = StepOf(results.asked) * look.length;
  const double highest = look.length / 2, lowest = look.complex ? -highest : 0;
  const auto bin = [&](double frequency) {
    return static_cast<int>(std::nearbyint(std::clamp(frequency * bins, lowest, highest)));
  };
  return {bin(look.frequencies.xmin), bin(look.frequencies.xmax)};
}

std::vector<double> Magnitudes(const std::vector<double>& real, const std::vector<double>& imag, Bins bins) {
  std::vector<double> magnitudes = {0.0};
  const auto n = static_cast<int>(real.size());
  for (int k = bins.low; k <= bins.high; ++k) {
    const auto i = static_cast<std::size_t>(k < 0 ? k + n : k);
    magnitudes.push_back(std::hypot(real[i], imag[i]));
  }
  return magnitudes;
}

/// Transforms one polarisation after the other with the same tables.
class Transform {
 public:
  Transform(FourierCurves& into, Bins bins)
      : into_(into), bins_(bins), plan_(into.FFTLength), size_(static_cast<std::size_t>(into.FFTLength)) {
    for (auto* list :
         {&into.FFTRealIn, &into.FFTImagIn, &into.FFTRealOut, &into.FFTImagOut, &into.FFTRealOut2, &into.FFTImagOut2})
      list->assign(size_, 0.0);
  }

  std::vector<double> OfCurve(const std::vector<double>& y, std::size_t first, bool root, std::vector<double>& real,
                              std::vector<double>& imag) {
    TakeSamples(into_.FFTRealIn, first, y.size(),
                [&](std::size_t i) { return root ? std::sqrt(std::max(0.0, y[i])) : y[i]; });
    std::ranges::fill(into_.FFTImagIn, 0.0);
    return Run(real, imag);
  }

  std::vector<double> OfAmplitude(const AmplitudeTable& S, std::size_t first, std::vector<double>& real,
                                  std::vector<double>& imag) {
    const auto size = static_cast<std::size_t>(S.Rows()) + 1;
    TakeSamples(into_.FFTRealIn, first, size, [&](std::size_t i) { return S.Re(static_cast<int>(i)); });
    TakeSamples(into_.FFTImagIn, first, size, [&](std::size_t i) { return S.Im(static_cast<int>(i)); });
    return Run(real, imag);
  }

 private:
  std::vector<double> Run(std::vector<double>& real, std::vector<double>& imag) {
    plan_.Transform(into_.FFTRealIn, into_.FFTImagIn, real, imag);
    return Magnitudes(real, imag, bins_);
  }

  FourierCurves& into_;
  Bins bins_;
  FourierPlan plan_;
  std::size_t size_;
};

/// A sphere by rays in the middle of the samples, and what turns frequencies of rays into those of the axis.
struct Middle {
  RaySphere sphere;
  double lambda = 0.65;
  double angle = 0;  ///< degrees
  AxisVariable axis = AxisVariable::Angle;

  double FrequencyOf(const TimedRay& ray) const {
    switch (axis) {
      case AxisVariable::Angle:
        return FrequencyOverAngle(sphere, ray, lambda);
      case AxisVariable::Diameter:
        return FrequencyOverRadius(sphere, ray, lambda) / 2;
      case AxisVariable::SizeParameter:
        return FrequencyOverRadius(sphere, ray, lambda) * lambda / (2 * pi * sphere.n);
      case AxisVariable::Wavelength:
        return FrequencyOverWavelength(sphere, ray, lambda);
      default:
        return FrequencyOverRadius(sphere, ray, lambda);
    }
  }
};

bool HasRays(const Results& results) {
  const RunRequest& asked = results.asked;
  const AxisVariable axis = asked.graph.axis;
  return !asked.Cloud() && !TraitsOf(asked.method.method).layered && axis != AxisVariable::RefractiveIndex;
}

/// Nothing where a material has no index there, or none that rays have.
std::optional<Middle> MiddleOf(const Results& results, const FourierLook& look) {
  const RunRequest& asked = results.asked;
  const double middle = look.first + StepOf(asked) * (look.length - 1) / 2;
  Middle at;
  at.axis = asked.graph.axis;
  at.lambda = at.axis == AxisVariable::Wavelength ? middle / 1000 : asked.light.lambda;
  const SettingResult found = SettingAt(asked, at.lambda);
  if (!found.Good() || !(found.setting.mRe > 0)) return std::nullopt;
  at.sphere = {found.setting.radius, found.setting.indices.MediumInUse(), found.setting.mRe};
  if (const AxisRun* axis = AxisOf(asked.run))
    at.angle = axis->angle * 180 / pi;
  else
    at.angle = std::fabs(middle);
  return at;
}

}  // namespace

bool HasSpectrum(const Results& results) {
  const RunRequest& asked = results.asked;
  if (asked.graph.drawing != Drawing::Curves || asked.graph.family == Family::Convergence) return false;
  if (results.Find<AngleFound>() != nullptr) return true;
  const AxisRun* axis = AxisOf(asked.run);
  return results.Find<AxisFound>() != nullptr && axis != nullptr && !axis->logSteps;
}

bool HasAmplitudes(const Results& results) {
  return HasSpectrum(results) && !results.asked.Cloud() && results.asked.graph.quantity == Quantity::Intensity;
}

Look LookOfSpectrum(const Results& results, Look look) {
  if (!look.fourier) return look;
  if (!HasSpectrum(results) || !IsPowerOfTwo(look.fourier->length) || look.fourier->length > mostFourierPoints) {
    look.fourier.reset();
    return look;
  }
  look.fourier->complex = look.fourier->complex && HasAmplitudes(results);
  look.scale.x = look.fourier->frequencies;
  if (!look.fourier->complex) look.scale.x.xmin = std::max(0.0, look.scale.x.xmin);
  look.scale.logX = look.scale.polar = false;
  look.second = SecondPanel::None;
  look.sun.disc = false;
  return look;
}

double FrequencyStep(const Results& results, const FourierLook& look) {
  return 1 / (StepOf(results.asked) * look.length);
}

FourierCurves FFTcalc(const Results& results, const Curves& found, const FourierLook& look) {
  FourierCurves spectrum;
  spectrum.FFTLength = look.length;
  const Bins bins = BinsOf(results, look);
  Transform transform(spectrum, bins);
  const std::size_t first = RowNearest(found.x, look.first);
  Curves& curves = spectrum.curves;
  curves.x = {0.0};
  for (int k = bins.low; k <= bins.high; ++k) curves.x.push_back(k * FrequencyStep(results, look));
  curves.lastRow = static_cast<int>(curves.x.size()) - 1;
  if (look.complex) {
    const Amplitudes amplitudes = AmplitudesOf(results);
    curves.perpendicular = transform.OfAmplitude(*amplitudes.S1, first, spectrum.FFTRealOut, spectrum.FFTImagOut);
    curves.parallel = transform.OfAmplitude(*amplitudes.S2, first, spectrum.FFTRealOut2, spectrum.FFTImagOut2);
    curves.unpolarised = curves.perpendicular;
    for (std::size_t i = 1; i < curves.unpolarised.size(); ++i)
      curves.unpolarised[i] = std::hypot(curves.perpendicular[i], curves.parallel[i]) / std::numbers::sqrt2;
    return spectrum;
  }
  std::vector<double> real(spectrum.FFTRealIn.size()), imag(real.size());
  curves.unpolarised = transform.OfCurve(found.unpolarised, first, look.root, real, imag);
  curves.parallel = transform.OfCurve(found.parallel, first, look.root, spectrum.FFTRealOut2, spectrum.FFTImagOut2);
  curves.perpendicular =
      transform.OfCurve(found.perpendicular, first, look.root, spectrum.FFTRealOut, spectrum.FFTImagOut);
  return spectrum;
}

std::vector<PageFrequencies::Ray> RayFrequenciesOf(const Results& results, const FourierLook& look) {
  if (!HasRays(results)) return {};
  std::optional<Middle> at = MiddleOf(results, look);
  if (!at) return {};
  Middle& middle = *at;
  std::vector<PageFrequencies::Ray> found;
  if (results.asked.graph.OfEfficiencies()) {
    middle.angle = 0;
    for (const TimedRay& ray : RaysAtAngle(middle.sphere, 1, 0))
      found.push_back({std::fabs(middle.FrequencyOf(ray)), "p = 1 and diffraction"});
    return found;
  }
  struct One {
    int p;
    double frequency;
  };
  std::vector<One> rays;
  for (int p = 0; p <= highestOrder; ++p)
    for (const TimedRay& ray : RaysAtAngle(middle.sphere, p, middle.angle))
      rays.push_back({p, middle.FrequencyOf(ray)});
  const auto name = [](int p) { return "p = " + std::to_string(p); };
  for (std::size_t i = 0; i < rays.size(); ++i) {
    if (look.complex) found.push_back({rays[i].frequency, name(rays[i].p)});
    for (std::size_t j = i + 1; j < rays.size() && !look.complex; ++j)
      found.push_back({std::fabs(rays[i].frequency - rays[j].frequency), name(rays[i].p) + " and " + name(rays[j].p)});
  }
  return found;
}

}  // namespace lumivex
