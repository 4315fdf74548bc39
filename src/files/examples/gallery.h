#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "record/session.h"

namespace lumivex {

/// A finished run, or several of which the later ones are drawn over the first, to look at and to go on from.
struct Example {
  std::string title;
  std::vector<std::string> files;  ///< paths of results files
  std::vector<std::string> lines;  ///< for each file after the first a menu entry of lines: "mnuRedLine"
  std::string look;                ///< in one sentence, what there is to see
};

/// The examples of a folder, in the order of its "Gallery.ini": none where there is no such file. One that names no
/// file is passed over, and so are more than the menu has room for.
std::vector<Example> ReadGallery(const std::string& folder);

/// Where the examples lie: in "examples" beside the program, or where they are installed; empty where they are not.
std::string FindGallery(const std::string& programFolder);

/// Puts the examples that are there into the menu File, Open example.
void ShowExamples(Session& session);

/// Opens the example of that place, from 0: its first results as File, Read results does, the others over them. What
/// there is to see then stands in the status line until there are other results.
void OpenExample(Session& session, std::size_t place);

template <std::size_t place>
void mnuExample_Click(Session& session) {
  OpenExample(session, place);
}

}  // namespace lumivex
