#include "session/driver/read_run.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "record/catalogue/method_texts.h"
#include "record/number_text.h"
#include "runs/run.h"
#include "session/inputs/beams/read_beam.h"
#include "session/inputs/drops/dew_inputs.h"
#include "session/inputs/impulse_inputs.h"
#include "session/inputs/layers/layer_labels.h"
#include "session/inputs/layers/read_layers.h"
#include "session/inputs/light/wavelength_list.h"
#include "session/inputs/map_inputs.h"
#include "session/inputs/materials/read_material.h"
#include "session/inputs/methods/debye_label.h"
#include "session/inputs/methods/rays_check.h"
#include "session/inputs/methods/read_method.h"
#include "session/inputs/methods/sphere_size.h"
#include "session/inputs/sizes/read_sizes.h"
#include "session/inputs/sizes/size_menus.h"
#include "session/inputs/two_angle_inputs.h"
#include "session/inputs/volume_inputs.h"

namespace lumivex {

namespace {

constexpr double degree = 0.017453292519943295;
constexpr double finestSpectrumStep = 0.01;  // degrees: mostSpectrumRows rows

int WavelengthsOf(const Session& session, const Graph& graph) {
  if (!graph.AgainstAngle() && (!graph.ColumnsOfAngles() || graph.OneWavelengthOnly())) return 1;
  return std::min(WavelengthCount(session.form1.cboWave.Text, RadiusInUse(session)), mostWavelengths);
}

/// Of a number of samples that no table has, those of before are taken: the list tells how many they are.
void TellSamplesTaken(Session& session) {
  const SizeDistribution sizes = ChosenSizes(session);
  const auto* normal = std::get_if<NormalSizes>(&sizes);
  if (normal != nullptr && normal->z.size() > 1) session.form1.cboN.Text = std::to_string(normal->z.size() - 1);
}

void RepairInputs(Session& session, const Graph& graph) {
  auto& form = session.form1;
  if (graph.family == Family::Lee) RefuseDisperseLeeDiagram(session);
  TellSamplesTaken(session);
  const bool several = WavelengthsOf(session, graph) > 1;
  if (!several && !graph.ColumnsOfAngles()) return;
  if (several && form.cboWave.Text == "RGB") form.chkComponents.Checked = true;
  if (2 * Int(90 / Val(form.cboStep.Text)) + 1 > mostSpectrumRows) form.cboStep.Text = Shortest(finestSpectrumStep);
}

Light ReadLight(const Session& session, const Graph& graph) {
  const auto& s = session.state;
  Light light{Val(session.form1.txtLambda.Text), std::nullopt, s.IncidentDensity, s.Distance};
  if (const int count = WavelengthsOf(session, graph); count > 1) {
    light.spectrum = ChosenSpectrum(session, count);
    light.lambda = double{light.spectrum->wavelength[static_cast<std::size_t>(light.spectrum->Middle())]};
  }
  return light;
}

/// A sphere whose materials are those of its own dialog.
Particle ReadCoated(const Session& session) {
  Particle particle{MantleRadius(session), std::nullopt, LayerMaterial(session, shellLayer),
                    LayerMaterial(session, mediumLayer)};
  particle.core = ReadCore(session);
  return particle;
}

/// A profile has the index of its outermost layer for one.
Material OutermostOf(const Session& session) {
  const ProfileLayers layers = ReadProfile(session);
  return FixedIndex{IndexAt(layers.profile, 1 - 0.5 / layers.layers), 0};
}

Particle ReadParticle(const Session& session, double lambda) {
  if (session.state.CalcMethod == Method::CoatedSphere) return ReadCoated(session);
  const auto& form = session.form1;
  Particle particle{RadiusInUse(session), std::nullopt, SphereOfGraph(session), MediumOfGraph(session)};
  if (session.state.CalcMethod == Method::InhomogeneousSphere) particle.sphere = OutermostOf(session);
  const auto heldSize = HeldValue(session, Swept::SizeParameter);
  if (!form.mnuRadiusX.Checked && !heldSize) return particle;
  particle.sizeTyped = heldSize.value_or(Val(form.txtRadius.Text));
  OpticalIndices indices;
  if (const auto found = MediumIndexAt(particle.medium, lambda).value) indices.medium = found->n;
  particle.radius = *particle.sizeTyped * lambda / (2 * std::numbers::pi * indices.MediumInUse());
  // One sphere has the same radius at all wavelengths of a pulse.
  if (ChosenGraph(session.state).OfPulse()) particle.sizeTyped.reset();
  return particle;
}

AngleRows ReadAngleRows(const Session& session, const Graph& graph) {
  const auto& form = session.form1;
  AngleRows rows;
  rows.xmin = Val(form.txtXmin.Text);
  rows.xmax = Val(form.txtXmax.Text);
  rows.step = Val(form.cboStep.Text);
  rows.NANG = ToWhole(90 / rows.step) + 1;
  if (InBeam(form)) return RowsOfBeam(rows.xmin, rows.xmax, rows.step);
  // Round the antisolar point both sides are there.
  if (GoesRound(session, graph)) {
    rows.origin = 0;
    rows.NANG = ToWhole(180 / rows.step) + 1;
  }
  const int last = 2 * rows.NANG - 1;
  rows.firstPoint = rows.xmin / rows.step + 1;
  rows.lastPoint = rows.xmax / rows.step + 1;
  // The neighbours that averages and the disc of the sun look at.
  const double margin = Int(0.25 / rows.step);
  rows.window = {std::max(1, ToWhole(rows.firstPoint - margin)), std::min(last, ToWhole(rows.lastPoint + margin))};
  if (graph.NeedsAllRows()) rows.window = {1, last};
  return rows;
}

AxisRun ReadAxis(const Session& session, const Graph& graph) {
  const auto& form = session.form1;
  AxisRun axis;
  axis.xmin = Val(form.txtXmin.Text);
  axis.xmax = Val(form.txtXmax.Text);
  axis.step = Val(form.cboStep.Text);
  axis.logSteps = form.mnuXStepLog.Checked;
  const int points =
      axis.logSteps ? ToWhole(axis.step) + 1 : ToWhole(Int((axis.xmax - axis.xmin) / axis.step + 1.0001));
  axis.points = std::clamp(points, 1, mostPoints);
  if (graph.AtOneAngle()) axis.angle = Val(form.txtAngle.Text) * std::numbers::pi / 180;
  axis.constantVolume = form.mnuConstantVolume.Checked;
  if (graph.quantity == Quantity::Power)
    axis.range = {Val(form.txtF9_min.Text), Val(form.txtF9_max.Text), Val(form.txtF9_step.Text)};
  return axis;
}

std::optional<FamilyRun> ReadFamily(Session& session, const RunRequest& request) {
  const Graph& graph = request.graph;
  const double angle = Val(session.form1.txtAngle.Text);
  switch (graph.family) {
    case Family::Angle:
      if (request.light.spectrum) return SpectrumRun{ReadAngleRows(session, graph)};
      return AngleRun{ReadAngleRows(session, graph)};
    case Family::TwoAngle: {
      auto inputs = ReadTwoAngleInputs(session);
      if (!inputs) return std::nullopt;
      return TwoAngleRun{inputs->angle1Min, inputs->angle1Max,        inputs->angle2Min,
                         inputs->angle2Max, std::move(inputs->index), std::move(inputs->radius)};
    }
    case Family::Axis:
      return ReadAxis(session, graph);
    case Family::Volume:
      return ReadVolume(session, ReadAxis(session, graph));
    case Family::Lee:
    case Family::AngleMap:
      return AngleMapRun{ReadAngleRows(session, graph), ReadColumns(session, graph),
                         session.form1.mnuInvWavelength.Checked};
    case Family::Impulse:
      return AngleMapRun{ReadAngleRows(session, graph), ReadColumns(session, graph), false, ReadPulsedLight(session)};
    case Family::PulseAnswer:
      return ReadPulseAxis(session, request);
    case Family::EfficiencyMap:
      return EfficiencyMapRun{ReadColumns(session, graph), ReadRows(session, graph), angle * std::numbers::pi / 180};
    case Family::Convergence:
      return ConvergenceRun{angle,
                            session.form1.mnuMieGConv2.Checked ? ConvergenceRun::Over::M : ConvergenceRun::Over::L};
    case Family::DebyeAnalysis: {
      const double limit = Val(session.forms.dlogDebyeSeq.txtLimit.Text);
      return DebyeAnalysisRun{angle * degree, ToWhole(std::clamp(limit, 0.0, double{HighestRay}))};
    }
    default:
      return std::nullopt;  // not on offer
  }
}

/// All terms of an analysis, whatever ray is chosen for other graphs.
RayInputs UpToTerm(int limit) {
  return {std::to_string(-limit), std::nullopt, {}};
}

void NameCoated(const Session& session, RunWords& words) {
  words.sphereName = "Coated sphere";
  words.mediumName = CoatedMediumName(session);
  words.core = CoreLine(session);
  words.sphere = CoatingLine(session);
  words.medium = CoatedMediumCaption(session);
  words.paths = PathWords(session);
}

RunWords ReadWords(const Session& session, const RunRequest& request) {
  const auto& form = session.form1;
  RunWords words;
  words.method = TextOfMethod(request.method.method, session.state.DiffractionVariant);
  words.graph = form.cboGraph.Text;
  const auto* analysis = std::get_if<DebyeAnalysisRun>(&request.run);
  words.methodLabel = analysis != nullptr ? MethodLabel(session, UpToTerm(analysis->limit)) : MethodLabel(session);
  words.rays = SelectedRaysText(request.method.rays);
  MaterialWords sphere = SphereWords(session), medium = MediumWords(session);
  words.sphereName = std::move(sphere.name);
  words.mediumName = std::move(medium.name);
  words.sphere = std::move(sphere.caption);
  words.medium = std::move(medium.caption);
  if (request.method.method == Method::CoatedSphere) NameCoated(session, words);
  if (request.method.method == Method::InhomogeneousSphere)
    words.sphereName = words.sphere = ProfileEquation(request.method.layers.profile);
  words.light = form.lblSpectrum.Caption;
  if (request.Cloud()) words.sizes = WordsForSizes(session);
  words.scale = request.graph.family == Family::PulseAnswer ? "Time" : form.Frame2.Caption;
  words.diagnostics = form.mnuHidden.Visible && form.mnuHidden.Checked;
  return words;
}

}  // namespace

std::optional<RunRequest> ReadRun(Session& session) {
  const Graph& graph = ChosenGraph(session.state);
  RepairInputs(session, graph);
  RunRequest request;
  request.graph = graph;
  request.method = ChosenMethod(session);
  request.light = ReadLight(session, graph);
  request.particle = ReadParticle(session, request.light.lambda);
  request.sizes = ChosenSizes(session);
  TakeTypedLimits(session, request);
  auto run = ReadFamily(session, request);
  if (!run) return std::nullopt;
  request.run = std::move(*run);
  // The wavelength in the middle stands for those that are swept.
  if (const auto* map = std::get_if<AngleMapRun>(&request.run); map != nullptr && graph.SweepsWavelength())
    request.light.lambda = map->columns.At(map->columns.steps / 2) / 1000;
  if (const auto* analysis = std::get_if<DebyeAnalysisRun>(&request.run))
    request.method.rays = SelectedRays(UpToTerm(analysis->limit));
  request.words = ReadWords(session, request);
  return request;
}

}  // namespace lumivex
