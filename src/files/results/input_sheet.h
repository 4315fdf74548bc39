#pragma once

#include <string>
#include <vector>

#include "session/input_copy.h"

namespace lumivex {

/// A copy of a session's inputs to read a file into, or to write one from. What is done to it is nothing to the
/// session, so that a file that turns out to be bad halfway leaves no trace.
class InputSheet {
 public:
  explicit InputSheet(Session& session);
  Session& Inputs() { return copy_.Inputs(); }

  /// Chooses what stands in the lists and menus (graph, method, sizes, light, materials), as a user who answers each
  /// dialog with what stands in it, so that names and captions follow; the values stay.
  void Settle();

  /// What the inputs are held to before a run: empty, or what the user would be told.
  std::string Fault();

  /// What keeps inputs from being those of a page of the sheet's own: empty, or what no user could have done to them
  /// while the page stood there. They stand in the sheet then.
  std::string FaultOfShown(const InputState& shown);

  /// Writes the inputs, and the tables and names that stand behind them, into a session. Its results stay. A number of
  /// a dialog that the run did not need, and that is none, stays what it is in the session of the sheet.
  void PutInto(Session& session);

 private:
  /// A field of a dialog that holds a number.
  struct Number {
    TextInput* field;
    std::string present;  ///< as the session has it
  };
  /// Fields that hold numbers do so from the start.
  void NoteNumbers();

  InputCopy copy_;
  std::vector<Number> numbers_;
};

/// Chooses the graph whose name stands in cboGraph, with the ranges and scales that it brings and no file may tell.
/// Method and materials stay, and so does everything where it is the present graph.
void BeginWithGraph(Session& sheet, GraphCode code);

/// Keeps the names of the sphere and the medium as those that come back when a graph that varies an index is left.
void KeepNames(Session& session);

/// The menu entries of the materials of the sphere and of the medium.
std::vector<MenuEntry*> SphereSources(Form1& form);
std::vector<MenuEntry*> MediumSources(Form1& form);
/// Those of the light of several wavelengths.
std::vector<MenuEntry*> LightSources(Form1& form);
/// Those of what a size is typed as.
std::vector<MenuEntry*> SizeMeasures(Form1& form);
/// Ticks one of them alone.
void TickAlone(const std::vector<MenuEntry*>& entries, const MenuEntry& entry);

}  // namespace lumivex
