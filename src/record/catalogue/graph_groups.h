#pragma once

#include <string_view>

namespace lumivex {

/// What a graph shows, in the words over its group in a list of graphs; empty for a text that is none.
std::string_view GroupOfGraph(std::string_view text);

}  // namespace lumivex
