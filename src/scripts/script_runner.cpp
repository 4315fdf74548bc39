#include "scripts/script_runner.h"

#include <istream>
#include <ostream>
#include <sstream>
#include <vector>

#include "files/file_events.h"
#include "files/open_file.h"
#include "files/results/save_data.h"
#include "materials/files/readable_text.h"
#include "pages/read_out.h"
#include "record/number_text.h"
#include "record/text_file.h"
#include "scripts/compare_commands.h"
#include "scripts/script_commands.h"
#include "scripts/script_line.h"
#include "session/checks/number_input.h"
#include "session/impulse/impulse_plot.h"
#include "session/simulation/simulation_events.h"
#include "session/start_up.h"
#include "session/undo.h"
#include "session/user_actions.h"
#include "session/window_events.h"

namespace lumivex {

namespace {

constexpr double unitsPerPixel = 15;

struct PixelSize {
  int width = 0, height = 0;
};

std::optional<PixelSize> ReadSize(std::string_view text) {
  const auto times = text.find_first_of("xX");
  if (times == std::string_view::npos) return std::nullopt;
  const std::string_view width = text.substr(0, times), height = text.substr(times + 1);
  if (!IsNumber(width) || !IsNumber(height)) return std::nullopt;
  const PixelSize size{ToWhole(Val(width)), ToWhole(Val(height))};
  constexpr int largest = 20000;
  if (size.width < 1 || size.height < 1 || size.width > largest || size.height > largest) return std::nullopt;
  return size;
}

bool ReadsAsOn(std::string_view text) {
  return SameName(text, "true") || SameName(text, "on") || Val(text) != 0;
}

/// Sets a field of an open dialog as a user would: a text that a list holds is picked from it.
void SetField(Session& session, Control& control, const std::string& text) {
  const bool list = control.Kind() == ControlKind::SelectionList;
  if (list && static_cast<SelectionList&>(control).Holds(text)) {
    UserChooses(session, static_cast<SelectionList&>(control), text);
  } else if (TextOf(control) != nullptr) {
    UserTypes(session, control, text);
  } else if (control.Value().checked != ReadsAsOn(text)) {
    UserClicks(session, control);
  }
}

}  // namespace

/// The commands, one function each; `rest` is the line after the command's name.
struct ScriptCommands {
  using Failure = ScriptRunner::Failure;

  static Control& Named(ScriptRunner& run, const std::string& name) {
    Control* control = FindControl(run.Current(), name);
    if (control == nullptr) throw Failure{"there is no control " + Readable(name)};
    return *control;
  }

  static void Set(ScriptRunner& run, std::string_view rest) {
    const std::string name = TakeWord(rest);
    Control& control = Named(run, name);
    std::string* text = TextOf(control);
    const bool list = control.Kind() == ControlKind::SelectionList;
    if (text == nullptr || (list && !static_cast<SelectionList&>(control).Editable))
      throw Failure{name + " takes no text"};
    if (!control.Enabled) throw Failure{name + " is disabled"};
    if (control.Visible) {
      UserTypes(run.Current(), control, rest);
      return;
    }
    // No run reads what is hidden: the results stay those of the inputs that can be seen.
    auto& replot = run.Current().form1.cmdReplot.Enabled;
    const bool offered = replot;
    control.Visible = true;
    UserTypes(run.Current(), control, rest);
    control.Visible = false;
    replot = offered;
  }

  static void Choose(ScriptRunner& run, std::string_view rest) {
    const std::string name = TakeWord(rest);
    Control& control = Named(run, name);
    if (control.Kind() != ControlKind::SelectionList) throw Failure{name + " is no list"};
    auto& list = static_cast<SelectionList&>(control);
    if (!ListTakes(list, rest)) throw Failure{name + " does not offer " + Readable(rest)};
    if (!UserChooses(run.Current(), list, rest)) throw Failure{name + " is disabled or hidden"};
  }

  static void Click(ScriptRunner& run, std::string_view rest) {
    const std::string name = TakeWord(rest);
    Control& control = Named(run, name);
    const auto kind = control.Kind();
    if (kind != ControlKind::CommandButton && kind != ControlKind::MenuEntry && kind != ControlKind::OptionButton &&
        kind != ControlKind::CheckBox)
      throw Failure{name + " cannot be clicked"};
    if (!UserClicks(run.Current(), control)) throw Failure{name + " is disabled or hidden"};
  }

