#pragma once

#include "record/layout/panel_layout.h"

namespace lumivex {

/// Lines of the dialogs of spheres in layers.
inline constexpr LayoutLine coatedSphereLines[] = {
    {{"lblCoreRadius", "txtCoreRadius"}},
    {{"lblMantleRadius", "txtMantleRadius"}},
    {{"lblRIcore", "cboRIcore", "txtRIcore"}},
    {{"lblRIshell", "cboRIshell", "txtRIshell"}},
    {{"lblRImedium", "cboRImedium", "txtRImedium"}},
    {{"frmVariation"}},
    {{"optFixedCore"}},
    {{"optFixedRatio"}},
    {{"optFixedShell"}},
    {{"chkDebye"}},
    {{"frmRecursion"}},
    {{"optCoatMie", "optCoatMie2", "optAuto"}},
    {{"Frame2"}},
    {{"optPQ", "optPQR", "optRAB"}},
    {{"lblP", "cboP", "cboQ"}},
    {{"lblRays", "cboRays"}},
    {{"lblRAB", "cboR", "cboA", "cboB"}},
    {{"lblPath", "cboRAB", "txtDegen"}},
    {{"lblMult", "cboMin", "cboMax"}},
    {{"chkMult", "chkDegeneracy"}},
};
inline constexpr LayoutLine inhomSphereLines[] = {
    {{"frmEquation"}},
    {{"optLinear", "optCosine"}},
    {{"opt3Layer", "OptModLuneburg"}},
    {{"optLuneburg", "optExponential"}},
    {{"optPolynomial", "optSinusoidal"}},
    {{"frmCoated"}},
    {{"lblR1", "txtR1", "lblN1", "txtN1"}},
    {{"lblR2", "txtR2", "lblN2", "txtN2"}},
    {{"frm3Layer"}},
    {{"lbl3R1", "txt3R1", "txt3N1", "lbl3R2", "txt3R2", "txt3N2"}},
    {{"lbl3R3", "txt3R3", "txt3N3", "lbl3R4", "txt3R4", "txt3N4"}},
    {{"frmModLuneburg"}},
    {{"lblF", "txtF"}},
    {{"frmLuneburg"}},
    {{"lblLB", "txtLB", "lblLC", "txtLC"}},
    {{"frmExponential"}},
    {{"lblJ", "txtJ", "lblK", "txtK"}},
    {{"lblL", "txtL", "lblnMax", "txtnMax"}},
    {{"frmPolynomial"}},
    {{"lblJ1", "txtJ1", "lblK1", "txtK1"}},
    {{"lblL1", "txtL1", "lblM1", "txtM1"}},
    {{"frmSinusoidal"}},
    {{"lblJ2", "txtJ2", "lblK2", "txtK2"}},
    {{"lblL2", "txtL2", "lblM2", "txtM2"}},
    {{"lblEquation"}},
    {{"lblEquation2"}},
    {{"picProfile"}},
    {{"chkGraphUpdate"}},
    {{"lblLayers", "cboLayers"}},
    {{"frmVersion"}},
    {{"optOldCode", "optNewCode", "chkOverwrite"}},
};

inline constexpr DialogLayout layerDialogLayouts[] = {
    {"dlogCoatedSphere", coatedSphereLines},
    {"dlogInhomSphere", inhomSphereLines},
};

}  // namespace lumivex
