#include "session/routines/cross_section.h"

#include "session/inputs/methods/sphere_size.h"
#include "solvers/angles/cross_section.h"

namespace lumivex {

void CrossSection(Session& session, const AmplitudeTable& S1, const AmplitudeTable& S2) {
  auto& s = session.state;
  constexpr double pi = 3.14159265358979324;
  const AngularIntegral integral = IntegrateAngles(S1, S2, AngleGrid(s.NANG));
  const double k = 2 * pi * MediumIndexInUse(session) / s.Lambda;
  const double radius = SphereRadius(session);
  s.Qsca = 2 * pi / (k * k) * integral.sum / (pi * radius * radius);
  s.Gsca = integral.sum > 0 ? integral.moment / integral.sum : 0;
}

}  // namespace lumivex
