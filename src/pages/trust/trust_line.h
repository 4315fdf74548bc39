#pragma once

#include <string>
#include <vector>

#include "runs/results.h"

namespace lumivex {

/// One thing that says how far the numbers of a run can be trusted.
struct TrustMark {
  enum class Standing {
    Told,      ///< a number to judge by
    Good,      ///< within its range
    Doubtful,  ///< at its edge
    Outside,   ///< beyond it
  };
  Standing standing = Standing::Told;
  std::string text;  ///< a few words
  std::string why;   ///< in a sentence or two, with the limits that it was judged by
};

/// What can be said of a run without another calculation: size parameter, m x and number of terms; whether the method
/// is within its range of sizes and angles; whether the steps resolve the ripples; and how far Qext agrees with the
/// amplitude straight forward (optical theorem), where that was calculated. Of a run along sizes the smallest and the
/// largest sphere count. The limits are those of docs/method_pages.md.
std::vector<TrustMark> TrustOf(const Results& results);

}  // namespace lumivex
