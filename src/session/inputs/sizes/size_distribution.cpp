#include "session/inputs/sizes/size_distribution.h"

#include <utility>

#include "particles/normal_samples.h"
#include "record/number_text.h"
#include "session/inputs/sizes/read_sizes.h"

namespace lumivex {

bool IsAerosol(std::string_view distribution) {
  return distribution.starts_with("Aerosol m");
}

void Disperse(Session& session) {
  auto& s = session.state;
  const auto& form = session.form1;
  s.RelativeSD = Val(form.cboSD.Text) / 100;
  if (auto samples = NormalSamples(ToWhole(Val(form.cboN.Text))); !samples.empty()) s.DistSample = std::move(samples);
}

void TakeSpecialRadius(Session& session) {
  if (const auto radius = RadiusOfSizeFile(ChosenSizes(session))) session.state.Radius = *radius;
}

}  // namespace lumivex
