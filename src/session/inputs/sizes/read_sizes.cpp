#include "session/inputs/sizes/read_sizes.h"

#include <algorithm>
#include <utility>

#include "particles/normal_samples.h"
#include "record/number_text.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/sizes/size_distribution.h"

namespace lumivex {

namespace {

NormalSizes Normal(const Session& session, bool logarithmic) {
  const auto& form = session.form1;
  std::vector<float> z = NormalSamples(ToWhole(Val(form.cboN.Text)));
  if (z.empty()) z = session.state.DistSample;
  return {std::move(z), Val(form.cboSD.Text) / 100, logarithmic};
}

FileSizes File(const Session& session) {
  const auto& s = session.state;
  FileSizes file;
  file.loaded = s.SizeFileLoaded != 0;
  file.actual = session.forms.dlogDistOption.optActual.Checked;
  if (!file.loaded) return file;
  const auto rows = static_cast<std::ptrdiff_t>(s.SizeFileCount) + 1;
  const auto& radius = s.SizeTableMode == 1 ? s.SizeTableNonUniform : s.SizeTableUniform;
  file.radius.assign(radius.begin(), radius.begin() + rows);
  file.number.assign(s.SizeTableNumber.begin(), s.SizeTableNumber.begin() + rows);
  if (s.SizeTableMode == 1) file.upper.assign(s.SizeTableUpper.begin(), s.SizeTableUpper.begin() + rows);
  file.name = FileNameOf(s.SizeFileName);
  file.lowest = s.SizeFileMin;
  file.highest = s.SizeFileMax;
  return file;
}

std::vector<SizeMode> ModesOfDialog(const DlogMultiModal& d) {
  const auto mode = [](const TextInput& median, const TextInput& spread, const TextInput& fraction) {
    return SizeMode{Val(median.Text), Val(spread.Text), Val(fraction.Text)};
  };
  std::vector<SizeMode> modes = {mode(d.txtMedian1, d.txtSpread1, d.txtFraction1)};
  if (d.chkMode2.Checked) modes.push_back(mode(d.txtMedian2, d.txtSpread2, d.txtFraction2));
  if (d.chkMode3.Checked) modes.push_back(mode(d.txtMedian3, d.txtSpread3, d.txtFraction3));
  return modes;
}

std::variant<SizeModel, GammaShape> ModelNamed(const Session& session, const std::string& name) {
  if (name == "Cumulus cloud") return SizeModel(CumulusCloud);
  if (name == "Haze") return SizeModel(Haze);
  if (name == "Gamma") return GammaShape{Val(session.form1.cboSD.Text)};
  return SizeModel(IsAerosol(name) ? AerosolModes(name) : ModesOfDialog(session.forms.dlogMultiModal));
}

}  // namespace

SizeDistribution ChosenSizes(const Session& session) {
  const auto& form = session.form1;
  if (!form.optDisp.Checked) return OneSize{};
  const std::string& name = form.cboDistrib.Text;
  if (name == "Special") return File(session);
  if (name == "Normal" || name == "Log-normal") return Normal(session, name == "Log-normal");
  const bool equal = session.forms.dlogDistDisplay.optLinearX.Checked;
  return ModelSizes{ModelNamed(session, name), std::clamp(ToWhole(Val(form.cboN.Text)), 1, MostSamples),
                    equal ? SizeSteps::Equal : SizeSteps::Ratio};
}

std::optional<double> RadiusOfSizeFile(const SizeDistribution& sizes) {
  const auto* file = std::get_if<FileSizes>(&sizes);
  if (file == nullptr || file->radius.size() < 2) return std::nullopt;
  return (file->radius[1] + file->radius.back()) / 2;
}

std::string WordsForSizes(const Session& session) {
  const Form1& form = session.form1;
  std::string samples = form.cboN.Text;
  const SizeDistribution sizes = ChosenSizes(session);
  if (const auto* normal = std::get_if<NormalSizes>(&sizes); normal != nullptr && !normal->z.empty())
    samples = std::to_string(normal->z.size() - 1);
  std::string words = form.cboDistrib.Text;
  if (form.cboSD.Visible) words += ", " + form.Label11.Caption + " " + form.cboSD.Text;
  return words + ", " + samples + " samples";
}

}  // namespace lumivex
