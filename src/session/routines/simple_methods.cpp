#include "session/routines/simple_methods.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "record/number_text.h"
#include "session/inputs/methods/debye_label.h"
#include "session/routines/arithmetic_guard.h"
#include "session/routines/cross_section.h"
#include "session/routines/run_store.h"
#include "solvers/functions/bessel_functions.h"
#include "solvers/patterns/simple_scattering.h"

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi;
constexpr int stopRequested = 4;
constexpr int mostStrips = 10000;

double ForwardEfficiency(double x, double amplitude) {
  return 4 / (x * x) * amplitude;
}

bool CoversAllAngles(const SolverCall& call) {
  const RowWindow window = WindowOf(call);
  return !call.angle && window.low == 1 && window.high == GridOf(call).RowCount();
}

}  // namespace

void Diffraction(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double& Qext,
                 double& Qsca, double&, double&, RunMonitor& monitor) {
  auto& s = session.state;
  if (s.PlotMode == stopRequested) return;
  DebyeLabel(session);
  WriteRunTitle(session, "Diffraction:  ");
  const AngleGrid grid = GridOf(call);
  ClearAmplitudes(grid, S1, S2);
  const ArithmeticGuard guard;
  const auto form = s.DiffractionVariant == 1 ? DiffractionForm::PartialWaves : DiffractionForm::Disc;
  s.SummedRows = SumDiffraction(call.x, form, grid, WindowOf(call), S1, S2, monitor);
  StoreGrid(session, call);
  if (!guard.Passed(session)) return;
  if (CoversAllAngles(call) && s.PlotMode != stopRequested) CrossSection(session, S1, S2);
  if (Val(session.form1.txtRefractImag.Text) == 0) Qext = Qsca = ForwardEfficiency(call.x, ForwardDiffraction(call.x));
}

void Rayleigh(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double& Qext,
              double& Qsca, double& Qback, double& g, RunMonitor&) {
  auto& s = session.state;
  if (s.PlotMode == stopRequested) return;
  DebyeLabel(session);
  WriteRunTitle(session, "Rayleigh scattering:  ");
  const AngleGrid grid = GridOf(call);
  ClearAmplitudes(grid, S1, S2);
  const ArithmeticGuard guard;
  const double amplitude = FillRayleigh(call.x, call.mRe, grid, S1, S2);
  StoreGrid(session, call);
  s.SummedRows = {{1, grid.NANG}, {grid.NANG + 1, grid.RowCount()}};
  Qsca = RayleighEfficiency(call.x, call.mRe);
  g = 0;
  if (CoversAllAngles(call)) {
    CrossSection(session, S1, S2);
    Qsca = s.Qsca;
    g = s.Gsca;
  }
  Qext = Qsca;
  if (session.form1.mnuHidden.Checked) Qext = Qsca = std::fabs(ForwardEfficiency(call.x, amplitude));
  Qback = amplitude * amplitude / (pi * call.x * call.x);
  guard.Passed(session);
}

void Aperture(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double&, double&,
              double&, double&, RunMonitor& monitor) {
  auto& s = session.state;
  if (s.PlotMode == stopRequested) return;
  DebyeLabel(session);
  WriteRunTitle(session, "");
  const int Q = std::clamp(ToWhole(std::min(Val(session.form1.txtAngle.Text), 1e6)), 1, mostStrips);
  const ApertureStrips strips = MakeAperture(Q);
  const AngleGrid grid = GridOf(call);
  ClearAmplitudes(grid, S1, S2);
  const ArithmeticGuard guard;
  s.SummedRows = SumAperture(call.x, strips, grid, WindowOf(call), S1, S2, monitor);
  if (s.PlotMode != stopRequested) s.SummedRows.mirrored = {grid.NANG + 1, grid.RowCount()};
  StoreGrid(session, call);
  s.ApertureCentre = strips.ApertureCentre;
  s.ApertureWeight = strips.ApertureWeight;
  guard.Passed(session);
}

void vdh(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double&, double&, double&,
         double&, RunMonitor& monitor) {
  auto& s = session.state;
  if (s.PlotMode == stopRequested) return;
  DebyeLabel(session);
  WriteRunTitle(session, "");
  s.QminValue = static_cast<float>(Val(session.form1.cboQmin.Text));
  s.QmaxValue = static_cast<float>(Val(session.form1.cboQmax.Text));
  const AngleGrid grid = GridOf(call);
  const RowWindow window = WindowOf(call);
  ClearAmplitudes(grid, S1, S2);
  const ArithmeticGuard guard;
  s.SummedRows = SumGloryRing(call.x, static_cast<double>(s.QminValue), static_cast<double>(s.QmaxValue), grid, window,
                              S1, S2, monitor);
  if (s.PlotMode != stopRequested) s.SummedRows.forward = {1, grid.NANG};
  StoreGrid(session, call);
  RealBessel bessel;
  BesselJY(call.x * std::sin(grid.Angle(window.high)), 4, bessel);
  s.BesselOrders = bessel.RealBesselJ;
  s.BesselOrders.resize(5, 0.0);
  guard.Passed(session);
}

}  // namespace lumivex
