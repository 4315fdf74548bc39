#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "record/controls.h"

namespace lumivex {

/// A part of the guide: a heading and what stands under it, down to the next heading.
struct HelpTopic {
  std::string file;   ///< name of its page, without folder
  int level = 1;      ///< of the heading, 1 the page's own
  std::string title;  ///< without marks
  int number = 0;     ///< of the heading on its page, from 0
  std::string text;   ///< without pictures, marks and targets of links
};

/// The parts of a page that is written in Markdown. Lines before its first heading are no part.
std::vector<HelpTopic> TopicsOf(std::string_view markdown, const std::string& file);

/// The name of a heading in links: in small letters, blanks as hyphens, other signs left out.
std::string AnchorOf(std::string_view title);

/// The topics that have all words, in any case, by their beginnings ("polar" finds "polarised"): those whose title has
/// them first, then those that have them most often for their length. Places in `topics`.
std::vector<std::size_t> SearchTopics(const std::vector<HelpTopic>& topics, std::string_view words);

/// The topic of something with a name on the screen, a method or a graph ("Qext/Qsca/Qabs v. diameter"): the title that
/// is its name, or else that of the same quantity against something else. The number of topics where there is none.
std::size_t TopicNamed(const std::vector<HelpTopic>& topics, std::string_view name);

/// The topic of a name, or else the first one that a search for its words finds, or for as many of the first of them as
/// are found together; 0, the start, where none is.
std::size_t TopicFor(const std::vector<HelpTopic>& topics, std::string_view name);

/// What a control is looked up by: lists of methods and graphs by what is chosen, other inputs of the panel by the
/// title that tells of them, those of dialogs by their label, the rest by their caption.
std::string HelpNameOf(const Control& control);

}  // namespace lumivex
