#include "session/inputs/sizes/size_distribution.h"

#include <utility>

#include "particles/size_distribution.h"
#include "record/number_text.h"
#include "session/inputs/sizes/read_sizes.h"

namespace lumivex {

namespace {

/// The input that is to blame for a distribution that cannot be used.
Control& ControlAtFault(Form1& form, SizeFailure failure) {
  const bool width = failure == SizeFailure::NegativeRadius || failure == SizeFailure::BadGamma;
  return width ? form.cboSD : form.cboDistrib;
}

}  // namespace

bool IsAerosol(std::string_view distribution) {
  return distribution.starts_with("Aerosol m");
}

void Disperse(Session& session) {
  auto& s = session.state;
  const SizeDistribution sizes = ChosenSizes(session);
  const auto* normal = std::get_if<NormalSizes>(&sizes);
  if (normal == nullptr) return;
  s.RelativeSD = normal->relativeSD;
  s.DistSample = normal->z;
  s.NumberSamples = static_cast<int>(s.DistSample.size()) - 1;
}

bool PrepareSizes(Session& session, bool aloud) {
  auto& s = session.state;
  Disperse(session);
  const SizeDistribution sizes = ChosenSizes(session);
  CloudSamples samples = SamplesOf(sizes, s.Radius);
  const SizeFailure failure = samples.failure;
  if (samples.Count() > 0) {
    s.NumberSamples = samples.Count();
    s.DistRadius = std::move(samples.radius);
    s.DistWeight = std::move(samples.weight);
    s.DistMin = samples.lowest;
    s.DistMax = samples.highest;
    if (std::holds_alternative<ModelSizes>(sizes)) s.DistRatio = samples.ratio;
  }
  if (failure == SizeFailure::None) return true;
  if (!aloud) return false;
  ControlAtFault(session.form1, failure).BackColour = colours::BadInput;
  session.platform.Message("Input error", WordsFor(failure));
  return false;
}

void TakeSpecialRadius(Session& session) {
  if (const auto radius = RadiusOfSizeFile(ChosenSizes(session))) session.state.Radius = *radius;
}

}  // namespace lumivex
