#include "session/inputs/light/light_sources.h"

#include <string>

#include "record/number_text.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/light/read_spectrum.h"
#include "session/inputs/methods.h"

namespace lumivex {

namespace {

constexpr const char* badEntry = "    The red highlighted data entry is incorrect.    ";
const std::string degree = "\u00B0";

void Choose(Session& session, MenuEntry& entry, const std::string& caption) {
  ClearMenuSpectrum(session);
  entry.Checked = true;
  session.form1.lblSpectrum.Caption = caption;
  RaiseInputsChanged(session);
}

bool IsPositive(const TextInput& field) {
  return IsNumber(field.Text) && Val(field.Text) > 0;
}

bool Accept(Session& session, TextInput& field, bool good) {
  field.BackColour = colours::White;
  if (!good) RefuseInput(session, field, badEntry);
  return good;
}

}  // namespace

void ClearMenuSpectrum(Session& session) {
  auto& f = session.form1;
  for (MenuEntry* entry : {&f.mnuSpectrumLee, &f.mnuSpectrumWernand, &f.mnuSpectrumWernand2, &f.mnuSpectrumFlat,
                           &f.mnuBlackBody, &f.mnuSpectrumFile})
    entry->Checked = false;
}

void mnuSpectrumLee_Click(Session& session) {
  Choose(session, session.form1.mnuSpectrumLee, "Sun (Lee)");
}

void mnuSpectrumWernand_Click(Session& session) {
  Choose(session, session.form1.mnuSpectrumWernand, "Sun (Wernand)");
}

void mnuSpectrumWernand2_Click(Session& session) {
  auto& dialog = session.forms.dlogWernand;
  if (!AskIn(session, dialog)) return;
  dlogWernand_txtElevation_Change(session);
  if (HasBadInput(dialog)) return;
  Choose(session, session.form1.mnuSpectrumWernand2,
         "Sun elevation = " + std::string(Trim(dialog.txtElevation.Text)) + degree);
}

void mnuSpectrumFlat_Click(Session& session) {
  Choose(session, session.form1.mnuSpectrumFlat, "Flat");
}

void mnuBlackBody_Click(Session& session) {
  auto& dialog = session.forms.dlogBlackBody;
  if (!AskIn(session, dialog)) return;
  dlogBlackBody_txtBlackBody_Change(session);
  if (HasBadInput(dialog)) return;
  session.state.BlackBodyTemp = Val(dialog.txtBlackBody.Text);
  Choose(session, session.form1.mnuBlackBody, "Black body " + std::string(Trim(dialog.txtBlackBody.Text)) + "K");
}

void UseSpectrumFile(Session& session) {
  Choose(session, session.form1.mnuSpectrumFile, "Data file");
}

void LightBySpectrum(Session& session, const std::string& title) {
  auto& form = session.form1;
  UseSpectrumFile(session);
  if (Trim(form.cboWave.Text) != "1") return;
  if (!TakesWavelengths(ChosenGraph(session.state))) {
    session.platform.Message(title,
                             "The spectrum has been read. It takes effect in graphs of several wavelengths,\nfor "
                             "instance \"Intensity v. scattering angle\" with \"Wavelengths\" above 1.");
    return;
  }
  form.cboWave.Text = "Med.";
  session.events.Raise("cboWave_Click");
}

void mnuSpectrumFile_Click(Session& session) {
  auto& dialog = session.forms.dlogSpectrumFile;
  const auto& s = session.state;
  if (s.RestoringSettings != 0) return UseSpectrumFile(session);
  if (s.SpectrumFileLoaded != 0) {
    if (!AskIn(session, dialog)) return;
    if (dialog.optExisting.Checked) return UseSpectrumFile(session);
  }
  if (ReadSpectrum(session)) LightBySpectrum(session, "Spectrum data");
}

void mnuSpectrumBand_Click(Session& session) {
  auto& dialog = session.forms.dlogSpectrumBand;
  auto& s = session.state;
  if (!AskIn(session, dialog)) return;
  dlogSpectrumBand_OKButton_Click(session);
  if (HasBadInput(dialog)) return;
  s.SpectrumMin = static_cast<float>(Val(dialog.txtSpectrumMin.Text) / 1000);
  s.SpectrumMax = static_cast<float>(Val(dialog.txtSpectrumMax.Text) / 1000);
  session.form1.lblSpectrumBand.BackColour = colours::White;
  session.form1.lblSpectrumBand.Caption = std::string(Trim(dialog.txtSpectrumMin.Text)) + " - " +
                                          std::string(Trim(dialog.txtSpectrumMax.Text)) + " nm band";
  RaiseInputsChanged(session);
}

void dlogWernand_txtElevation_Change(Session& session) {
  auto& field = session.forms.dlogWernand.txtElevation;
  const double elevation = Val(field.Text);
  constexpr double uncertainBelow = 10;
  const bool good = IsNumber(field.Text) && elevation >= 0 && elevation < 90;
  field.BackColour = !good ? colours::BadInput : elevation < uncertainBelow ? colours::Warning : colours::White;
}

void dlogBlackBody_txtBlackBody_Change(Session& session) {
  auto& field = session.forms.dlogBlackBody.txtBlackBody;
  field.BackColour = IsPositive(field) ? colours::White : colours::BadInput;
}

void dlogSpectrumBand_Change(Session& session) {
  auto& dialog = session.forms.dlogSpectrumBand;
  dialog.txtSpectrumMin.BackColour = dialog.txtSpectrumMax.BackColour = colours::White;
}

void dlogSpectrumBand_OKButton_Click(Session& session) {
  auto& dialog = session.forms.dlogSpectrumBand;
  if (!Accept(session, dialog.txtSpectrumMin, IsPositive(dialog.txtSpectrumMin))) return;
  Accept(session, dialog.txtSpectrumMax,
         IsPositive(dialog.txtSpectrumMax) && Val(dialog.txtSpectrumMax.Text) > Val(dialog.txtSpectrumMin.Text));
}

void AskIncidentLight(Session& session) {
  auto& form = session.form1;
  if (AskIn(session, session.forms.dlogIncident)) dlogIncident_OKButton_Click(session);
  form.lblWatts.Visible = !form.lblWatts.Caption.empty();
  form.lblDistance.Visible = !form.lblDistance.Caption.empty();
}

void dlogIncident_OKButton_Click(Session& session) {
  auto& s = session.state;
  auto& dialog = session.forms.dlogIncident;
  if (!Accept(session, dialog.txtIncidentPD, IsPositive(dialog.txtIncidentPD))) return;
  if (!Accept(session, dialog.txtDistance, IsPositive(dialog.txtDistance))) return;
  s.IncidentDensity = Val(dialog.txtIncidentPD.Text);
  s.Distance = Val(dialog.txtDistance.Text);
  session.form1.lblWatts.Caption =
      "Incident intensity = " + std::string(Trim(dialog.txtIncidentPD.Text)) + " Watts/sq m";
  session.form1.lblDistance.Caption = "Distance = " + std::string(Trim(dialog.txtDistance.Text)) + " m";
}

void dlogIncident_Change(Session& session) {
  auto& dialog = session.forms.dlogIncident;
  dialog.txtIncidentPD.BackColour = dialog.txtDistance.BackColour = colours::White;
}

}  // namespace lumivex