  static void Dialog(ScriptRunner& run, std::string_view rest) {
    ScriptedPlatform::DialogAnswer answer;
    answer.form = TakeWord(rest);
    if (run.Current().forms.Find(answer.form) == nullptr) throw Failure{"there is no dialog " + Readable(answer.form)};
    const std::string verdict = TakeWord(rest);
    if (verdict != "ok" && verdict != "cancel") throw Failure{"a dialog is answered ok or cancel"};
    answer.ok = verdict == "ok";
    while (!rest.empty()) {
      const std::string word = TakeWord(rest);
      const auto equals = word.find('=');
      if (equals != std::string::npos && FindControl(run.Current(), answer.form + "." + word.substr(0, equals))) {
        answer.fields.emplace_back(word.substr(0, equals), word.substr(equals + 1));
      } else if (!answer.fields.empty() && equals == std::string::npos) {
        answer.fields.back().second += " " + word;
      } else {
        throw Failure{"there is no field " + Readable(word)};
      }
    }
    run.platform_.dialogs.push_back(std::move(answer));
  }

  static void Answer(ScriptRunner& run, std::string_view rest) {
    if (rest != "yes" && rest != "no") throw Failure{"a question is answered yes or no"};
    run.platform_.answers.push_back(rest == "yes");
  }

  static void OpenPath(ScriptRunner& run, std::string_view rest) { run.platform_.openPaths.push_back(PathIn(rest)); }

  static void SavePath(ScriptRunner& run, std::string_view rest) { run.platform_.savePaths.push_back(PathIn(rest)); }

  static void Load(ScriptRunner& run, std::string_view rest) {
    const std::string path = PathIn(rest);
    if (path.empty()) throw Failure{"load needs the name of a file"};
    if (!OpenFile(run.Current(), path)) throw Failure{ReadablePath(path) + " was not read"};
  }

  static void SaveResults(ScriptRunner& run, std::string_view rest) {
    const std::string path = PathIn(rest);
    if (path.empty()) throw Failure{"save-results needs the name of a file"};
    std::string nothing;
    const std::string text = ResultsText(run.Current(), nothing);
    if (!nothing.empty()) throw Failure{nothing};
    run.Write(path, text);
  }

  static void Get(ScriptRunner& run, std::string_view rest) {
    const auto value = ReadValue(run.Current(), rest);
    if (!value) throw Failure{"there is nothing named " + Readable(rest)};
    run.printer_.Value(rest, *value);
  }

  static void Table(ScriptRunner& run, std::string_view rest) {
    run.Print(PathIn(rest), CurveTable(run.Current()), [&](const auto& csv) { run.printer_.Table(csv); });
  }

  static void Amplitudes(ScriptRunner& run, std::string_view rest) {
    run.Print(PathIn(rest), AmplitudeRows(run.Current()), [&](const auto& csv) { run.printer_.Table(csv); });
  }

  static void Array(ScriptRunner& run, std::string_view rest) {
    const std::string name = TakeWord(rest);
    const auto rows = ArrayRows(run.Current(), name);
    if (!rows) throw Failure{"there is no array " + Readable(name)};
    run.Print(PathIn(rest), *rows, [&](const auto& csv) { run.printer_.Array(name, csv); });
  }

  static void Drawing(ScriptRunner& run, std::string_view rest) {
    run.Print(PathIn(rest), DrawingLines(*run.chosen_), [&](const auto& lines) { run.printer_.Lines(lines); });
  }

  static void ChooseWindow(ScriptRunner& run, std::string_view rest) {
    Window* window = FindWindow(run.Current(), rest);
    if (window == nullptr) throw Failure{"there is no window " + Readable(rest)};
    run.chosen_ = window;
  }

  /// Events of the drawing are the main window's.
  static bool IsMain(const ScriptRunner& run) { return run.chosen_ == &run.open_->Get().windows.front(); }

  static void Mouse(ScriptRunner& run, std::string_view rest) {
    const std::string x = TakeWord(rest);
    if (!IsNumber(x) || !IsNumber(rest)) throw Failure{"mouse takes X and Y in surface units"};
    if (IsMain(run)) Form_MouseDown(run.Current(), Val(x), Val(rest));
    if (run.chosen_->form == &run.Current().forms.impulsePlot) InversePlot(run.Current(), Val(x), Val(rest));
    if (run.chosen_->page.photograph) picture1_mousedown(run.Current(), Val(x), Val(rest));
  }

