#include "session/inputs/materials/refractive_index.h"

#include <cmath>
#include <set>

#include "record/number_text.h"
#include "session/inputs/materials/index_models.h"

namespace lumivex {

namespace {

constexpr int coatedSphere = 13, inhomogeneousSphere = 17;

/// The relative index from what the models wrote; complex only where the sphere absorbs.
double RelativeIndex(const IndexLookup& lookup) {
  auto& s = lookup.session.state;
  s.RefractMediumImag = 0;
  const double medium = s.RefractMedium == 0 ? 1 : s.RefractMedium;
  s.RefRelImag = s.RefractImag == 0 ? 0 : s.RefractImag / medium;
  if (s.RefRelImag < 0 && lookup.voice == LookupVoice::Aloud)
    lookup.session.platform.Message("Refractive index error",
                                    "Imaginary part of refractive index must not be negative");
  return s.RefractReal / medium;
}

/// Fields that were typed or fixed keep the user's own text.
void ShowIndices(Session& session) {
  auto& form = session.form1;
  const auto& s = session.state;
  if (!form.mnuRI_Fixed1.Checked && form.lblSphere.Caption != sphereSetByUser) {
    form.txtRefractReal.Text = IndexText(s.RefractReal);
    form.txtRefractImag.Text = s.RefractImag == 0 ? "0" : IndexText(s.RefractImag);
  }
  if (!form.mnuRI_Fixed2.Checked && form.lblRI_Medium.Caption != mediumSetByUser)
    form.txtRefractMedium.Text = IndexText(s.RefractMedium);
}

double TypedRatio(const Form1& form) {
  const double medium = Val(form.txtRefractMedium.Text);
  return Val(form.txtRefractReal.Text) / (medium == 0 ? 1 : medium);
}

}  // namespace

std::string IndexText(double value) {
  if (!(value >= 0.0001 && value <= 10000)) return Format(value, "Scientific");
  return Significant(RoundDecimals(value, 7), 15);
}

void LagrangeCubic(Session& session, double x1, double y1, double x2, double y2, double x3, double y3, double x4,
                   double y4, double x, double& y, LookupVoice voice) {
  if (std::set{x1, x2, x3, x4}.size() < 4 && voice == LookupVoice::Aloud)
    session.platform.Message("Error in input data", "All x values must be different");
  y = LagrangePolynomial({x1, x2, x3, x4}, {y1, y2, y3, y4}, x);
}

std::optional<double> RefRel(Session& session, double wavelength, LookupVoice voice) {
  auto& s = session.state;
  auto& form = session.form1;
  if (!(wavelength > 0)) return TypedRatio(form);
  if (s.CalcMethod == coatedSphere || s.CalcMethod == inhomogeneousSphere) return std::nullopt;

  const IndexLookup lookup{session, wavelength, voice};
  const auto tell = [&](const char* text) {
    if (voice == LookupVoice::Aloud) session.platform.Message("Error", text);
    return std::nullopt;
  };
  s.RefractReal = s.RefractImag = s.RefractMediumImag = 0;
  s.LookupWavelength = static_cast<float>(wavelength);
  if (!EvaluateSphere(lookup)) return std::nullopt;
  if (s.RefractReal == 0 || !std::isfinite(s.RefractReal) || !std::isfinite(s.RefractImag))
    return tell("Help! RI of sphere undefined");
  const double mediumBefore = s.RefractMedium;
  if (!EvaluateMedium(lookup)) return std::nullopt;
  if (!std::isfinite(s.RefractMedium)) {
    s.RefractMedium = mediumBefore;
    return tell("Help! RI of medium undefined");
  }
  const double relative = RelativeIndex(lookup);
  ShowIndices(session);
  form.lblSphere.ForeColour = form.lblRI_Medium.ForeColour = colours::Black;
  s.RIUserEdited = 0;
  return relative;
}

}  // namespace lumivex
