#pragma once

namespace lumivex {

/// The Airy function Ai(z) and its derivative of real z by Chebyshev expansions on five ranges (Prince 1975; Amos,
/// Daniel and Weston 1977), joined at z = 0, z = 1.2 and xi = 5, xi = 2 |z|^1.5 / 3. Relative error below 2e-14 for -30
/// <= z <= 15 (for z < 0 relative to sqrt(Ai^2 + Bi^2)).
void AiryCalc(double z, double& Ai, double& dAi);

/// Ai(z) alone.
double AiryCalc(double z);

}  // namespace lumivex
