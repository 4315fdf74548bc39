#pragma once

#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "catalogue/graph.h"
#include "catalogue/method.h"
#include "record/colour.h"
#include "record/comparison.h"
#include "record/form.h"
#include "record/groups/material_state.h"

namespace lumivex {

struct Results;

/// Fields of the record that an accepted dialog, or a menu, sets from what it finds.
struct DialogSettings {
  float spectrumMin = 0, spectrumMax = 0;
  double blackBodyTemp = 0, incidentDensity = 0, distance = 0;
  int indexUserEdited = 0, sphereIndexTyped = 0, sphereIndexVaries = 0, mediumIndexTyped = 0, catalogueIndex = 0;
  Colour pickedLineColour;
  double barReference = 0;
  int barReferencePerWaveNumber = 0;
  int barReferenceWeighted = 0;
  double mapReference = 0, mapReferenceThird = 0;
  int mapReferenceKind = 0;
  SellmeierChoice sellmeier;
  LayerLabels layers;
  int timePlotRays = 0, timePlotWaves = 0;
  bool operator==(const DialogSettings&) const = default;
};

/// What the user had set on every form, and the codes, names and settings that follow from it.
struct InputState {
  std::vector<FormSnapshot> forms;
  GraphCode graph;
  Method method = Method::Mie;
  std::string sphereName, mediumName;
  std::vector<std::string> captions;  ///< of the main window's labels and frames, in their order
  DialogSettings settings;
  Comparison comparison;
  /// The results that Replot was offered for: while they are the last ones, it is offered with these inputs again.
  /// Two states of the same inputs are the same, whatever was calculated.
  std::weak_ptr<const Results> replots;

  auto Inputs() const { return std::tie(forms, graph, method, sphereName, mediumName, captions, settings, comparison); }
  bool operator==(const InputState& other) const { return Inputs() == other.Inputs(); }
};

/// A dialog that is open: its states before each of the user's actions in it, and those that were undone.
struct DialogHistory {
  Form* form = nullptr;
  std::vector<FormSnapshot> past, future;
  std::string typedInto;
};

/// States of the inputs before each action of the user, oldest first, and those that were undone.
struct UndoHistory {
  std::vector<InputState> past, future;
  std::string typedInto;  ///< control of the last action where that was typing; typing on merges with it
  bool held = false;      ///< while states are restored nothing is recorded
  int acting = 0;         ///< recorded actions whose events are running: a dialog that they open belongs to them
  std::vector<DialogHistory> open;  ///< dialogs on the screen, the innermost last
};

}  // namespace lumivex
