#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "record/features.h"
#include "record/session.h"

namespace lumivex {

/// One graph: the text of cboGraph, its codes and its place in the list. A sub-code of 0 leaves GraphSubType as it was;
/// a place of 0 is recognised all the same but not in the list from the start.
struct GraphRow {
  int type;
  int subType;
  std::string_view text;
  int place;
  Feature feature;
};

std::span<const GraphRow> GraphTable();

/// The texts that cboGraph offers, by place: those whose graph is there.
std::vector<std::string> OfferedGraphs();

/// Translates the text of cboGraph into GraphType and GraphSubType and reconfigures the window for it: captions, inputs
/// shown, and, when the family changes, start values (not with mnuKeepParameters ticked).
void cboGraph_Click(Session& session);

/// Captions and visible inputs of a family; the values are not touched.
void ShowFamilyInputs(Session& session);

/// Chooses a graph by its text, which joins the list where it is not in it: the way of the graphs that have a menu
/// entry instead of a place in the list.
void ChooseGraph(Session& session, std::string_view text);
void mnuDiffCrossSection_Click(Session& session);
void mnuConvergence_Click(Session& session);

}  // namespace lumivex