  static void Read(ScriptRunner& run, std::string_view rest) {
    const std::string x = TakeWord(rest);
    if (!IsNumber(x) || !IsNumber(rest)) throw Failure{"read takes X and Y in surface units"};
    const auto reading = ReadAt(run.chosen_->page, Val(x), Val(rest));
    run.printer_.Lines((reading ? reading->text : "nothing") + "\n");
  }

  static void Size(ScriptRunner& run, std::string_view rest) {
    const auto size = ReadSize(rest);
    if (!size) throw Failure{"a size reads WIDTHxHEIGHT"};
    if (run.window_.resize) {
      run.window_.resize(*run.chosen_->form, size->width, size->height);
    } else if (IsMain(run)) {
      run.recording_.Resize(size->width * unitsPerPixel, size->height * unitsPerPixel);
      Form_Resize(run.Current());
    }
  }

  static void StopAt(ScriptRunner& run, std::string_view rest) {
    if (!IsNumber(rest)) throw Failure{"stop-at takes a percentage"};
    run.stopAt_ = Val(rest);
    // How far several threads come until then is a matter of chance.
    run.platform_.threads = 1;
  }

  static void Reset(ScriptRunner& run, std::string_view) {
    run.Open();
    run.Start();
  }

  static void Messages(ScriptRunner& run, std::string_view) {
    std::vector<std::pair<std::string, std::string>> messages;
    for (const auto& message : run.platform_.messages) messages.emplace_back(message.title, message.text);
    run.printer_.Messages(messages);
  }

  static void Picture(ScriptRunner& run, std::string_view rest) {
    if (!run.window_.picture) throw Failure{"pictures need a window: lumivex --script"};
    if (run.chosen_->page.photograph) {
      const std::string file = PathIn(rest);
      if (file.empty()) throw Failure{"picture needs the name of a file"};
      return run.Written(run.platform_.SavePhotograph(run.chosen_->page, run.Current().simulation.notes, file));
    }
    PixelSize size;
    const auto last = rest.find_last_of(" \t");
    if (const auto given = ReadSize(last == rest.npos ? rest : rest.substr(last + 1))) {
      size = *given;
      rest = last == rest.npos ? std::string_view() : Trim(rest.substr(0, last));
    }
    const std::string path = PathIn(rest);
    if (path.empty()) throw Failure{"picture needs the name of a file"};
    run.Written(run.window_.picture(*run.chosen_->form, path, size.width, size.height));
  }

  /// Commands about curves, measured data and marks.
  template <CompareAnswer (*Command)(Session&, std::string_view)>
  static void Compare(ScriptRunner& run, std::string_view rest) {
    const CompareAnswer answer = Command(run.Current(), rest);
    if (!answer.failure.empty()) throw Failure{answer.failure};
    if (!answer.table.empty()) run.printer_.Table(answer.table);
  }

