#pragma once

#include <optional>
#include <string>

#include "particles/size_distribution.h"
#include "record/session.h"

namespace lumivex {

/// Most samples of a distribution: more sizes than any sum over a model needs.
inline constexpr int MostSamples = 32767;

/// The distribution of sizes in cboDistrib with its numbers; OneSize with "Mono". A cboN that is not 5, 10, 20 or 50
/// leaves the samples of a normal distribution as they were last.
SizeDistribution ChosenSizes(const Session& session);

/// The radius that stands for a size file: half the sum of its first and last; nothing for any other distribution, and
/// before a file was read.
std::optional<double> RadiusOfSizeFile(const SizeDistribution& sizes);

/// The sizes in words, with the samples that are taken: "Log-normal, Std Dev % 5, 20 samples".
std::string WordsForSizes(const Session& session);

}  // namespace lumivex
