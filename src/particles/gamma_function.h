#pragma once

namespace lumivex {

/// The gamma function by the power series of its reciprocal (Abramowitz and Stegun 1964, 6.1.34), the argument brought
/// into 0 < x <= 1 by gamma(x + 1) = x gamma(x).
/// @param result  1e100 at 0 and the negative whole numbers, where the function has poles. Errors are below 1e-14 for
///                |x| < 10; infinite beyond 171.
void GammaFunction(double x, double& result);

/// The share of a standard gamma distribution of a given shape (above 0) that lies below x (Press et al. 2007, section
/// 6.2): 0 for x <= 0.
double GammaDistributionBelow(double shape, double x);

}  // namespace lumivex
