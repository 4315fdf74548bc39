#include "session/inputs/methods/read_method.h"

#include <algorithm>

#include "record/number_text.h"
#include "session/inputs/beams/read_beam.h"
#include "session/inputs/drops/read_drops.h"
#include "session/inputs/layers/read_layers.h"
#include "session/inputs/methods/rays_check.h"

namespace lumivex {

namespace {

Difference DifferenceTicked(const Form1& form) {
  if (form.mnuMieDebye.Checked) return Difference::MieLessDebye;
  if (form.mnuGODebye.Checked) return Difference::RaysLessDebye;
  return form.mnuSWsub.Checked ? Difference::DebyeLessRays : Difference::None;
}

std::optional<PartialWaveRange> PartialWavesOf(const DlogPartial& dialog) {
  if (!dialog.optPartial.Checked) return std::nullopt;
  return PartialWaveRange{Val(dialog.txtMin.Text), Val(dialog.txtMax.Text)};
}

int CountTyped(const TextInput& field, int most) {
  return std::clamp(ToWhole(std::min(Val(field.Text), 1e6)), 1, most);
}

}  // namespace

bool TakesDifferences(const Graph& graph) {
  return graph.family != Family::Convergence && graph.family != Family::DebyeAnalysis;
}

MethodOptions ChosenMethod(const Session& session) {
  constexpr int mostRays = 100000, mostStrips = 10000;
  const auto& form = session.form1;
  MethodOptions options;
  options.method = session.state.CalcMethod;
  const MethodTraits& traits = TraitsOf(options.method);
  if (traits.showsP) options.rays = SelectedRays(RayInputsOf(session));
  options.addDiffraction = OffersDiffraction(session) && WithDiffraction(session);
  if (options.method == Method::Debye) {
    if (TakesDifferences(ChosenGraph(session.state))) options.difference = DifferenceTicked(form);
    options.partialWaves = PartialWavesOf(session.forms.dlogPartial);
  }
  if (options.method == Method::CoatedSphere) {
    options.paths = ReadPaths(session);
    options.recursion = ReadRecursion(session.forms.dlogCoatedSphere);
  }
  if (options.method == Method::InhomogeneousSphere) options.layers = ReadProfile(session);
  options.byRatio = form.mnuDebyeRecursion.Checked;
  // Only the series that knows the division takes part in it: a difference of divided and undivided fields means
  // nothing.
  options.divideBySize = form.mnuSize.Checked && traits.divides;
  options.classicStart = form.mnuClassicStart.Checked;
  if (session.state.DiffractionVariant == 1) options.diffraction = DiffractionForm::PartialWaves;
  options.forwardEfficiency = form.mnuHidden.Checked;
  // The field that counts them has another meaning for maps.
  const bool counts = !ChosenGraph(session.state).InColour();
  if (counts && traits.counts == Counted::Rays) options.counted = CountTyped(form.txtAngle, mostRays);
  if (counts && traits.counts == Counted::Strips) options.counted = CountTyped(form.txtAngle, mostStrips);
  options.Qmin = static_cast<float>(Val(form.cboQmin.Text));
  options.Qmax = static_cast<float>(Val(form.cboQmax.Text));
  options.beam = ReadBeam(session);
  if (options.method == Method::SurfaceWave) options.surface = ReadSurfaceWaves(session);
  if (options.method == Method::Heiligenschein) options.dew = ReadDew(session);
  if (options.method == Method::Burgeroid) {
    options.drop = ReadDrop(session);
    options.rays = RaysOfDrop(session);
  }
  return options;
}

}  // namespace lumivex
