#pragma once

#include <span>
#include <string_view>

namespace lumivex {

/// What a keyword of a command file does. All of them are rows of one table: a further keyword is a further row.
enum class BatchAction {
  ChooseMethod,  ///< of cboType, by its text
  ChooseGraph,   ///< of cboGraph, by its text
  Click,         ///< a menu entry or option
  Pick,          ///< an item of a list, by its text
  Type,          ///< the number into an input or a list
  TypeSize,      ///< the number into txtRadius, after the menu entry that tells what it means
  TypeSamples,   ///< the number into cboN, where it is one of those offered
  Step,          ///< what the next run steps through
  Run,
  Stop,
};

/// One keyword, in one of its spellings: no other spelling is accepted.
struct BatchKeyword {
  std::string_view text;
  BatchAction action;
  std::string_view control = {};  ///< "txtLambda", "dlogGaussianBeam.txtBeamXF"
  std::string_view item = {};     ///< the text to be chosen, where it is another than the keyword's

  /// Whether a line with a number follows.
  bool TakesNumber() const {
    return action == BatchAction::Type || action == BatchAction::TypeSize || action == BatchAction::TypeSamples;
  }
};

std::span<const BatchKeyword> BatchKeywords();

/// The keyword of that spelling; null for any other text.
const BatchKeyword* FindBatchKeyword(std::string_view text);

/// A parameter that a run can step through: one of the spellings of its keyword.
struct BatchStepName {
  std::string_view text;
  std::string_view control;
  std::string_view sizeKind = {};  ///< the menu entry that says what the size means
  int decimals = -1;               ///< to which values are rounded; negative: not at all
};

/// The parameter of that name; null for any other text.
const BatchStepName* FindBatchStepName(std::string_view text);

/// The version that the first line of a command file tells: 3403, 4100 or 4200; 0 for any other line.
int BatchVersionOf(std::string_view firstLine);

/// The first line of a list of command files.
inline constexpr std::string_view batchListLine = "FileNames";

/// Whether a line ends the commands, or a list.
bool EndsBatch(std::string_view line);

}  // namespace lumivex
