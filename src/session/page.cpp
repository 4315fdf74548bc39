#include "session/page.h"

#include "pages/huygens_drawing.h"
#include "pages/redraw.h"
#include "pages/visible_data.h"
#include "session/inputs/sizes/size_distribution_display.h"

namespace lumivex {

void DrawPage(Session& session) {
  RedrawGraph(session);
  PrintTitle(session);
  VisibleData(session);
  DistDisplay(session, false);
  DrawHuygens(session);
}

}  // namespace lumivex
