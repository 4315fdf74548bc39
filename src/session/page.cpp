#include "session/page.h"

#include "graphs/huygens_drawing.h"
#include "graphs/redraw.h"
#include "particles/size_distribution_display.h"
#include "solvers/visible_data.h"

namespace lumivex {

void DrawPage(Session& session) {
  RedrawGraph(session);
  PrintTitle(session);
  VisibleData(session);
  DistDisplay(session, false);
  DrawHuygens(session);
}

}  // namespace lumivex
