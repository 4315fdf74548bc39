#pragma once

namespace lumivex {

/// The rules that choose round numbers for the axes. All logarithms of the rules divide by 2.302585093, a little above
/// ln 10, so that an exact power of ten falls just below its own exponent.

/// The greater of two; the second where they are equal.
double AMAX(double a, double b);
/// The smaller of two; the second where they are equal.
double AMIN(double a, double b);

/// Int(10^d x + 0.5) / 10^d.
double RoundTo(double x, int decimals);

/// log10 x that never fails: -300 for 0, for what is below 1E-300 and for what is not a number.
double Log10Guarded(double x);

/// x / ln 10 of the rules: ln(x) / 2.302585093.
double RuleLog10(double x);

/// ln(a / b) of two positive numbers, also where their quotient is beyond the range of double.
double LogOfRatio(double a, double b);

/// Whether a number counts as odd for the ladder: |Int(s/2) - s/2| > 0.1.
bool IsOdd(double s);

/// Distance of the ticks of a linear x axis over `range`, from the ladder 1, 2, 5 by decades; above 12000 and at or
/// below 0.00012 a tenth of the range.
double LadderStep(double range);

/// Decimals that a tick of a linear x axis is rounded to; between 0 and 15.
int TickDecimals(double range, double xmax, double step);

/// The exponent p of value = m 10^p with 1 <= m < 10, for a value above 0.
int DecadeOf(double value);

/// A round number above a value of a linear axis.
/// @param unit  what the top is a multiple of; with value = 10^p above 1 the unit of the call before serves once more,
///              otherwise it is chosen and left here.
double RoundedTop(double value, double& unit);

/// Distance of the ticks of a linear y axis.
double YTickStep(double ymin, double ymax);

/// The decades of a logarithmic axis that have a tick: from first to last; none when last < first.
struct DecadeRange {
  int first = 0, last = -1;
};
DecadeRange DecadesBetween(double ymin, double ymax);

/// The smallest of 1, 2, 5 times a power of ten that is not below a positive value.
double RoundStepAbove(double value);

}  // namespace lumivex
