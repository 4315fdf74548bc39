#include "session/inputs/materials/refractive_index.h"

#include <array>
#include <set>
#include <utility>
#include <variant>
#include <vector>

#include "catalogue/method.h"
#include "materials/index/material.h"
#include "record/number_text.h"
#include "session/inputs/materials/read_material.h"

namespace lumivex {

namespace {

/// One evaluation.
struct Lookup {
  Session& session;
  double wavelength;  ///< um
  LookupVoice voice;

  void Tell(const char* title, const std::string& text) const {
    if (voice == LookupVoice::Aloud) session.platform.Message(title, text);
  }
  void TellOfEqual(const std::array<double, 4>& x) const {
    if (std::set(x.begin(), x.end()).size() < x.size()) Tell("Error in input data", "All x values must be different");
  }
};

/// A single wavelength beyond the limits that the user gave for the equation is told; its index is used all the same.
void WarnOfRange(const Lookup& lookup) {
  const SellmeierChoice& chosen = lookup.session.state.Sellmeier;
  const bool limited = chosen.lowest > 0 && chosen.highest > 0 && lookup.session.state.NumberWavelengths == 1;
  const bool beyond = lookup.wavelength < chosen.lowest || lookup.wavelength > chosen.highest;
  if (limited && beyond && !chosen.quiet)
    lookup.Tell("Refractive index calculations",
                "Wavelength is beyond the specified limits for\nthe Sellmeier equation for " + chosen.name);
}

void StoreWater(MaterialState& s, const WaterFormula& water, const TextInput& txtTemp) {
  s.MaterialTemp = static_cast<float>(Val(txtTemp.Text));
  s.WaterDensity = static_cast<float>(water.density);
  s.TempRatio = static_cast<float>(water.tempRatio);
}

void StorePoints(const Lookup& lookup, const FourPoints& points, std::vector<double>& lambda,
                 std::vector<double>& index) {
  lambda.assign(1, 0);
  index.assign(1, 0);
  lambda.insert(lambda.end(), points.lambda.begin(), points.lambda.end());
  index.insert(index.end(), points.n.begin(), points.n.end());
  lookup.TellOfEqual(points.lambda);
}

std::string AirCaption(const Session& session) {
  return "Air " + std::string(Trim(session.forms.dlogAir.txtAirTemp.Text)) + "C";
}

/// What the record and the captions tell of the sphere's model.
void ShowSphere(const Lookup& lookup, const Material& material) {
  Session& session = lookup.session;
  auto& s = session.state;
  auto& form = session.form1;
  if (std::holds_alternative<SellmeierGlass>(material)) WarnOfRange(lookup);
  if (std::holds_alternative<AirAt>(material)) form.mnuRI_Air1.Caption = AirCaption(session);
  if (const auto* water = std::get_if<WaterFormula>(&material)) StoreWater(s, *water, session.forms.dlogTemp.txtTemp);
  if (const auto* points = std::get_if<FourPoints>(&material)) StorePoints(lookup, *points, s.UserLambda1, s.UserRI1);
  MaterialWords words = SphereWords(session);
  if (words.caption != form.lblSphere.Caption) s.SphereIndexVaries = 0;
  s.SphereName = std::move(words.name);
  form.lblSphere.Caption = std::move(words.caption);
}

/// The same of the medium's. An index that was typed is a fixed one from then on.
void ShowMedium(const Lookup& lookup, const Material& material) {
  Session& session = lookup.session;
  auto& s = session.state;
  auto& form = session.form1;
  if (std::holds_alternative<AirAt>(material)) form.mnuRI_Air2.Caption = AirCaption(session);
  if (const auto* water = std::get_if<WaterFormula>(&material)) StoreWater(s, *water, session.forms.dlogTemp2.txtTemp);
  if (const auto* points = std::get_if<FourPoints>(&material)) StorePoints(lookup, *points, s.UserLambda2, s.UserRI2);
  MaterialWords words = MediumWords(session);
  if (words.caption != form.lblRI_Medium.Caption) s.MediumIndexTyped = 0;
  s.MediumName = std::move(words.name);
  form.lblRI_Medium.Caption = std::move(words.caption);
}

/// Why there is no index, in the words of a message; empty where there is one.
std::string WordsFor(IndexFailure failure) {
  switch (failure) {
    case IndexFailure::MissingRow:
      return "Subscript out of range";
    case IndexFailure::SphereUndefined:
      return "Help! RI of sphere undefined";
    case IndexFailure::MediumUndefined:
      return "Help! RI of medium undefined";
    case IndexFailure::None:
      break;
  }
  return {};
}

/// A mark tells of the text that stood there before.
void Show(TextInput& field, const std::string& text) {
  if (field.Text != text) field.BackColour = colours::White;
  field.Text = text;
}

/// Fields that were typed or fixed keep the user's own text.
void ShowIndices(Session& session) {
  auto& form = session.form1;
  const auto& s = session.state;
  if (!form.mnuRI_Fixed1.Checked && s.SphereIndexTyped == 0) {
    Show(form.txtRefractReal, IndexText(s.RefractReal));
    Show(form.txtRefractImag, s.RefractImag == 0 ? "0" : IndexText(s.RefractImag));
  }
  if (!form.mnuRI_Fixed2.Checked && s.MediumIndexTyped == 0) Show(form.txtRefractMedium, IndexText(s.RefractMedium));
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
  Lookup{session, x, voice}.TellOfEqual({x1, x2, x3, x4});
  y = LagrangePolynomial({x1, x2, x3, x4}, {y1, y2, y3, y4}, x);
}

std::optional<double> RefRel(Session& session, double wavelength, LookupVoice voice) {
  auto& s = session.state;
  auto& form = session.form1;
  if (!(wavelength > 0)) return TypedRatio(form);
  if (TraitsOf(s.CalcMethod).layered) return std::nullopt;

  const Lookup lookup{session, wavelength, voice};
  const Material sphere = SphereMaterial(session), medium = MediumMaterial(session);
  const IndicesFound found = IndicesAt(sphere, medium, wavelength);
  const OpticalIndices& indices = found.indices;
  s.RefractMediumImag = 0;
  s.LookupWavelength = static_cast<float>(wavelength);
  ShowSphere(lookup, sphere);
  s.RefractReal = indices.sphereN;
  s.RefractImag = indices.sphereK;
  if (indices.sphereN != 0 && found.failure != IndexFailure::SphereUndefined) ShowMedium(lookup, medium);
  if (found.failure != IndexFailure::None) {
    lookup.Tell("Error", WordsFor(found.failure));
    return std::nullopt;
  }
  s.RefractMedium = indices.medium;
  s.RefRelImag = indices.RelativeIm();
  if (s.RefRelImag < 0)
    lookup.Tell("Refractive index error", "Imaginary part of refractive index must not be negative");
  ShowIndices(session);
  form.lblSphere.ForeColour = form.lblRI_Medium.ForeColour = colours::Black;
  s.RIUserEdited = 0;
  return indices.RelativeRe();
}

}  // namespace lumivex
