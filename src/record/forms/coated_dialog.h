#pragma once

#include "record/form.h"

namespace lumivex {

/// A sphere with a core and one coating, and the ways through it whose Debye terms are added.
struct DlogCoatedSphere final : Form {
  DlogCoatedSphere();

  static constexpr auto list = SelectionList::Style::Fixed;

  Label lblCoreRadius{*this, "lblCoreRadius", "Radius of core"};
  TextInput txtCoreRadius{*this, "txtCoreRadius", "7.5", "Radius of the core in micrometres"};
  Label lblMantleRadius{*this, "lblMantleRadius", "Overall radius of sphere"};
  TextInput txtMantleRadius{*this, "txtMantleRadius", "10", "Radius of the whole sphere in micrometres"};

  Label lblRIcore{*this, "lblRIcore", "Core: material, n"};
  SelectionList cboRIcore{*this, "cboRIcore", list, "Fixed", "Material of the core"};
  TextInput txtRIcore{*this, "txtRIcore", "1.5", "Refractive index of the core"};
  Label lblRIshell{*this, "lblRIshell", "Coating: material, n"};
  SelectionList cboRIshell{*this, "cboRIshell", list, "Fixed", "Material of the coating"};
  TextInput txtRIshell{*this, "txtRIshell", "1.3333", "Refractive index of the coating"};
  Label lblRImedium{*this, "lblRImedium", "Medium: material, n"};
  SelectionList cboRImedium{*this, "cboRImedium", list, "Vacuum", "Material around the sphere"};
  TextInput txtRImedium{*this, "txtRImedium", "1", "Refractive index of the medium"};

  Frame frmVariation{*this, "frmVariation", "Variation of radius"};
  OptionButton optFixedCore{*this,  "optFixedCore",
                            "size", "Fixed core, variable coating",
                            true,   "The sizes of a cloud are those of the whole spheres, about one core"};
  OptionButton optFixedRatio{*this,  "optFixedRatio",
                             "size", "Fixed ratio of core/coating",
                             false,  "The sizes of a cloud are those of the whole spheres, with cores in proportion"};
  OptionButton optFixedShell{*this,  "optFixedShell",
                             "size", "Variable core, fixed coating",
                             false,  "The sizes of a cloud are those of the cores, in coatings of the same depth"};

  CheckBox chkDebye{*this, "chkDebye", "Debye?", false, "Add the light of selected ways through the sphere alone"};
  Frame frmRecursion{*this, "frmRecursion", "Recursion type"};
  OptionButton optCoatMie{*this,     "optCoatMie", "recursion",
                          "Upwards", false,        "Debye terms by upward recursion: for little absorption"};
  OptionButton optCoatMie2{*this,       "optCoatMie2", "recursion",
                           "Downwards", false,         "Debye terms by downward recursion, whatever the absorption"};
  OptionButton optAuto{*this,       "optAuto", "recursion",
                       "Automatic", true,      "Upward where little is absorbed, otherwise downward"};

  Frame Frame2{*this, "Frame2", "Ray paths"};
  OptionButton optPQ{*this,     "optPQ", "paths",
                     "P and Q", false,   "Ways by their order at the outer surface and at the core"};
  Label lblP{*this, "lblP", "P, Q"};
  SelectionList cboP{*this, "cboP", list, "1", "Order P at the outer surface: 0 does not enter"};
  SelectionList cboQ{*this, "cboQ", list, "1", "Order Q at the core: 0 is turned back by it, 1 passes through"};
  OptionButton optPQR{*this, "optPQR", "paths", "p q  r", false, "Ways by their reflections, one after the other"};
  Label lblRays{*this, "lblRays", "Reflections"};
  SelectionList cboRays{*this, "cboRays", list, "p1r1",
                        "Letter and number: p at the outside of the core, q within it, r at the outer surface"};
  OptionButton optRAB{*this,     "optRAB", "paths",
                      "N, A, B", true,     "Ways by their numbers of reflections and of chords in coating and core"};
  Label lblRAB{*this, "lblRAB", "N, A, B"};
  SelectionList cboR{*this, "cboR", list, "2", "N: internal reflections"};
  SelectionList cboA{*this, "cboA", list, "4", "A: chords in the coating, an even number"};
  SelectionList cboB{*this, "cboB", list, "3", "B: chords in the core"};
  Label lblPath{*this, "lblPath", "Path, number of ways"};
  SelectionList cboRAB{*this, "cboRAB", list, "2-4-3", "Use this drop-down box to select the ray path"};
  TextInput txtDegen{*this, "txtDegen", "2", "Ways in different order that have these numbers"};
  CheckBox chkMult{*this, "chkMult", "Mult?", false, "All ways with N internal reflections from a lowest to a highest"};
  Label lblMult{*this, "lblMult", "N from, to"};
  SelectionList cboMin{*this, "cboMin", list, "0", "Lowest number N of internal reflections"};
  SelectionList cboMax{*this, "cboMax", list, "12", "Highest number N of internal reflections"};
  CheckBox chkDegeneracy{*this, "chkDegeneracy", "Degeneracy?", true,
                         "Count a way as often as there are orders of its reflections"};
};

}  // namespace lumivex
