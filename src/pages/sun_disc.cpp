#include "pages/sun_disc.h"

#include "axes/curve_smoothing.h"
#include "record/number_text.h"

namespace lumivex {

void SunCorrection(Session& session) {
  auto& s = session.state;
  s.Xstep = Val(session.form1.cboStep.Text);
  DiscWeights disc = SunDiscWeights(s.Xstep, session.form1.mnuSun.Checked);
  s.SunDiscWeight = std::move(disc.weight);
  s.SunDiscRows = disc.rows;
  s.SunDiscTotal = disc.total;
}

}  // namespace lumivex
