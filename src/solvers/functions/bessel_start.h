#pragma once

namespace lumivex {

/// Where to start a backward recurrence of Bessel functions, after Zhang and Jin 1996, section 5.2: secant steps on
/// log10 of the envelope of J_n(x), at most 20 of them.

/// Digits lost to smallness: -log10 |J_n(x)| for n above x, 0.5 log10(6.28 n) - n log10(1.36 x / n).
/// @param n  > 0.
/// @param x  > 0.
double envj(double n, double x);

/// The order at which J_n(x) falls to about 10^-mp; x of either sign, not 0.
int MSTA1(double x, int mp);

/// The order from which a backward recurrence gives orders up to n with mp digits; x of either sign, not 0.
int MSTA2(double x, int n, int mp);

}  // namespace lumivex
