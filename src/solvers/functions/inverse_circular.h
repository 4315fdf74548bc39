#pragma once

namespace lumivex {

/// Inverse sine and cosine that take arguments just beyond +-1, as rounding leaves them at the edge of a rainbow: such
/// an argument counts as +-1. Never divides by zero.

/// Radians, -pi/2..pi/2.
double ArcSin(double x);

/// Radians, 0..pi.
double ArcCos(double x);

}  // namespace lumivex
