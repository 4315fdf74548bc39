#pragma once

#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/batch/batch_keywords.h"
#include "materials/files/import_text.h"

namespace lumivex {

/// Command files and lists as data. Both are read line by line, so that a file of any size may be named: of a line the
/// first 65536 characters are kept. Empty lines are passed over everywhere; blanks around a line do not count.

/// The three numbers of a step.
struct BatchSteps {
  double from = 0, to = 0, by = 0;

  /// Whether they come to an end.
  bool End() const;
  /// How many values there are: while they are not beyond `to` + `by`/2. 0 where there is none, as from 5 to 1 by 1.
  double Count() const;
  /// Value `step`, from 0, in single precision: from + step by, so that no error adds up.
  float At(double step) const;
};

/// Three finite numbers, parted by commas or blanks; nothing for anything else.
std::optional<BatchSteps> ReadBatchSteps(std::string_view line);

/// One command.
struct BatchCommand {
  enum class Kind {
    Keyword,
    End,      ///< "Stop", or the end of the file
    Unknown,  ///< a line that is no keyword, no number where one is needed, or no step
  };
  Kind kind = Kind::End;
  std::string line;  ///< an unknown one, as it stands in the file
  int lineNumber = 0;
  const BatchKeyword* keyword = nullptr;
  double number = 0;                        ///< of the line after the keyword, where it takes one
  const BatchStepName* stepName = nullptr;  ///< of a step
  BatchSteps steps;
};

/// The commands of a file, one after the other.
class BatchCommands {
 public:
  /// Reads the first line.
  explicit BatchCommands(std::istream& stream);
  /// What the first line says: 3403, 4100, 4200, or 0 for one that begins no command file.
  int Version() const { return version_; }
  /// Whether it begins a list of command files.
  bool IsList() const { return first_ == batchListLine; }
  BatchCommand Next();
  /// The next line that is not empty, as a list reads its entries; nothing at its end.
  std::optional<std::string> NextLine();

 private:
  BatchCommand Unknown(std::string line) const;

  ImportLines lines_;
  std::string first_;
  int version_ = 0;
};

/// The output of an entry of a list: its name with ".mut" in place of ".min"; nothing for a name without.
std::optional<std::string> BatchOutputOf(std::string_view commandFile);

/// Where the output of a command file stands unless another place is named: beside it, with ".mut" in place of ".min",
/// or after a name that ends otherwise.
std::string BatchOutputBeside(const std::string& commandFile);

/// A file of a list: where it stands, names being told from the folder of the list.
std::string BatchEntryPath(const std::string& listFile, const std::string& entry);

}  // namespace lumivex
