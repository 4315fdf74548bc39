#include "session/checks/sphere_of_run.h"

#include <algorithm>
#include <numbers>
#include <utility>
#include <variant>
#include <vector>

#include "record/number_text.h"
#include "session/checks/check.h"
#include "session/checks/material_bands.h"
#include "session/inputs/map_inputs.h"
#include "session/inputs/materials/read_material.h"
#include "session/inputs/methods/sphere_size.h"
#include "session/inputs/sizes/read_sizes.h"

namespace lumivex {

namespace {

constexpr double twoPi = 2 * std::numbers::pi;

/// Wavelengths that stand for those of the run (um): its only one, or its ends and what lies between.
std::vector<double> WavelengthsOfRun(const Session& session) {
  const WavelengthRange range = RangeOfRun(session);
  if (!range.Any()) return {Val(session.form1.txtLambda.Text)};
  constexpr int steps = 100;
  std::vector<double> wavelengths;
  for (int i = 0; i <= steps; ++i) wavelengths.push_back(range.low + (range.high - range.low) * i / steps);
  return wavelengths;
}

/// Radii of the run (um), or on an axis of size parameters 2 pi times them over the wavelength in vacuo.
struct Sizes {
  double smallest = 0, largest = 0;
  bool parameters = false;

  double Parameter(double size, double lambda) const { return parameters ? size : twoPi * size / lambda; }
};

Sizes SizesOfMap(const Session& session, const MapInputs& map, double radius) {
  const Graph& graph = ChosenGraph(session.state);
  const double medium = MediumIndexInUse(session);
  if (const auto held = HeldValue(session, Swept::SizeParameter)) return {*held / medium, *held / medium, true};
  if (map.size != SizeField::None) return {radius, radius, false};
  if (FindSwept(graph)->rows == Swept::SizeParameter) {
    const Sweep rows = ReadRows(session, graph);
    return {rows.low / medium, rows.high / medium, true};
  }
  const Sweep columns = ReadColumns(session, graph);
  return {columns.low, columns.high, false};
}

/// The indices of the sphere of a map: its material's, but for those that are swept or held still.
struct IndexBounds {
  IndexValue low, high;
};

IndexBounds IndicesOfMap(const Session& session, const IndexValue& base) {
  const Graph& graph = ChosenGraph(session.state);
  const SweptQuantities& swept = *FindSwept(graph);
  IndexBounds bounds{base, base};
  const auto move = [&](Swept quantity, const Sweep& sweep) {
    if (quantity == Swept::SphereIndex) bounds.low.n = sweep.low, bounds.high.n = sweep.high;
    if (quantity == Swept::SphereAbsorption) bounds.low.k = sweep.low, bounds.high.k = sweep.high;
  };
  move(swept.columns, ReadColumns(session, graph));
  if (swept.rows) move(*swept.rows, ReadRows(session, graph));
  return bounds;
}

Sizes SizesOfRun(const Session& session) {
  const Form1& form = session.form1;
  const Graph& graph = ChosenGraph(session.state);
  const double low = Val(form.txtXmin.Text), high = Val(form.txtXmax.Text);
  if (graph.AgainstAxis() && graph.SizeAxis()) {
    const bool parameters = graph.axis == AxisVariable::SizeParameter;
    const double scale = parameters ? MediumIndexInUse(session) : graph.axis == AxisVariable::Diameter ? 2 : 1;
    return {low / scale, high / scale, parameters};
  }
  const double radius = SphereRadius(session);
  if (const MapInputs* map = FindMapInputs(graph)) return SizesOfMap(session, *map, radius);
  if (form.txtRadius.Visible) return {radius, radius, false};
  const CloudSamples samples = SamplesOf(ChosenSizes(session), radius);
  return {samples.lowest, samples.highest, false};
}

}  // namespace

SphereOfRun BoundsOfRun(const Session& session) {
  const Form1& form = session.form1;
  const Sizes sizes = SizesOfRun(session);
  const Material material = SphereOfGraph(session);
  const bool map = FindMapInputs(ChosenGraph(session.state)) != nullptr;
  const bool shown = !map && !RangeOfRun(session).Any() && form.txtRefractImag.Visible;
  SphereOfRun bounds;
  bool first = true;
  for (const double lambda : WavelengthsOfRun(session)) {
    IndexValue index{Val(form.txtRefractReal.Text), Val(form.txtRefractImag.Text)};
    if (!shown) index = IndexAt(material, lambda).value.value_or(IndexValue{0, 0});
    const IndexBounds indices = map ? IndicesOfMap(session, index) : IndexBounds{index, index};
    const double parameter = sizes.Parameter(sizes.smallest, lambda), absorption = indices.low.k * parameter;
    const double ratio = sizes.parameters ? twoPi / sizes.largest : lambda / sizes.largest;
    if (std::exchange(first, false))
      bounds = {indices.low.n, indices.low.k, indices.high.k, absorption, ratio, parameter};
    bounds.lowestN = std::min(bounds.lowestN, indices.low.n);
    bounds.lowestK = std::min(bounds.lowestK, indices.low.k);
    bounds.highestK = std::max(bounds.highestK, indices.high.k);
    bounds.leastAbsorption = std::min(bounds.leastAbsorption, absorption);
    bounds.wavelengthsPerRadius = std::min(bounds.wavelengthsPerRadius, ratio);
    bounds.leastParameter = std::min(bounds.leastParameter, parameter);
  }
  return bounds;
}

bool DropAbsorption(Session& session) {
  auto& form = session.form1;
  auto& forms = session.forms;
  const Graph& graph = ChosenGraph(session.state);
  if (graph.InColour() && graph.VariesIndex()) {
    // A sweep through absorbing spheres is nothing without them.
    const SweptQuantities& swept = *FindSwept(graph);
    if (swept.columns == Swept::SphereAbsorption || swept.rows == Swept::SphereAbsorption) return false;
    (FindMapInputs(graph)->absorption ? form.txtRefractImag : form.txtF9_fixed).Text = "0";
    return true;
  }
  const Material material = SphereMaterial(session);
  if (std::holds_alternative<MetalFilm>(material) || std::holds_alternative<IndexFromFile>(material)) return false;
  if (const auto* dielectric = std::get_if<FixedDielectric>(&material)) {
    if (!(dielectric->e1 > 0)) return false;
    forms.dlogDielectric.txtDFimag.Text = "0";
  }
  form.txtRefractImag.Text = "0";
  for (CheckBox* box :
       {&forms.dlogTemp.chkRI_Complex, &forms.dlogSegelstein.chkRI_Complex, &forms.dlogRay.chkRI_Complex})
    box->Checked = false;
  if (form.mnuRI_IAPWS.Checked) RaiseQuietly(session, "mnuRI_IAPWS_Click");
  if (form.mnuRI_Segelstein.Checked) RaiseQuietly(session, "mnuRI_Segelstein_Click");
  if (form.mnuRI_Ray.Checked) RaiseQuietly(session, "mnuRI_Ray_Click");
  return true;
}

}  // namespace lumivex
