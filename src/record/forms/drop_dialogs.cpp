#include "record/forms/drop_dialogs.h"

namespace lumivex {

DlogNonSpherical::DlogNonSpherical() : Form("dlogNonSpherical", "Flattened drops") {
  cboRayCount.Items = {"1000000", "4000000", "10000000", "40000000", "100000000"};
}

}  // namespace lumivex
