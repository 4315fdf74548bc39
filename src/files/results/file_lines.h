#pragma once

#include <cstdint>
#include <istream>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "files/results/file_text.h"

namespace lumivex {

/// What a results file does not hold as its layout has it, in words for the user.
struct BadFile {
  std::string text;
  std::string title = "File error";
};

/// The lines of a results file, as one description of its layout walks them: what is written when a run is saved is
/// read into when a file is read, so that the two cannot drift apart.
///
/// A text stands alone on its line. Numbers are parted by blanks (in zones of 14 columns), with a leading blank in the
/// place of a sign; reading takes commas, tabs and any number of blanks. Text is in Latin-1 as far as that holds it, a
/// line that it does not hold in UTF-8. From `Exactly` on text is UTF-8 and numbers are the shortest that read back as
/// the same bits.
class FileLines {
 public:
  virtual ~FileLines() = default;
  virtual bool Reading() const = 0;
  /// A text that fills a line.
  virtual void Text(std::string& text) = 0;
  /// A line of so many numbers, up to 15 digits each.
  virtual void Numbers(std::span<double> row) = 0;
  /// The same in single precision.
  virtual void Singles(std::span<float> row) = 0;
  /// A line that stands there or not. @param there  to be written: whether it does. @return whether it does.
  virtual bool Word(std::string_view word, bool there) = 0;
  /// From here on all digits and UTF-8.
  virtual void Exactly() = 0;
  /// From here on fields that are not known are passed over, each with the numbers in the lines after it: the lines up
  /// to the name that is asked for.
  virtual void PassOverUnknown() = 0;
  /// Whether the numbers that follow may be missing: not calculated before a Stop.
  virtual void MayMiss(bool missing) = 0;

  void Number(double& value) { Numbers({&value, 1}); }
  /// A whole number in a range.
  void Whole(int& value, int lowest, int highest);
  /// Refuses the line that was read last.
  [[noreturn]] virtual void Refuse(std::string_view why) const;

  // Fields by name, which the layout of our own block is made of. A name that is missing refuses the file.
  void Field(std::string_view name, double& value);
  void Field(std::string_view name, float& value);
  void Field(std::string_view name, int& value);
  void Field(std::string_view name, bool& value);
  void Field(std::string_view name, std::string& value);
  /// Lists with their number of elements, at most `mostFieldElements`.
  void Field(std::string_view name, std::vector<double>& list);
  void Field(std::string_view name, std::vector<float>& list);
  void Field(std::string_view name, std::vector<std::uint16_t>& list);

 protected:
  /// A line of the name and a value after it.
  virtual void Named(std::string_view name, std::string& value) = 0;

 private:
  template <class Value>
  void List(std::string_view name, std::vector<Value>& list);
};

/// As many as the cells of the largest map.
inline constexpr int mostFieldElements = 41'000'000;

/// Longest line of a results file.
inline constexpr std::size_t longestFileLine = 4096;

/// Lines that are written into a text.
class WrittenLines final : public FileLines {
 public:
  bool Reading() const override { return false; }
  void Text(std::string& text) override;
  void Numbers(std::span<double> row) override;
  void Singles(std::span<float> row) override;
  bool Word(std::string_view word, bool there) override;
  void Exactly() override { exact_ = true; }
  void PassOverUnknown() override {}
  void MayMiss(bool) override {}
  std::string Take() { return std::move(content_); }

 private:
  void Named(std::string_view name, std::string& value) override;

  std::string content_;
  bool exact_ = false;
};

/// Lines that are read from a stream, one at a time: neither a long line nor a large file fills the memory.
class ReadLines final : public FileLines {
 public:
  explicit ReadLines(std::istream& stream);
  bool Reading() const override { return true; }
  void Text(std::string& text) override;
  void Numbers(std::span<double> row) override;
  void Singles(std::span<float> row) override;
  bool Word(std::string_view word, bool there) override;
  void Exactly() override {}
  void PassOverUnknown() override { passesOver_ = true; }
  void MayMiss(bool missing) override { missing_ = missing ? Missing::Allowed : Missing::Refused; }
  [[noreturn]] void Refuse(std::string_view why) const override;

  /// The next line without taking it; nothing at the end of the file.
  std::optional<std::string_view> Peek();
  /// Refuses the file where it goes on after this.
  void End();

 private:
  void Named(std::string_view name, std::string& value) override;
  std::string_view Take();
  std::string_view Find();
  template <class Value>
  void Row(std::span<Value> row);

  std::istream& stream_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0, end_ = 0;
  std::string_view peeked_;
  bool isPeeked_ = false, atEnd_ = false, passesOver_ = false;
  Missing missing_ = Missing::Refused;
  int line_ = 0;  ///< of the line taken last, from 1
};

}  // namespace lumivex
