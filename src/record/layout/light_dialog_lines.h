#pragma once

#include "record/layout/panel_layout.h"

namespace lumivex {

/// Lines of the dialogs of the light.
inline constexpr LayoutLine elevationLines[] = {{{"lblElevation", "txtElevation"}}};
inline constexpr LayoutLine blackBodyLines[] = {{{"lblBlackBody", "txtBlackBody"}}};
inline constexpr LayoutLine spectrumFileLines[] = {{{"optExisting"}}, {{"optNewFile"}}};
inline constexpr LayoutLine incidentLines[] = {{{"lblIncidentPD", "txtIncidentPD"}},
                                               {{"lblIncidentDistance", "txtDistance"}}};

inline constexpr DialogLayout lightDialogLayouts[] = {
    {"dlogWernand", elevationLines},
    {"dlogBlackBody", blackBodyLines},
    {"dlogSpectrumFile", spectrumFileLines},
    {"dlogIncident", incidentLines},
};

}  // namespace lumivex
