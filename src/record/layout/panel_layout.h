#pragma once

#include <array>
#include <span>
#include <string_view>

namespace lumivex {

/// A line of a frame or dialog: the names of up to ten controls, from left to right ("" where there are fewer). A
/// control that is not Visible gives up its place, a line without visible controls vanishes.
struct LayoutLine {
  std::array<std::string_view, 10> controls{};
};

/// A frame of the input panel and its lines from the top.
struct FrameLayout {
  std::string_view frame;  ///< name of the Frame; "" for lines without a frame around them
  int column = 0;          ///< from the left; frames of one column stand below each other
  std::span<const LayoutLine> lines;
  int fieldChars = 8;      ///< digits that the inputs behind a label have room for
  bool longTitle = false;  ///< the title may take two lines
};

/// The input panel of the main window.
std::span<const FrameLayout> MainPanel();

/// A dialog's lines, under its Form's caption; OK and Cancel follow by themselves.
struct DialogLayout {
  std::string_view form;
  std::span<const LayoutLine> lines;
};

std::span<const DialogLayout> Dialogs();

}  // namespace lumivex
