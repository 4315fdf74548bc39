#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "record/catalogue/graph_texts.h"
#include "record/session.h"

namespace lumivex {

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
