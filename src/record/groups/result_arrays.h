#pragma once

#include <memory>
#include <type_traits>
#include <vector>

#include "axes/table2d.h"
#include "runs/results.h"
#include "solvers/angles/amplitude_table.h"

namespace lumivex {

struct Results;

/// What a run leaves, and what Replot, Save and the pictures draw from. First index 1; element 0 is unused.
struct ResultArrays {
  AmplitudeTable S1;   ///< amplitude perpendicular to the scattering plane, by row (rows 1 to 2 NANG - 1)
  AmplitudeTable S2;   ///< amplitude parallel to the scattering plane
  AmplitudeTable S1b;  ///< second set, for differences
  AmplitudeTable S2b;
  AmplitudeTable S1ofPoint;  ///< amplitude at the selected angle, by point of the x axis
  AmplitudeTable S2ofPoint;
  std::vector<double> XValues;  ///< x of each row or point, in the axis' unit
  std::vector<double> Iperp;    ///< curve, perpendicular polarisation
  std::vector<double> Ipar;     ///< curve, parallel polarisation
  std::vector<double> Iunpol;   ///< curve, unpolarised
  std::vector<double> Extra1;   ///< degree of polarisation, or a Q value
  std::vector<double> Extra2;   ///< phase of S1 (degrees)
  std::vector<double> Extra3;   ///< phase of S2 (degrees)
  std::vector<double> Extra4;
  Table2D MapPerp;  ///< map, perpendicular polarisation
  Table2D MapPar;   ///< map, parallel polarisation
  Table2D MapPerpSum;
  Table2D MapParSum;
  std::shared_ptr<const Results> LastResults;  ///< of the last run that was kept; null before the first
  /// The same with a distribution of sizes folded in, as Replot made them; null where none is.
  std::shared_ptr<const Results> FoldedResults;
};

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, ResultArrays>
void ForEachField(Group& g, Visitor&& visit) {
  visit("S1", g.S1);
  visit("S2", g.S2);
  visit("S1b", g.S1b);
  visit("S2b", g.S2b);
  visit("S1ofPoint", g.S1ofPoint);
  visit("S2ofPoint", g.S2ofPoint);
  visit("XValues", g.XValues);
  visit("Iperp", g.Iperp);
  visit("Ipar", g.Ipar);
  visit("Iunpol", g.Iunpol);
  visit("Extra1", g.Extra1);
  visit("Extra2", g.Extra2);
  visit("Extra3", g.Extra3);
  visit("Extra4", g.Extra4);
  visit("MapPerp", g.MapPerp);
  visit("MapPar", g.MapPar);
  visit("MapPerpSum", g.MapPerpSum);
  visit("MapParSum", g.MapParSum);
}

}  // namespace lumivex
