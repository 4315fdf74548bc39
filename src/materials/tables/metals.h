#pragma once

#include <array>

namespace lumivex {

/// Optical constants of thin films of gold, silver and copper (P. B. Johnson and R. W. Christy, Phys. Rev. B 6, 4370,
/// 1972). Rows 1 to 49, 0.187878 to 1.93749 um, ascending; row 0 is empty and no search reads it. Columns: 0 n, 1 k,
/// 2 empty.
///
/// Copper has n = 0 in row 41 (0.756096 um): a value that was never entered. A copper sphere passes through it, and
/// has no index exactly there.
inline constexpr int metalRows = 49;
using MetalTable = std::array<std::array<float, 3>, metalRows + 1>;
extern const std::array<float, metalRows + 1> MetalLambda;
extern const MetalTable GoldNK;
extern const MetalTable SilverNK;
extern const MetalTable CopperNK;

}  // namespace lumivex
