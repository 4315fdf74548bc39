#include "record/catalogue/graph_groups.h"

#include "record/catalogue/graph_texts.h"

namespace lumivex {

std::string_view GroupOfGraph(std::string_view text) {
  const GraphRow* row = FindGraph(text);
  if (row == nullptr) return "";
  const Graph& graph = GraphOf(row->code);
  if (graph.OfPulse()) return "Light of a pulse";
  switch (graph.family) {
    case Family::Lee:
      return "Lee diagrams";
    case Family::AngleMap:
    case Family::EfficiencyMap:
      return "Maps";
    case Family::Volume:
      return "Many spheres";
    default:
      break;
  }
  switch (graph.quantity) {
    case Quantity::Power:
      return "Power into a range of angles";
    case Quantity::Efficiencies:
    case Quantity::CrossSections:
      return "Efficiencies and cross-sections";
    case Quantity::Qback:
    case Quantity::Qradar:
      return "Light sent back";
    case Quantity::Asymmetry:
    case Quantity::Albedo:
      return "Asymmetry and albedo";
    case Quantity::BowAngle:
      return "Bows";
    default:
      break;
  }
  // The matrix against wavelength stands among those against angle.
  const bool againstAngle = graph.OfAngles() || graph.quantity == Quantity::ScatteringMatrix;
  return againstAngle ? "Against the scattering angle" : "Intensity at one angle";
}

}  // namespace lumivex
