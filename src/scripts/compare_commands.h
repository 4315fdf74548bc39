#pragma once

#include <string>
#include <string_view>

#include "record/session.h"

namespace lumivex {

/// What a script line about curves comes to: something to print, a table as CSV, or why it cannot be carried out.
struct CompareAnswer {
  std::string failure;
  std::string table;
};

/// "curve N name TEXT", "curve N hide", "show", "keep", "drop", "remove", "colour #RRGGBB" and "colour own". Curves are
/// numbered as `curves` lists them, from 1.
CompareAnswer CurveCommand(Session& session, std::string_view rest);

/// The curves of the page: number, name, whether it is shown, whether it is kept, colour, and of data how they fit.
CompareAnswer CurvesCommand(Session& session, std::string_view rest);

/// "below difference N M", "below ratio N M": two curves; "below difference", "below ratio", "below nothing".
CompareAnswer BelowCommand(Session& session, std::string_view rest);

/// "data FILE [x=1] [y=2] [error=3] [name=TEXT]" reads measured data; "data N factor 2.5", "data N fit" and
/// "data N against M" with the numbers of `curves`.
CompareAnswer DataCommand(Session& session, std::string_view rest);

/// "mark X Y" in surface units; "marker N delete"; "markers" prints them and "markers clear" forgets them.
CompareAnswer MarkCommand(Session& session, std::string_view rest);
CompareAnswer MarkerCommand(Session& session, std::string_view rest);
CompareAnswer MarkersCommand(Session& session, std::string_view rest);

/// "key X Y", as parts of the width and height of the plot; "key below".
CompareAnswer KeyCommand(Session& session, std::string_view rest);

}  // namespace lumivex
