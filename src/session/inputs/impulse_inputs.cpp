#include "session/inputs/impulse_inputs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "pages/items/pulse_graph.h"
#include "record/number_text.h"
#include "session/checks/number_input.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/graph_types.h"
#include "session/inputs/methods/sphere_size.h"
#include "timedomain/fourier_transform.h"

namespace lumivex {

namespace {

constexpr double fewestSamples = 128, mostSamples = 131072, mostSamplesOfQuarter = 64;
constexpr double longestPulse = 1e6, longestWavelength = 1e4, strongestCutOff = 300, fastestSignal = 1e15;
constexpr int decimalsOfTime = 2;

struct FormRow {
  std::string_view text;
  PulseForm form;
};
constexpr std::array formRows = {
    FormRow{"Rectangular", PulseForm::Rectangular},
    FormRow{"Raised cosine", PulseForm::RaisedCosine},
    FormRow{"Hann", PulseForm::RaisedCosine},
    FormRow{"Hamming", PulseForm::Hamming},
    FormRow{"Gaussian", PulseForm::Gaussian},
    FormRow{"AM", PulseForm::AM},
    FormRow{"FM", PulseForm::FM},
};

const FormRow* FindForm(std::string_view text) {
  const auto row = std::ranges::find_if(formRows, [&](const FormRow& r) { return SameName(r.text, Trim(text)); });
  return row == formRows.end() ? nullptr : &*row;
}

bool IsSignal(PulseForm form) {
  return form == PulseForm::AM || form == PulseForm::FM;
}

void Mark(Control& control, bool good) {
  control.BackColour = good ? colours::White : colours::BadInput;
}

bool IsWithin(const std::string& text, double above, double most) {
  return IsNumber(text) && Val(text) > above && Val(text) <= most;
}

bool IsPower(const std::string& text, double fewest, double most) {
  if (!IsNumber(text)) return false;
  const double n = Val(text);
  return n >= fewest && n <= most && n == std::floor(n) && (n == 1 || IsPowerOfTwo(ToWhole(n)));
}

std::string TimeText(double fs) {
  return Shortest(RoundDecimals(fs, decimalsOfTime));
}

/// Only the inputs of the chosen form are on show.
void ShowForm(DlogImpulse& dialog) {
  const FormRow* row = FindForm(dialog.cboPulseShape.Text);
  const bool signal = row != nullptr && IsSignal(row->form), deviates = signal && row->form == PulseForm::FM;
  for (Control* control : std::initializer_list<Control*>{&dialog.lblFC, &dialog.txtFC, &dialog.lblFM, &dialog.txtFM,
                                                          &dialog.lblFS, &dialog.txtFS})
    control->Visible = signal;
  dialog.lblFD.Visible = dialog.txtFD.Visible = deviates;
  dialog.lblPulseDuration.Visible = dialog.cboPulseDuration.Visible = !signal;
}

/// Lists of samples as the record has them: from index 1.
std::vector<double> FromIndex1(const std::vector<double>& values) {
  std::vector<double> list(values.size() + 1, 0.0);
  std::ranges::copy(values, list.begin() + 1);
  return list;
}

void MarkEnvelope(ImpulseState& s, const Pulse& pulse) {
  s.PulseEnvelopeFlag.assign(pulse.real.size() + 1, 0.0);
  for (std::size_t i = 0; i < pulse.real.size(); ++i) {
    const double t = std::fabs(pulse.Time(static_cast<std::int32_t>(i)));
    // A Gaussian has no end: what counts lies within its width to both sides, as that of a raised cosine does.
    const bool within = IsSignal(pulse.asked.form) ||
                        (t < pulse.asked.duration && PulseEnvelope(pulse.asked.form, t, pulse.asked.duration) > 0);
    s.PulseEnvelopeFlag[i + 1] = within ? 1 : 0;
  }
}

void KeepPulse(Session& session, const Pulse& pulse, int mode) {
  constexpr double seconds = 1e-15;
  ImpulseState& s = session.state;
  const auto& dialog = session.forms.dlogImpulse;
  s.FFTLength = pulse.asked.length;
  s.PulsePeriod = pulse.period * seconds;
  s.SampleTime = pulse.step * seconds;
  s.SampleTimeFs = pulse.step;
  s.PulseDuration = pulse.asked.duration * seconds;
  s.PulseShape = dialog.cboPulseShape.Text;
  s.PulseCutOff = ToWhole(pulse.asked.cutOff);
  s.PulseWindow = pulse.window;
  s.PulseInReal = FromIndex1(pulse.real);
  s.PulseInImag = FromIndex1(pulse.imag);
  s.PulseOutReal = FromIndex1(pulse.outReal);
  s.PulseOutImag = FromIndex1(pulse.outImag);
  s.SpectrumLowIndex = pulse.valid ? pulse.low : 0;
  s.SpectrumHighIndex = pulse.valid ? pulse.high : 0;
  s.PulseBandLow = pulse.valid ? pulse.Wavelength(pulse.high) : 0;
  s.PulseBandHigh = pulse.valid ? pulse.Wavelength(pulse.low) : 0;
  s.PulseValid = pulse.valid ? 1 : 0;
  s.PulseEnvelopeFlag.clear();
  if (mode != 0) MarkEnvelope(s, pulse);
}

void DrawPulse(Session& session, const Pulse& pulse) {
  for (Window& window : session.windows) {
    if (window.form != &session.forms.dlogImpulse) continue;
    window.page = {};
    window.page.geometry.surfaceWidth = session.forms.dlogImpulse.Picture1.Width;
    window.page.geometry.surfaceHeight = session.forms.dlogImpulse.Picture1.Height;
    window.page.pulse = PulseGraph(pulse, session.forms.dlogImpulse.optLog.Checked);
  }
}

void TellPulse(Session& session) {
  const auto& dialog = session.forms.dlogImpulse;
  auto& form = session.form1;
  if (!ChosenGraph(session.state).OfPulse()) return;
  form.lblWatts.Caption = dialog.cboPulseShape.Text + " pulse T = " + dialog.cboPulseDuration.Text +
                          " fs   Limit = " + dialog.cbodB.Text + " dB";
  form.lblDistance.Caption = "Number of samples: " + dialog.cboFFT.Text + "  " + dialog.cboN.Text;
  form.lblWatts.Visible = form.lblDistance.Visible = true;
}

/// The whole window, in samples.
void WriteTimes(Session& session) {
  auto& form = session.form1;
  const Graph& graph = ChosenGraph(session.state);
  if (!graph.OfPulse()) return;
  const TimeLimits limits = TimesOfWindow(session);
  const ResponseClock clock = ClockOfInputs(session);
  // Of the centre's clock what comes before the front's reflection is empty.
  const bool fromCentre = graph.family == Family::Impulse && clock.fromCentre;
  form.txtF9_min.Text = TimeText(fromCentre ? std::max(limits.low, -clock.diameterTime) : limits.low);
  form.txtF9_max.Text = TimeText(limits.high);
  form.txtF9_step.Text = TimeText(clock.step);
  for (TextInput* input : {&form.txtF9_min, &form.txtF9_max, &form.txtF9_step}) input->BackColour = colours::White;
}

/// The wavelengths of efficiencies are those of the pulse.
void WriteBand(Session& session) {
  constexpr int digits = 6;
  auto& form = session.form1;
  const auto& s = session.state;
  if (ChosenGraph(s).family != Family::PulseAnswer || s.PulseValid == 0) return;
  form.txtXmin.Text = Significant(1000 * s.PulseBandLow, digits);
  form.txtXmax.Text = Significant(1000 * s.PulseBandHigh, digits);
}

/// What is told of a window that ends before the light of a sphere does; empty where it is long enough.
std::string ShortWindowWords(double window, double wanted) {
  if (!(window < wanted)) return "";
  return "The time window of " + TimeText(window) + " fs is too short for this sphere, whose light lasts " +
         TimeText(wanted) + " fs and more: what arrives later appears at the beginning. Select more samples.";
}

std::string ShortWindowOfInputs(const Session& session) {
  const ResponseClock clock = ClockOfInputs(session);
  const PulseRequest pulse = ReadPulsedLight(session).pulse;
  if (!IsSignal(pulse.form) && clock.Window() < 2 * pulse.duration)
    return "The time window of " + TimeText(clock.Window()) + " fs cuts the pulse off. Select more samples.";
  const double medium = MediumIndexInUse(session), m = Val(session.form1.txtRefractReal.Text) / medium;
  return ShortWindowWords(clock.Window(), WindowWanted(clock.diameterTime, m));
}

/// What a cancelled dialog puts back in the panel.
struct TimesTyped {
  explicit TimesTyped(const Form1& form)
      : lambda(form.txtLambda.Text), low(form.txtF9_min.Text), high(form.txtF9_max.Text), step(form.txtF9_step.Text) {}
  void PutBack(Form1& form) const {
    form.txtF9_min.Text = low;
    form.txtF9_max.Text = high;
    form.txtF9_step.Text = step;
  }
  std::string lambda, low, high, step;
};

/// Whether the further axis holds times of the pulse and the graph as they stand.
bool HasTimes(const Session& session) {
  constexpr double tolerance = 0.01;
  const Form1& form = session.form1;
  const TimeLimits limits = TimesOfWindow(session);
  return form.txtF9_step.Text == TimeText(ClockOfInputs(session).step) &&
         Val(form.txtF9_min.Text) >= limits.low - tolerance && Val(form.txtF9_max.Text) <= limits.high + tolerance;
}

void Choose(Session& session, std::string_view graph) {
  if (session.form1.cboGraph.Text == graph && ChosenGraph(session.state).OfPulse()) return AskImpulse(session);
  ChooseGraph(session, graph);
}

}  // namespace

PulsedLight ReadPulsedLight(const Session& session) {
  const auto& dialog = session.forms.dlogImpulse;
  const FormRow* row = FindForm(dialog.cboPulseShape.Text);
  PulsedLight light;
  PulseRequest& pulse = light.pulse;
  pulse.form = row != nullptr ? row->form : PulseForm::Gaussian;
  pulse.wavelength = Val(dialog.txtWavelength.Text);
  pulse.duration = Val(dialog.cboPulseDuration.Text);
  pulse.length = ToWhole(Val(dialog.cboFFT.Text));
  pulse.sampling = ToWhole(Val(dialog.cboN.Text));
  pulse.cutOff = Val(dialog.cbodB.Text);
  pulse.carrier = Val(dialog.txtFC.Text);
  pulse.modulation = Val(dialog.txtFM.Text);
  pulse.deviation = Val(dialog.txtFD.Text);
  pulse.sampleRate = Val(dialog.txtFS.Text);
  light.fromCentre = dialog.chkTimeRef.Checked;
  light.correlated = session.form1.mnuCCF.Checked;
  return light;
}

bool PulseHolds(Session& session) {
  auto& d = session.forms.dlogImpulse;
  Mark(d.txtWavelength, IsWithin(d.txtWavelength.Text, 0, longestWavelength));
  Mark(d.cboPulseShape, FindForm(d.cboPulseShape.Text) != nullptr);
  Mark(d.cboPulseDuration, IsWithin(d.cboPulseDuration.Text, 0, longestPulse));
  Mark(d.cboFFT, IsPower(d.cboFFT.Text, fewestSamples, mostSamples));
  Mark(d.cboN, IsPower(d.cboN.Text, 1, mostSamplesOfQuarter));
  Mark(d.cbodB, IsNumber(d.cbodB.Text) && Val(d.cbodB.Text) < 0 && Val(d.cbodB.Text) >= -strongestCutOff);
  for (TextInput* field : {&d.txtFC, &d.txtFM, &d.txtFD, &d.txtFS})
    Mark(*field, IsWithin(field->Text, 0, fastestSignal));
  const bool holds =
      std::ranges::none_of(d.Controls(), [](const Control* c) { return c->BackColour == colours::BadInput; });
  d.OKButton.Enabled = holds;
  return holds;
}

void ImpulseCalc(Session& session, int mode, PulseVoice voice) {
  ShowForm(session.forms.dlogImpulse);
  session.state.PulseValid = 0;
  if (!PulseHolds(session)) return;
  const Pulse pulse = BuildPulse(ReadPulsedLight(session).pulse);
  KeepPulse(session, pulse, mode);
  DrawPulse(session, pulse);
  TellPulse(session);
  WriteTimes(session);
  WriteBand(session);
  if (pulse.valid || voice == PulseVoice::Quiet) return;
  session.platform.Message("Pulse shape",
                           "Cut-off of " + session.forms.dlogImpulse.cbodB.Text + "dB is too low for this pulse shape");
}

bool PulseIsThere(Session& session) {
  const TimesTyped typed(session.form1);
  session.forms.dlogImpulse.txtWavelength.Text = typed.lambda;
  ImpulseCalc(session, 1, PulseVoice::Quiet);
  typed.PutBack(session.form1);
  // A wavelength that is none has a message of its own.
  if (session.state.PulseValid != 0 || !IsWithin(typed.lambda, 0, longestWavelength)) return true;
  session.platform.Message("Pulse shape problem", "Select another pulse shape or higher cut-off");
  return false;
}

ResponseClock ClockOfInputs(const Session& session) {
  PulsedLight light = ReadPulsedLight(session);
  light.fromCentre = light.fromCentre || ChosenGraph(session.state).family == Family::PulseAnswer;
  return ClockOf(light, RadiusInUse(session), MediumIndexInUse(session));
}

TimeLimits TimesOfWindow(const Session& session) {
  const ResponseClock clock = ClockOfInputs(session);
  const double window = clock.Window();
  return clock.fromCentre ? TimeLimits{-window / 2, window / 2} : TimeLimits{0, window};
}

Sweep ReadTimes(const Session& session) {
  const Form1& form = session.form1;
  return TimeColumns(ClockOfInputs(session), Val(form.txtF9_min.Text), Val(form.txtF9_max.Text),
                     Val(form.txtF9_step.Text));
}

AxisRun ReadPulseAxis(const Session& session, const RunRequest& request) {
  PulsedLight light = ReadPulsedLight(session);
  light.fromCentre = true;
  light.correlated = false;  // pictures alone are correlated
  return WholeWindow(request, light, 0);
}

void AskImpulse(Session& session) {
  auto& form = session.form1;
  auto& dialog = session.forms.dlogImpulse;
  const bool quiet = session.state.RestoringSettings != 0;
  const PulsedLight before = ReadPulsedLight(session);
  const bool hadTimes = HasTimes(session);
  const TimesTyped typed(form);
  dialog.txtWavelength.Text = form.txtLambda.Text;
  ImpulseCalc(session, 0, quiet ? PulseVoice::Quiet : PulseVoice::Tell);
  if (!AskIn(session, dialog)) {
    form.txtLambda.Text = typed.lambda;
    ImpulseCalc(session, 0, PulseVoice::Quiet);
  } else if (!quiet) {
    form.txtLambda.Text = dialog.txtWavelength.Text;
    if (form.txtLambda.Text != typed.lambda) session.events.Raise("txtLambda_change");
    RaiseInputsChanged(session);
    if (const std::string shortOf = ShortWindowOfInputs(session); !shortOf.empty() && session.state.PulseValid != 0)
      session.platform.Message("Impulse response", shortOf);
  }
  // A range of times that was typed stays where the pulse does.
  const PulsedLight now = ReadPulsedLight(session);
  if (hadTimes && now.pulse == before.pulse && now.fromCentre == before.fromCentre) typed.PutBack(form);
}

void RemarkOnWindow(Session& session) {
  const auto& results = session.state.LastResults;
  const auto* map = results ? std::get_if<AngleMapRun>(&results->asked.run) : nullptr;
  if (map == nullptr || !map->pulse) return;
  const ResponseClock clock = ClockOf(*map->pulse, results->last.radius, results->last.indices.MediumInUse());
  const std::string words =
      ShortWindowWords(clock.Window(), WindowWanted(clock.diameterTime, results->last.relativeRe));
  if (!words.empty()) session.remark = {words, results};
}

void FollowWavelength(Session& session) {
  auto& dialog = session.forms.dlogImpulse;
  const std::string& lambda = session.form1.txtLambda.Text;
  if (!ChosenGraph(session.state).OfPulse() || !IsWithin(lambda, 0, longestWavelength)) return;
  const bool same = IsNumber(dialog.txtWavelength.Text) && Val(dialog.txtWavelength.Text) == Val(lambda);
  dialog.txtWavelength.Text = lambda;
  if (same) return;
  ImpulseCalc(session, 0, PulseVoice::Quiet);
}

void dlogImpulse_Change(Session& session) {
  ImpulseCalc(session, 0);
}

void dlogImpulse_Wavelength_Change(Session& session) {
  const std::string& text = session.forms.dlogImpulse.txtWavelength.Text;
  if (ChosenGraph(session.state).OfPulse() && IsWithin(text, 0, longestWavelength)) session.form1.txtLambda.Text = text;
  ImpulseCalc(session, 0);
}

void dlogImpulse_Spectrum_Click(Session& session) {
  ImpulseCalc(session, 0, PulseVoice::Quiet);
}

void dlogImpulse_OKButton_Click(Session& session) {
  ImpulseCalc(session, 1);
}

void dlogImpulse_cmdPrint_Click(Session& session) {
  const auto path =
      session.platform.SaveFileName({"Save the drawing of the pulse", "Pictures (*.png *.svg *.pdf)", "pulse.pdf"});
  if (!path || path->empty()) return;
  for (const Window& window : session.windows) {
    if (window.form != &session.forms.dlogImpulse) continue;
    if (const std::string failure = session.platform.SaveDrawing(window.page, *path); !failure.empty())
      session.platform.Message("Error", failure);
  }
}

void mnuImpulse_Click(Session& session) {
  Choose(session, "Impulse response");
}

void mnuImpulseQ_Click(Session& session) {
  Choose(session, "Qext/Qsca/Qabs impulse response");
}

}  // namespace lumivex
