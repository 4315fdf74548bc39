#pragma once

#include <memory>
#include <string>

#include "record/session.h"

namespace lumivex {

/// The last results as Replot shows them: a Lee diagram of single radii with the size distribution folded in, where one
/// is chosen; otherwise the results themselves. They are kept beside the last results (FoldedResults), which stay those
/// of single sizes. A distribution that is of
/// no use is told, and the results are shown as they are; so are those of a Lee diagram of the refractive index, where
/// there are no neighbouring radii.
std::shared_ptr<const Results> WithSizesFolded(Session& session);

/// Leaves the last results alone: nothing is folded in.
void TakeSizesOut(MainFormState& s);

/// What the status line says of the sizes that were folded: the share of particles that was left out; or that they
/// cannot be. Empty without a distribution. There must be results.
std::string FoldWords(const Session& session);

}  // namespace lumivex
