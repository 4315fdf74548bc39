#pragma once

namespace lumivex {

/// n! = n (n - 1) ... 2; 1 for n = 0. Overflows beyond 170.
double Factorial(int n);

/// ln n!, natural, split into its largest whole number not above and the rest in 0..1, so that exponents can be added
/// without overflow; both are 0 for n = 0 and n = 1. The double factorials are in angular_functions.
void LogFactorial(int n, double& frac, double& whole);

}  // namespace lumivex
