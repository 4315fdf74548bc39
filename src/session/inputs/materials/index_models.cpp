#include "session/inputs/materials/index_models.h"

#include "record/number_text.h"

namespace lumivex::index_models {

WaterInputs ReadWater(const TextInput& txtTemp, const TextInput& txtDensity) {
  const double temperature = Val(txtTemp.Text);
  return {temperature, Val(txtDensity.Text), (temperature + 273.15) / 273.15};
}

double UserIndex(const IndexLookup& lookup, const UserMaterialDialog& d, std::vector<double>& lambda,
                 std::vector<double>& index) {
  lambda = {0, Val(d.txtRI_lambda1_1.Text), Val(d.txtRI_lambda1_2.Text), Val(d.txtRI_lambda1_3.Text),
            Val(d.txtRI_lambda1_4.Text)};
  index = {0, Val(d.txtRI_1_1.Text), Val(d.txtRI_1_2.Text), Val(d.txtRI_1_3.Text), Val(d.txtRI_1_4.Text)};
  double y = 0;
  LagrangeCubic(lookup.session, lambda[1], index[1], lambda[2], index[2], lambda[3], index[3], lambda[4], index[4],
                lookup.wavelength, y, lookup.voice);
  return y;
}

TableRule RuleTicked(const Form1& form) {
  return form.mnuInterpolate.Checked ? TableRule::Cubic : TableRule::Linear;
}

void TellMissingRow(const IndexLookup& lookup) {
  if (lookup.voice == LookupVoice::Aloud) lookup.session.platform.Message("Error", "Subscript out of range");
}

}  // namespace lumivex::index_models
