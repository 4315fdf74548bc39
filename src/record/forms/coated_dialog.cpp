#include "record/forms/coated_dialog.h"

#include <string>

namespace lumivex {

namespace {

std::vector<std::string> Numbers(int first, int last, int step = 1) {
  std::vector<std::string> items;
  for (int i = first; i <= last; i += step) items.push_back(std::to_string(i));
  return items;
}

}  // namespace

DlogCoatedSphere::DlogCoatedSphere() : Form("dlogCoatedSphere", "Coated sphere") {
  constexpr int highestP = 6, highestQ = 8, highestN = 12;
  cboRIcore.Items = cboRIshell.Items = {"Fixed", "Water", "Vacuum", "Glass", "Gold", "Silver", "Copper"};
  // A sphere in an absorbing medium is none of this program's.
  cboRImedium.Items = {"Fixed", "Water", "Vacuum", "Glass"};
  cboP.Items = Numbers(0, highestP);
  cboQ.Items = Numbers(0, highestQ);
  cboR.Items = cboMin.Items = cboMax.Items = Numbers(0, highestN);
  cboA.Items = Numbers(0, 2 * (highestN + 1), 2);
  cboB.Items = Numbers(0, highestN + 1);
  txtRImedium.Enabled = txtDegen.Enabled = false;
  cboMin.Visible = cboMax.Visible = lblMult.Visible = false;
  for (Control* control : {static_cast<Control*>(&Frame2), static_cast<Control*>(&frmRecursion)})
    control->Enabled = false;
}

}  // namespace lumivex
