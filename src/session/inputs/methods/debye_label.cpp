#include "session/inputs/methods/debye_label.h"

#include <array>

#include "record/number_text.h"
#include "session/inputs/beams/read_beam.h"
#include "session/inputs/drops/read_drops.h"
#include "session/inputs/layers/read_layers.h"
#include "session/inputs/methods/read_method.h"
#include "session/inputs/methods/sphere_size.h"

namespace lumivex {

namespace {

using Details = DebyeLabelDetails;

std::string BeamLabel(const Details& d) {
  const auto& b = d.beamNumbers;
  std::string text = "Mie (Gaussian beam)\nx0 = " + b.x0 + "   y0 = " + b.y0 + "   z0 = " + b.z0 + "   w0 = " + b.w0;
  text += "\nLmax = " + b.Lmax + (b.multiple ? "  Mmax = " : " Mmax = ") + b.Mmax;
  if (b.multiple) text += "  Mmax1 = " + b.Mmax1;
  if (b.lockPolarisation) text += "\nLock's definition of polarisation";
  if (b.multiple) text += b.central ? "\nMultiple beams and Central beam" : "\nMultiple beams";
  if (!b.multiple && b.central) text += "\nCentral beam";
  return text;
}

/// " (p = 2)" or ": Pmin = 0, Pmax = 4, Step = 1".
std::string RayText(const Details& d) {
  if (d.p == "Multiple" && d.range)
    return " (p = Multiple) : Pmin = " + d.range->Pmin + ", Pmax = " + d.range->Pmax + ", Step = " + d.range->Pstep;
  if (d.p == "Multiple") return " (p = " + d.selected + ")";
  if (Val(d.p) < 0) return " (p = 0 to " + Shortest(-Val(d.p)) + ")";
  return " (p = " + d.p + ")";
}

std::string BeamSuffix(Details::Beam beam) {
  if (beam == Details::Beam::Gaussian) return " (Gaussian beam)";
  return beam == Details::Beam::TopHat ? " (Top hat)" : "";
}

std::string DebyeText(const Details& d) {
  using enum Details::Difference;
  const std::string name = d.difference == MinusGo   ? "Debye series - GO"
                           : d.difference == FromMie ? "Mie - Debye series"
                                                     : "Debye series";
  const std::string waves = d.partial ? ": " + d.partial->first + "x - " + d.partial->last + "x" : "";
  return name + waves + BeamSuffix(d.beam) + RayText(d) + (d.diffraction ? "+ Diffraction" : "");
}

std::string RayTheory(const char* name, const Details& d) {
  return name + BeamSuffix(d.beam) + RayText(d);
}

std::string RaySum(const char* name, const Details& d) {
  return RayTheory(name, d) + (d.diffraction ? "+ Diffraction" : "");
}

std::string SurfaceWaveText(const Details& d) {
  using enum Details::Path;
  const std::string start = d.path == ShortAndLong ? "Surface wave: short + long paths (p = "
                            : d.path == Short      ? "Surface wave: short path (p = "
                                                   : "Surface wave: long path (p = ";
  return start + RayText(d).substr(std::string_view(" (p = ").size());
}

std::string CoatedText(const Details::Coating& c) {
  const std::string name = c.version == 1 ? "Coated sphere 1" : "Coated sphere 2";
  if (!c.N) return name;
  return name + ": Debye N = " + *c.N + (c.A.empty() ? "" : ", A = " + c.A + ", B = " + c.B);
}

std::string ProfileText(const Details::RadialProfile& profile) {
  using enum Details::Profile;
  const std::string ends = "\nn1 = " + profile.n1 + " from r = 0 to r = " + profile.r1 + "\u00B5m\nn2 = " + profile.n2 +
                           " from r = " + profile.r2 + "\u00B5m to r = " + profile.radius + "\u00B5m";
  const std::string name = "Inhomogeneous sphere";
  switch (profile.kind) {
    case Linear:
      return name + " (linear transition)" + ends;
    case Cosine:
      return name + " (sinusoidal transition)" + ends;
    case ModLuneburg:
      return name + " (Mod. Luneburg)\nF = " + profile.F;
    case Exponential:
      return name + " (exponential)";
    case Polynomial:
      return name + " (polynomial)";
    case Luneburg:
      return name + " (Luneburg)\nB = " + profile.B + ", C = " + profile.C;
    case ThreeLayer:
      return name + " (3-layer)";
    case Sinusoidal:
      return name + " (sinusoidal)";
    case None:
      break;
  }
  return name;
}

std::string DropText(const Details::Drop& drop) {
  using enum Details::Drop::Place;
  const std::string text = drop.shape + " (p = " + drop.rays + ")\nSun elevation " + drop.elevation + "\u00B0";
  if (drop.place == Along) return text;
  return text + (drop.place == AllRound ? ", all round" : ", clock angle " + drop.clock + "\u00B0");
}

Details::Drop DropOf(const Session& session) {
  const auto& d = session.forms.dlogNonSpherical;
  Details::Drop drop;
  drop.shape = d.optBurgeroid.Checked    ? "Burgeroid"
               : d.optRatioTyped.Checked ? "Spheroid, axis ratio " + d.txtAxisRatio.Text
                                         : "Spheroid, axis ratio by size";
  drop.rays = SelectedRaysText(RaysOfDrop(session));
  drop.elevation = d.txtElevation.Text;
  drop.clock = d.txtClock.Text + " \u00B1 " + d.txtClockWidth.Text;
  drop.place = ChosenGraph(session.state).quantity == Quantity::BowAngle ? Details::Drop::Place::Along
               : d.chkAllRound.Checked                                   ? Details::Drop::Place::AllRound
                                                                         : Details::Drop::Place::About;
  return drop;
}

Details::Path PathOf(const Form1& form) {
  if (form.mnuSWShort.Checked) return Details::Path::Short;
  return form.mnuSWLong.Checked ? Details::Path::Long : Details::Path::ShortAndLong;
}

Details::Coating CoatingOf(const Session& session) {
  Details::Coating coating;
  // The second form goes downward; which way is taken by itself is no other series.
  if (ReadRecursion(session.forms.dlogCoatedSphere) == WaveRecursion::Downwards) coating.version = 2;
  const auto path = NumbersOfPath(session);
  if (!path) return coating;
  coating.N = path->N;
  coating.A = path->A;
  coating.B = path->B;
  return coating;
}

Details::BeamNumbers BeamNumbersOf(const Session& session, const Illumination& light) {
  const auto& dialog = session.forms.dlogGaussianBeam;
  const BeamLimits limits = LimitsNow(session);
  Details::BeamNumbers numbers{dialog.txtBeamXF.Text,
                               dialog.txtBeamYF.Text,
                               dialog.txtBeamZF.Text,
                               dialog.txtBeamWo.Text,
                               std::to_string(limits.Lmax),
                               std::to_string(limits.Mmax),
                               std::to_string(StartOfLogarithms(limits))};
  numbers.lockPolarisation = light.oneBeam;
  numbers.multiple = light.pair;
  numbers.central = light.central;
  return numbers;
}

Details::RadialProfile ProfileOf(const Session& session) {
  constexpr std::array kinds = {Details::Profile::Linear,     Details::Profile::Cosine,
                                Details::Profile::ThreeLayer, Details::Profile::ModLuneburg,
                                Details::Profile::Luneburg,   Details::Profile::Exponential,
                                Details::Profile::Polynomial, Details::Profile::Sinusoidal};
  const IndexProfile profile = ReadProfile(session).profile;
  const auto& v = profile.parameters;
  Details::RadialProfile text;
  text.kind = kinds[static_cast<std::size_t>(profile.shape)];
  constexpr int digits = 6;
  const double radius = RadiusInUse(session);
  text.r1 = Significant(v[0] * radius, digits);
  text.n1 = Shortest(v[1]);
  text.r2 = Significant(v[2] * radius, digits);
  text.n2 = Shortest(v[3]);
  text.radius = Significant(radius, digits);
  text.F = text.B = Shortest(v[0]);
  text.C = Shortest(v[1]);
  return text;
}

}  // namespace

std::string DebyeLabelText(const DebyeLabelDetails& d) {
  switch (d.method) {
    case Method::Mie:
      return d.beam == Details::Beam::Gaussian ? BeamLabel(d) : "Mie (plane wave)";
    case Method::Debye:
      return DebyeText(d);
    case Method::Diffraction:
      return "Diffraction";
    case Method::Rayleigh:
      return "Rayleigh scattering";
    case Method::Airy:
      return RayTheory("Airy theory", d);
    case Method::Descartes:
      return RaySum("Descartes", d);
    case Method::Young:
      return RaySum("Young", d);
    case Method::YoungMod:
      return RaySum("Young mod.", d);
    case Method::Huygens:
      return RayTheory("Huygens", d);
    case Method::SurfaceWave:
      return SurfaceWaveText(d);
    case Method::CoatedSphere:
      return CoatedText(d.coating);
    case Method::YoungAiry:
      return RaySum("Young + Airy", d);
    case Method::Burgeroid:
      return DropText(d.drop);
    case Method::Heiligenschein:
      return "Heiligenschein (L = " + d.heiligenscheinL + ", gamma = " + d.heiligenscheinGamma + ")";
    case Method::InhomogeneousSphere:
      return ProfileText(d.profile);
    default:
      return "";
  }
}

std::string MethodLabel(const Session& session, const RayInputs& rays) {
  const auto& form = session.form1;
  Details details;
  details.method = session.state.CalcMethod;
  details.p = rays.text;
  if (details.p == "Multiple") {
    details.range = rays.range;
    if (!rays.range) details.selected = SelectedRaysText(SelectedRays(rays));
  }
  const auto& partial = session.forms.dlogPartial;
  if (partial.optPartial.Checked) details.partial = {partial.txtMin.Text, partial.txtMax.Text};
  details.diffraction = OffersDiffraction(session) && WithDiffraction(session);
  if (const Illumination light = ReadBeam(session); !light.Plane()) {
    details.beam = light.kind == Illumination::Kind::TopHat ? Details::Beam::TopHat : Details::Beam::Gaussian;
    details.beamNumbers = BeamNumbersOf(session, light);
  }
  details.path = PathOf(form);
  if (details.method == Method::Burgeroid) details.drop = DropOf(session);
  if (details.method == Method::Heiligenschein) {
    details.heiligenscheinL = session.forms.dlogHeiligenschein.txtDistance.Text;
    details.heiligenscheinGamma = session.forms.dlogHeiligenschein.txtSlope.Text;
  }
  if (details.method == Method::CoatedSphere) details.coating = CoatingOf(session);
  if (details.method == Method::InhomogeneousSphere) details.profile = ProfileOf(session);
  if (!TakesDifferences(ChosenGraph(session.state))) return DebyeLabelText(details);
  if (form.mnuGODebye.Checked || form.mnuSWsub.Checked) details.difference = Details::Difference::MinusGo;
  if (form.mnuMieDebye.Checked) details.difference = Details::Difference::FromMie;
  return DebyeLabelText(details);
}

std::string MethodLabel(const Session& session) {
  return MethodLabel(session, RayInputsOf(session));
}

void DebyeLabel(Session& session) {
  if (session.form1.cboRays.Text == "Multiple") RaysCheck(session);
  session.form1.lblDebyeRays.Caption = MethodLabel(session);
}

}  // namespace lumivex
