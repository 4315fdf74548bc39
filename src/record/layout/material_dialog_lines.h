#pragma once

#include "record/layout/panel_layout.h"

namespace lumivex {

/// Lines of the dialogs of the materials.
inline constexpr LayoutLine mediumWaterLines[] = {{{"lblTemp", "txtTemp"}}, {{"lblDensity", "txtDensity"}}};
inline constexpr LayoutLine airLines[] = {{{"lblAirTemp", "txtAirTemp"}}};
inline constexpr LayoutLine rayLines[] = {{{"lblRay"}}, {{"chkRI_Complex"}}};
inline constexpr LayoutLine segelsteinLines[] = {{{"lblSegelstein"}}, {{"chkRI_Complex"}}};
inline constexpr LayoutLine dielectricLines[] = {{{"lblDFreal", "txtDFreal"}}, {{"lblDFimag", "txtDFimag"}}};
inline constexpr LayoutLine dielectric2Lines[] = {{{"lblDFreal2", "txtDFreal2"}}};
inline constexpr LayoutLine user1Lines[] = {
    {{"lblEnter"}},
    {{"lblMaterial", "txtMaterial1"}},
    {{"lblWavelength", "lblIndex"}},
    {{"txtRI_lambda1_1", "txtRI_1_1"}},
    {{"txtRI_lambda1_2", "txtRI_1_2"}},
    {{"txtRI_lambda1_3", "txtRI_1_3"}},
    {{"txtRI_lambda1_4", "txtRI_1_4"}},
};
inline constexpr LayoutLine user2Lines[] = {
    {{"lblEnter"}},
    {{"lblMaterial", "txtMaterial2"}},
    {{"lblWavelength", "lblIndex"}},
    {{"txtRI_lambda1_1", "txtRI_1_1"}},
    {{"txtRI_lambda1_2", "txtRI_1_2"}},
    {{"txtRI_lambda1_3", "txtRI_1_3"}},
    {{"txtRI_lambda1_4", "txtRI_1_4"}},
};
inline constexpr LayoutLine formulaLines[] = {
    {{"lblMaterial", "cboMaterial"}},
    {{"lblB1", "txtB1", "lblC1", "txtC1"}},
    {{"lblB2", "txtB2", "lblC2", "txtC2"}},
    {{"lblB3", "txtB3", "lblC3", "txtC3"}},
    {{"cmdRange", "chkIgnore"}},
    {{"Label8", "txtLambdaMin", "Label9", "txtLambdaMax"}},
    {{"cmdSave", "cmdRemove", "cmdRestore"}},
};

inline constexpr DialogLayout materialDialogLayouts[] = {
    {"dlogTemp2", mediumWaterLines},
    {"dlogAir", airLines},
    {"dlogRay", rayLines},
    {"dlogSegelstein", segelsteinLines},
    {"dlogDielectric", dielectricLines},
    {"dlogDielectric2", dielectric2Lines},
    {"dlogRI_User1", user1Lines},
    {"dlogRI_User2", user2Lines},
    {"dlogRI_Formula", formulaLines},
};

}  // namespace lumivex
