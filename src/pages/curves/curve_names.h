#pragma once

#include <string>
#include <vector>

#include "record/page.h"

namespace lumivex {

/// The curves of a page by names that tell them apart: key, read-out and tables all have these.
///
/// A curve is its polarisation, efficiency or ratio; with several runs on the page there stands before it whatever of
/// method, size, sphere, medium, wavelength and angle is not the same in all of them: "Debye series (p = 2): Parallel
/// polarisation". A name that the user has given stands for all of it.
class CurveNames {
 public:
  explicit CurveNames(const Page& page);

  /// What tells a run of the page from the others; empty for one that needs no telling.
  const std::string& OfRun(std::size_t run) const;
  /// A curve as read-outs name it.
  std::string Of(const PageCurve& curve) const;
  /// A curve as key and tables name it: where one stands for several, all that it is.
  std::string InKey(const PageCurve& curve) const;

 private:
  const std::string& RunOf(const PageCurve& curve) const;

  std::vector<std::string> runs_;
  std::vector<std::string> alone_;  ///< the same without where spheres stand
};

}  // namespace lumivex