  static void Screenshot(ScriptRunner& run, std::string_view rest) {
    if (!run.window_.screenshot) throw Failure{"screenshots need a window: lumivex --script"};
    const std::string path = PathIn(rest);
    if (path.empty()) throw Failure{"screenshot needs the name of a file"};
    run.Written(run.window_.screenshot(*run.chosen_->form, path));
  }
};

namespace {

struct CommandRow {
  std::string_view name;
  void (*run)(ScriptRunner&, std::string_view rest);
};

constexpr CommandRow commandRows[] = {
    {"set", ScriptCommands::Set},
    {"choose", ScriptCommands::Choose},
    {"click", ScriptCommands::Click},
    {"dialog", ScriptCommands::Dialog},
    {"answer", ScriptCommands::Answer},
    {"open", ScriptCommands::OpenPath},
    {"save", ScriptCommands::SavePath},
    {"get", ScriptCommands::Get},
    {"table", ScriptCommands::Table},
    {"amplitudes", ScriptCommands::Amplitudes},
    {"array", ScriptCommands::Array},
    {"window", ScriptCommands::ChooseWindow},
    {"drawing", ScriptCommands::Drawing},
    {"mouse", ScriptCommands::Mouse},
    {"size", ScriptCommands::Size},
    {"stop-at", ScriptCommands::StopAt},
    {"load", ScriptCommands::Load},
    {"save-results", ScriptCommands::SaveResults},
    {"reset", ScriptCommands::Reset},
    {"messages", ScriptCommands::Messages},
    {"picture", ScriptCommands::Picture},
    {"screenshot", ScriptCommands::Screenshot},
    {"read", ScriptCommands::Read},
    {"curve", ScriptCommands::Compare<CurveCommand>},
    {"curves", ScriptCommands::Compare<CurvesCommand>},
    {"below", ScriptCommands::Compare<BelowCommand>},
    {"data", ScriptCommands::Compare<DataCommand>},
    {"mark", ScriptCommands::Compare<MarkCommand>},
    {"marker", ScriptCommands::Compare<MarkerCommand>},
    {"markers", ScriptCommands::Compare<MarkersCommand>},
    {"key", ScriptCommands::Compare<KeyCommand>},
};

}  // namespace

ScriptRunner::ScriptRunner(std::ostream& output, std::ostream& errors)
    : output_(output),
      printer_(output),
      errors_(errors),
      platform_(&errors),
      recording_(ScreenSize{}.widthPx * unitsPerPixel, ScreenSize{}.heightPx * unitsPerPixel),
      surface_(&recording_) {
  platform_.onYield = [this] { WatchForStop(); };
  platform_.whileOpen = [this](Form& form) { return std::make_shared<DialogScope>(Current(), form); };
  platform_.confirm = [this](Form& form) { Current().events.Raise(std::string(form.Name()) + ".OKButton_Click"); };
  platform_.setField = [this](Form& form, const std::string& field, const std::string& text) {
    if (Control* control = form.Find(field)) SetField(Current(), *control, text);
  };
  Open();
}

void ScriptRunner::UseWindow(DrawingSurface& surface, ScriptWindow window) {
  surface_ = &surface;
  window_ = std::move(window);
  platform_.savePicture = [this](std::string_view path) { return window_.picture(Current().form1, path, 0, 0); };
  Open();
}

void ScriptRunner::Open() {
  stopAt_ = -1;
  platform_.threads = 0;
  platform_.answers.clear();
  platform_.dialogs.clear();
  platform_.openPaths.clear();
  platform_.savePaths.clear();
  open_ = std::make_unique<OpenSession>(platform_, *surface_);
  AddFileEvents(*open_);
  chosen_ = &open_->Get().windows.front();
  if (window_.reset) window_.reset(open_->Get());
}

void ScriptRunner::Start() {
  Form_Load(Current());
}

void ScriptRunner::WatchForStop() {
  if (stopAt_ < 0 || Current().state.ProgressPercent < stopAt_) return;
  stopAt_ = -1;
  platform_.threads = 0;
  Current().events.Raise("cmdStop_Click");
}

void ScriptRunner::Written(const std::string& failure) {
  if (!failure.empty()) throw Failure{failure, outputLost};
}

void ScriptRunner::Write(const std::string& path, const std::string& content) {
  Written(WriteWholeFile(path, content));
}

template <class Printing>
void ScriptRunner::Print(const std::string& path, const std::string& content, Printing printed) {
  if (path.empty()) {
    printed(content);
  } else {
    Write(path, content);
  }
}

void ScriptRunner::Execute(int number, const std::string& line) {
  std::string_view rest = Trim(WithoutComment(line));
  if (rest.empty()) return;
  const std::string name = TakeWord(rest);
  printer_.Begin(number, name);
  for (const auto& row : commandRows)
    if (row.name == name) return row.run(*this, rest);
  throw Failure{"unknown command " + Readable(name)};
}

int ScriptRunner::Run(std::istream& script) {
  std::string line;
  for (int number = 1; std::getline(script, line); ++number) {
    if (platform_.quit) break;
    if (number == 1 && line.starts_with("\xEF\xBB\xBF")) line.erase(0, 3);
    try {
      Execute(number, line);
    } catch (const Failure& failure) {
      printer_.Failure(failure.what);
      output_.flush();
      errors_ << "line " << number << ": " << failure.what << std::endl;
      return failure.code;
    }
  }
  output_.flush();
  if (!script.bad()) return ok;
  errors_ << "the script could not be read to its end" << std::endl;
  return scriptError;
}

}  // namespace lumivex
