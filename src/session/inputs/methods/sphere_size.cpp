#include "session/inputs/methods/sphere_size.h"

#include "record/number_text.h"
#include "session/inputs/layers/read_layers.h"
#include "session/inputs/map_inputs.h"
#include "session/inputs/sizes/read_sizes.h"

namespace lumivex {

double MediumIndexInUse(const Session& session) {
  const double medium = Val(session.form1.txtRefractMedium.Text);
  return medium == 0 ? 1 : medium;
}

double SphereRadius(const Session& session) {
  const auto& form = session.form1;
  if (const auto ofMap = RadiusOfMap(session)) return *ofMap;
  if (session.state.CalcMethod == Method::CoatedSphere) return MantleRadius(session);
  const double size = Val(form.txtRadius.Text);
  constexpr double twoPi = 6.28318530717958648;
  if (form.mnuRadiusX.Checked) return size * Val(form.txtLambda.Text) / (twoPi * MediumIndexInUse(session));
  return form.mnuDiameter.Checked ? size / 2 : size;
}

double RadiusInUse(const Session& session) {
  return RadiusOfSizeFile(ChosenSizes(session)).value_or(SphereRadius(session));
}

}  // namespace lumivex
