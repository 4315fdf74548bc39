#include "session/start_up.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "particles/gamma_function.h"
#include "record/features.h"
#include "record/number_text.h"
#include "session/driver/array_size.h"
#include "session/driver/commands.h"
#include "session/info.h"
#include "session/inputs/graph_types.h"
#include "session/inputs/layers/coated_inputs.h"
#include "session/inputs/look/look_menus.h"
#include "session/inputs/materials/sellmeier_catalogue.h"
#include "session/inputs/methods.h"
#include "session/inputs/volume_inputs.h"
#include "session/undo.h"
#include "session/user_folder.h"
#include "session/window_events.h"

namespace lumivex {

namespace {

using Texts = std::vector<std::string>;

constexpr std::string_view designedFor =
    "Lumivex has been designed for displays with 1024 x 768 pixels (or higher resolution).";
constexpr std::string_view betterResults = "much better results will be achieved with 1024 x 768 displays.";

void CheckScreen(Session& session) {
  const ScreenSize screen = session.platform.Screen();
  auto& s = session.state;
  s.ScreenWidthPx = screen.widthPx;
  s.ScreenHeightPx = screen.heightPx;
  if (screen.widthPx >= 1024) return;
  const std::string size = std::to_string(screen.widthPx) + " x " + std::to_string(screen.heightPx);
  if (screen.widthPx >= 800 && screen.heightPx >= 600) {
    session.platform.Message("Screen resolution warning", std::string(designedFor) +
                                                              "\nThe basic features of Lumivex will work on your " +
                                                              size + " display, but " + std::string(betterResults));
    session.form1.mnuDataVisible.Visible = false;
  } else {
    session.platform.Message("Screen resolution problem",
                             std::string(designedFor) + "\nYour " + size + " display is not usable.  Sorry!" +
                                 "\nThe basic features of Lumivex will work on 800 x 600 displays, but " +
                                 std::string(betterResults));
  }
}

/// What the system would read from "0.1": a system whose decimal symbol is a comma takes the point for nothing.
double ReadAsSystem(std::string_view text, char decimalSymbol) {
  std::string read(text);
  for (char& c : read) c = c == decimalSymbol ? '.' : c == '.' ? ' ' : c;
  return Val(read);
}

void CheckDecimalSymbol(Session& session) {
  auto& step = session.form1.cboStep;
  step.Text = "0.1";
  if (ReadAsSystem(step.Text, session.platform.DecimalSymbol()) == 0.1) return;
  session.platform.Message(
      "Microsoft Windows: problem with International Settings",
      "Lumivex assumes that numbers will be entered in the form \"1.25\", not \"1,25\"\n"
      "To overcome this problem in Windows 2000, you should select \"Settings\" from the Start menu, followed by "
      "\"Control Panel\", \"Regional options\" and then under \"Numbers\" select \".\" as the \"Decimal symbol\"\n"
      "To overcome this problem in Windows XP, you should select \"Settings\" from the Start menu, followed by "
      "\"Control Panel\", \"Regional options\", \"Customise\" and then select \".\" as the \"Decimal symbol\"\n"
      "To overcome this problem in Windows Vista or 7, you should select \"Settings\" from the Start menu, followed by "
      "\"Control Panel\" and \"Regional and language options\". Under the \"Formats\" tab, you should select "
      "\"Customize this format\" and and then select \".\" as the \"Decimal symbol\"");
}

Texts NumbersUpTo(int last) {
  Texts texts;
  for (int p = 0; p <= last; ++p) texts.push_back(std::to_string(p));
  return texts;
}

Texts WavelengthChoices() {
  if (!IsAvailable(Feature::SeveralWavelengths)) return {"1"};
  return {"1",   "3",   "7",    "10",   "15",  "30",   "60",   "100", "200",
          "300", "500", "1000", "2000", "RGB", "High", "Med.", "Low"};
}

void FillLists(Form1& f) {
  const Texts limits = {"Automatic", "1000000", "100000", "10000", "1000",   "100",     "10",
                        "1",         "0.1",     "0.01",   "0.001", "0.0001", "0.00001", "0.000001"};
  const Texts samples = {"5", "10", "20", "50", "5", "10", "20", "50"};
  // The repeated entries of cboSD and cboN are part of the lists; they are looked up by text.
  f.cboYmax.Items = limits;
  f.cboWave.Items = WavelengthChoices();
  f.cboGraph.Items = OfferedGraphs();
  f.cboYmin.Items = limits;
  f.cboStep.Items = {"10", "5", "2", "1", "0.5", "0.2", "0.1", "0.05", "0.02", "0.01"};
  f.cboPol.Items = {"Perpendicular", "Parallel", "Both", "Unpolarised", "All 3"};
  f.cboSD.Items = {"20", "10", "5", "2", "1", "0.5", "0.2", "0.1", "0.05", "0.02", "0.01", "5", "10", "20", "50"};
  f.cboN.Items = samples;
  f.cboDistrib.Items = {"Normal", "Log-normal", "Multimodal", "Gamma",     "Cumulus cloud",
                        "Haze",   "Special",    "Aerosol m0", "Aerosol m6"};
  f.cboBright.Items = {"100", "50",  "30", "20",  "18",  "15",  "10", "8",   "6",   "5",   "4",
                       "3",   "2.5", "2",  "1.8", "1.5", "1.2", "1",  "0.8", "0.5", "0.2", "0.1"};
  f.cboLee.Items = {"Normalised", "Absolute"};
  f.cboType.Items = OfferedMethods();
  f.cboRays.Items = NumbersUpTo(30);
  f.cboRays.Items.insert(f.cboRays.Items.begin(), "Multiple");
}

/// Inputs of what this build cannot do are not shown.
void HideUnavailable(Form1& f) {
  const bool disperse = IsAvailable(Feature::SizeDistributions);
  f.optMono.Visible = f.optDisp.Visible = disperse;
  f.cboDistrib.Visible = false;
  f.cmdSimulation.Visible = false;
  f.lblSWAmp.Visible = f.txtSWAmp.Visible = f.cboQmin.Visible = f.cboQmax.Visible = f.lblQminQmax.Visible = false;
  f.mnuSurfaceWave.Visible = false;
  f.chkDiffraction.Visible = f.chkComponents.Visible = false;
  f.Label9.Visible = f.cboRays.Visible = false;
  f.mnuHidden.Visible = f.mnuBessel.Visible = f.mnuAiry.Visible = f.mnuReadDiff.Visible = false;
  f.lblSpectrum.Visible = f.lblSpectrumBand.Visible = f.mnuSpectrum.Visible = false;
  f.optPoint.Visible = f.optSun.Visible = IsAvailable(Feature::GraphLook);
  f.Label4.Visible = f.cboWave.Visible = IsAvailable(Feature::SeveralWavelengths);
  f.OptXLinear.Visible = f.optXLog.Visible = true;
  f.lblWatts.Visible = f.lblDistance.Visible = false;
}

void PlaceGraph(Session& session) {
  auto& s = session.state;
  auto& f = session.form1;
  const double width = session.surface->ScaleWidth(), height = session.surface->ScaleHeight();
  s.GraphLeft = 1000;
  s.GraphRight = static_cast<float>(0.97 * width);
  s.GraphBottom = static_cast<float>(0.84 * height);
  if (s.ScreenWidthPx < 1025) {
    session.events.Raise("mnuLarge_Click");
    return;
  }
  f.mnuVLarge.Visible = f.mnuVLarge.Enabled = true;
  f.mnuSizeVariable.Enabled = true;
  f.mnuSizeVariable.Checked = false;
  f.Frame6.Left = InfoLeft(width);
}

void WriteCaptions(Form1& f) {
  const std::string micro = "\u00B5", degree = "\u00B0";
  f.Label7.Caption = "Radius (" + micro + "m)";
  f.Label6.Caption = "Wavelength (" + micro + "m) in vacuo";
  f.Frame2.Tip = "Forward scattering = 0" + degree + ", back-scattering = 180" + degree;
}

/// The water model at the start: 5 C with the absorption of water.
void NameMaterials(Session& session) {
  auto& f = session.form1;
  f.mnuRI_IAPWS.Caption = "IAPWS 5C Complex";
  f.lblSphere.Caption = "Sphere: Water (IAPWS 5C Complex)";
  f.lblRI_Medium.Caption = "Medium: Vacuum";
  f.lblSpectrum.Caption = "Sun (Lee)";
  f.lblSpectrumBand.Caption = "380 - 700 nm band";
}

}  // namespace

void Form_Load(Session& session) {
  auto& s = session.state;
  auto& f = session.form1;
  s.Busy = 1;
  f.Visible = true;
  CheckScreen(session);
  f.optMono.Select();
  f.Label11.Visible = f.Label13.Visible = f.cboSD.Visible = f.cboN.Visible = false;
  HideUnavailable(f);

  s.SpectrumMin = 0.38F;
  s.SpectrumMax = 0.70F;
  s.MaterialTemp = 5;
  s.TempRatio = 278.15F / 273.15F;
  s.WaterDensity = 0.99996382F;
  f.txtRefractMedium.Text = "1";
  f.txtRadius.Text = "10";
  f.txtProgress.Text = "% complete 0";
  f.txtProgress.Visible = false;
  f.lblDistance.Caption.clear();
  f.lblWatts.Caption.clear();
  f.cboYmax.Text = f.cboYmin.Text = "Automatic";
  CheckDecimalSymbol(session);
  FillLists(f);
  if (session.state.CatalogueFolder.empty()) session.state.CatalogueFolder = FindCatalogueFolder(ProgramFolder());
  if (session.state.CatalogueUserFolder.empty()) session.state.CatalogueUserFolder = UserDataFolder();
  LoadCatalogue(session);

  f.OptXLinear.Select();
  f.mnuMajorGridX.Checked = f.mnuMajorGridY.Checked = true;
  f.mnuMinorGridX.Checked = f.mnuMinorGridY.Checked = false;
  for (CommandButton* command : {&f.cmdReplot, &f.cmdOverPlot}) command->Enabled = command->Visible = false;
  f.cmdNewPlot.Enabled = f.cmdNewPlot.Default = true;
  f.cmdStop.Visible = f.cmdStop.Enabled = false;
  f.txtRmax.Visible = false;

  SetGraph(s, {1, 1});
  ShowFamilyInputs(session);
  s.Xmax = Val(f.txtXmax.Text);
  for (SelectionList* list : {&f.cboYmax, &f.cboYmin, &f.cboStep, &f.cboPol}) list->BackColour = colours::White;
  mnuDefault_Click(session);
  if (f.cboYmin.Text == "Automatic") s.YAutoMin = 0.1;
  if (f.cboYmax.Text == "Automatic") s.YAutoMax = 100000;
  s.SphereName = " Water";
  s.MediumName = "a vacuum ";
  PlaceGraph(session);
  NameMaterials(session);
  Array_Size(session);
  SizeColourTables(s);
  f.lblAverage.Caption = "Average  " + f.mnuAverage.Caption;
  f.lblDebyeRays.Caption = "Mie (plane wave)";

  session.events.Raise("txtLambda_change");
  f.mnuVLarge.Checked = s.ScreenWidthPx > 1024;
  cmdNewPlot_Click(session);

  f.cboQmax.Items = f.cboQmin.Items = {"1", "2", "3", "4", "5", "10", "15", "20", "25"};
  FillPathLists(session.forms.dlogCoatedSphere);
  f.mnuDrawWidth1.Checked = true;
  session.events.Raise("mnuLogoPositionBL_Click");
  WriteCaptions(f);
  for (TextInput* input : {&f.txtLambda, &f.txtRadius, &f.txtRefractReal, &f.txtRefractImag})
    input->BackColour = colours::White;
  f.mnuContinueSession.Enabled = f.mnuRecent.Enabled = false;
  s.Busy = 0;
  if (s.ScreenWidthPx > 1024) session.events.Raise("mnuVLarge_Click");
  cmdInfo_Click(session);
  session.events.Raise("Session_Loaded");
  OfferHistory(session);
}

void cmdDefault_Click(Session& session) {
  auto& s = session.state;
  auto& f = session.form1;
  GammaFunction(1.0 / 3, s.GammaThird);
  GammaFunction(0.5, s.GammaHalf);
  GammaFunction(-0.5, s.GammaMinusHalf);
  GammaFunction(-1.5, s.GammaMinusThreeHalves);
  GammaFunction(5.0, s.GammaFive);

  const int restoring = s.RestoringSettings;
  s.RestoringSettings = 1;
  session.forms.dlogSpectrumBand.txtSpectrumMin.Text = "380";
  session.forms.dlogSpectrumBand.txtSpectrumMax.Text = "700";
  session.events.Raise("mnuSpectrumBand_Click");
  auto& forms = session.forms;
  for (CheckBox* box :
       {&forms.dlogTemp.chkRI_Complex, &forms.dlogSegelstein.chkRI_Complex, &forms.dlogRay.chkRI_Complex})
    box->Checked = true;
  forms.dlogTemp.txtTemp.Text = "5";
  session.events.Raise("dlogTemp.txtTemp_Change");
  f.cboWave.Text = "1";
  f.txtLambda.Text = "0.65";
  for (const std::string_view event : {"mnuRI_IAPWS_Click", "mnuRI_Vacuum2_Click", "mnuSpectrumLee_Click"})
    session.events.Raise(event);
  cboWave_Click(session);
  if (!f.mnuRadius.Checked) session.events.Raise("mnuRadius_Click");
  f.txtRadius.Text = "10";
  session.events.Raise("txtRadius_Change");
  RestoreVolume(session);
  for (const std::string_view event : {"mnuTrueColour_Click", "mnuPhoto_Click"}) session.events.Raise(event);
  for (MenuEntry* entry : {&f.mnuNormalised, &f.mnuInterpolate, &f.mnuAverage})
    if (entry->Checked) session.events.Raise(std::string(entry->Name()) + "_Click");
  if (s.OverplotFromFile != 0) session.events.Raise("mnuOverplot_Click");
  f.cboPol.Text = "Both";
  s.RestoringSettings = restoring;
}

}  // namespace lumivex
