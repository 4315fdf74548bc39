#pragma once

#include <functional>
#include <optional>

#include "record/session.h"
#include "solvers/functions/complex_pairs.h"

namespace lumivex {

/// For "Normal" and "Log-normal": fills RelativeSD from cboSD, DistSample from the table for cboN, and NumberSamples. A
/// cboN that is not 5, 10, 20 or 50 leaves DistSample as it was.
void Disperse(Session& session);

/// Fills DistRadius, DistWeight (shares or numbers of particles), NumberSamples and the range DistMin to DistMax for
/// the distribution in cboDistrib: "Normal" and "Log-normal" of the samples of Disperse about Radius, equally weighted;
/// the models; "Special" from the table of the size file. Radius must be settled before.
/// @return false, with the reason told where `aloud`, for a distribution that cannot be used.
bool PrepareSizes(Session& session, bool aloud = true);

/// What DispCalc needs from above.
struct CloudCalls {
  void (*solve)(Session&, int rowLow, int rowHigh);  ///< the solver of CalcMethod, into S1, S2 and the efficiencies
  void (*progress)(Session&);                        ///< told once per sample
};

/// In place of one solver call: runs the solver over the samples of the distribution and leaves means over the cloud.
///
/// S1 and S2 take the roots of the mean |S1|^2 and |S2|^2, rows rowLow to rowHigh, with no phase; CloudCrossRe and
/// CloudCrossIm the mean of S1 conj(S2); Qext, Qsca and Qback the means over the particles, Gsca the mean weighted by
/// scattering cross-section. Means are sums over numbers of particles; for a size file and "actual" results
/// (dlogDistOption) they stay sums. Radius and SizeParameter are those of before; Waves is emptied, since no series
/// belongs to the cloud.
///
/// A solver that gives up ends the loop with nothing stored. A Stop leaves the means over the samples that were done.
void DispCalc(Session& session, int rowLow, int rowHigh, const CloudCalls& calls);

/// One sphere at one angle.
struct SpherePoint {
  ComplexD S1, S2;
  double Qext = 0, Qsca = 0, Qback = 0, g = 0;
};

/// A cloud at one angle: means as DispCalc forms them.
struct CloudPoint {
  double perpendicular = 0, parallel = 0;  ///< of |S1|^2 and |S2|^2
  ComplexD cross;                          ///< of S1 conj(S2)
  double Qext = 0, Qsca = 0, Qback = 0, g = 0;
  double Cext = 0, Csca = 0;  ///< mean cross-sections (um2): of Q pi r^2, not Q pi of the mean radius
};

/// The same for graphs of one angle.
/// @param solve  solves the sphere of Radius and SizeParameter in the record; nothing when it gave up.
/// @return nothing when the distribution cannot be used, a solver gave up or nothing was done before a Stop.
std::optional<CloudPoint> DispCalcPoint(Session& session, const std::function<std::optional<SpherePoint>()>& solve,
                                        void (*progress)(Session&));

/// For "Special" with a table: Radius becomes half the sum of its first and last radius.
void TakeSpecialRadius(Session& session);

/// Whether the distribution's name is one of the aerosols'.
bool IsAerosol(std::string_view distribution);

}  // namespace lumivex
