#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "record/catalogue/method_texts.h"
#include "record/session.h"

namespace lumivex {

/// Translates the text of cboType into CalcMethod and DiffractionVariant. A text that is no method, or whose solver is
/// not there, marks the list and reports "Unknown calculation method"; CalcMethod is then Method::None.
void TypeCalc(Session& session);

/// cboType_click: what shows and what is allowed with the chosen method. A sphere in layers asks for its layers first;
/// who cancels has the method of before. After OK a profile is calculated at once.
void cboType_click(Session& session);

/// Chooses a method by its text, which joins the list where it is not in it: the way of the methods that have a menu
/// entry instead of a place in the list.
void ChooseMethod(Session& session, std::string_view text);

void mnuDiffractionNew_Click(Session& session);
void mnuHuygens_Click(Session& session);
void mnuAperture_Click(Session& session);
void mnuvdh_Click(Session& session);
void mnuCoatedSphere_Click(Session& session);
void mnuInhomSphere_Click(Session& session);

/// Asks how far the Debye terms of one point are followed, and chooses the graph that shows them.
void mnuDebyeSequence_Click(Session& session);

/// The same dialog while that graph is there: the numbers beside its points are drawn at once, a new highest p waits
/// for the next run.
void AskDebyeSequence(Session& session);

/// Whether a graph may be calculated at several wavelengths.
bool TakesWavelengths(const Graph& graph);

/// Settles NumberWavelengths from cboWave; "High", "Med." and "Low" depend on the radius in use, which becomes Radius
/// where it is that of a size file.
void NumberWavelengths(Session& session);

/// The indices of sphere and medium have one value each only at one wavelength, or where they are fixed.
void ShowIndexInputs(Session& session);

/// Shows the inputs of one wavelength or those of a spectrum, after cboWave.
void ShowWavelengthInputs(Session& session);

/// A new number of wavelengths needs a new calculation; one wavelength shows its inputs, several the spectrum's.
void cboWave_Click(Session& session);

}  // namespace lumivex
