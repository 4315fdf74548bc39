#pragma once

#include "record/forms/main_form_menus.h"

namespace lumivex {

/// The main window: menu bar, input panel, graph.
struct Form1 final : Form1Menus {};

}  // namespace lumivex
