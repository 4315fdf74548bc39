#pragma once

namespace lumivex {

/// Multiples of a step as a person would type them: three steps of 0.1 are 0.3, and not 0.30000000000000004.
class TypedValues {
 public:
  /// @param start, step  as they were typed; numbers with more than ten decimals leave all values as they are.
  TypedValues(double start, double step);

  /// A value of so many decimals as start and step have.
  double operator()(double value) const;

 private:
  double scale_ = 0;
};

}  // namespace lumivex
