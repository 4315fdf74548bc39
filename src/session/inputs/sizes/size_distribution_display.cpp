#include "session/inputs/sizes/size_distribution_display.h"

#include "pages/items/size_histogram.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/methods/sphere_size.h"
#include "session/inputs/sizes/read_sizes.h"
#include "session/inputs/sizes/size_distribution.h"

namespace lumivex {

namespace {

void TellFailure(Session& session, SizeFailure failure) {
  Form1& form = session.form1;
  const bool ofWidth = failure == SizeFailure::NegativeRadius || failure == SizeFailure::BadGamma;
  (ofWidth ? form.cboSD : form.cboDistrib).BackColour = colours::BadInput;
  session.platform.Message("Input error", WordsFor(failure));
}

/// The radius that the sizes lie about: of cores in a coating of one depth that of the core.
double RadiusOfSizes(const Session& session) {
  const auto& coated = session.forms.dlogCoatedSphere;
  const bool ofCores = session.state.CalcMethod == Method::CoatedSphere && coated.optFixedShell.Checked;
  return ofCores ? Val(coated.txtCoreRadius.Text) : SphereRadius(session);
}

}  // namespace

void DistDisplay(Session& session, bool aloud) {
  if (!session.form1.optDisp.Checked) return;
  Disperse(session);
  const SizeDistribution sizes = ChosenSizes(session);
  const double radius = RadiusOfSizes(session);
  if (const SizeFailure failure = SamplesOf(sizes, radius).failure; failure != SizeFailure::None) {
    if (aloud) TellFailure(session, failure);
    return;
  }
  const auto histogram = DistDisplay(sizes, radius, session.form1.cboDistrib.Text,
                                     session.forms.dlogDistDisplay.optLogX.Checked, ChosenGraph(session.state));
  const Page& page = session.page;
  const StripTaken taken{page.style.readingsVisible && !page.readings.empty(),
                         page.kind.graph.quantity == Quantity::Irradiance};
  if (histogram) PaintHistogram(*session.surface, *histogram, taken, true);
}

void AskDistDisplay(Session& session) {
  if (session.form1.cboDistrib.Text == "Special" || !session.form1.optDisp.Checked) return;
  if (AskIn(session, session.forms.dlogDistDisplay)) DistDisplay(session);
}

}  // namespace lumivex
