#include "materials/index/table_lookup.h"

namespace lumivex {

namespace {

bool Holds(std::span<const float> lambda, std::size_t i, double wanted) {
  return lambda[i] <= wanted && lambda[i + 1] >= wanted && lambda[i + 1] > lambda[i];
}

double Fraction(std::span<const float> lambda, std::size_t i, double wanted) {
  const double low = lambda[i], high = lambda[i + 1];
  return (wanted - low) / (high - low);
}

double Between(double low, double high, double t) {
  return low + t * (high - low);
}

IndexValue Between(const IndexRow& low, const IndexRow& high, double t) {
  return {Between(low[0], high[0], t), Between(low[1], high[1], t)};
}

/// n and k by the cubics through the rows `top` down to top - 3.
IndexValue Cubic(std::span<const float> lambda, std::span<const IndexRow> rows, std::size_t top, double at) {
  std::array<double, 4> x{}, n{}, k{};
  for (std::size_t j = 0; j < 4; ++j) {
    x[j] = lambda[top - j];
    n[j] = rows[top - j][0];
    k[j] = rows[top - j][1];
  }
  return {LagrangePolynomial(x, n, at), LagrangePolynomial(x, k, at)};
}

IndexValue Row(std::span<const IndexRow> rows, std::size_t i) {
  return {rows[i][0], rows[i][1]};
}

/// The highest row of the cubic of interval i, or 0 where the interval is straight.
std::size_t TopOfCubic(std::size_t i, std::size_t count, CubicGate gate) {
  if (i + 3 > static_cast<std::size_t>(gate.rows)) return 0;
  const std::size_t top = i > 1 ? i + 2 : i + 3;
  if (top <= count && i + 2 <= count) return top;
  return gate.endCubic && i + 1 == count && i > 2 ? i + 1 : 0;
}

}  // namespace

double LagrangePolynomial(const std::array<double, 4>& x, const std::array<double, 4>& y, double at) {
  double sum = 0;
  for (std::size_t i = 0; i < 4; ++i) {
    double above = 1, below = 1;
    for (std::size_t j = 0; j < 4; ++j) {
      if (j == i) continue;
      above *= at - x[j];
      below *= x[i] - x[j];
    }
    sum += y[i] * above / below;
  }
  return sum;
}

EndedLookup LookUpToEnd(std::span<const float> lambda, std::span<const float> values, double wanted) {
  for (std::size_t i = 0; i + 1 < lambda.size(); ++i) {
    if (!Holds(lambda, i, wanted)) continue;
    const double t = Fraction(lambda, i, wanted);
    return {Between(values[i], values[i + 1], t), t >= 1 && i + 2 == lambda.size()};
  }
  return {};
}

std::optional<double> LookUpLinear(std::span<const float> lambda, std::span<const float> values, double wanted) {
  const EndedLookup found = LookUpToEnd(lambda, values, wanted);
  return found.atEnd ? std::optional<double>(values.back()) : found.value;
}

std::optional<IndexValue> LookUpMetal(std::span<const float> lambda, std::span<const IndexRow> rows, float wanted,
                                      TableRule rule) {
  const std::size_t last = lambda.size() - 1;
  std::optional<IndexValue> found;
  for (std::size_t i = 1; i < last; ++i) {
    if (!Holds(lambda, i, wanted)) continue;
    if (rule == TableRule::Cubic) {
      const std::size_t top = i == 1 ? i + 3 : i + 1 == last ? i + 1 : i + 2;
      found = Cubic(lambda, rows, top, wanted);
      continue;
    }
    const double t = Fraction(lambda, i, wanted);
    found = t >= 1 && i + 1 == last ? Row(rows, last) : Between(rows[i], rows[i + 1], t);
  }
  return found;
}

FileLookup LookUpFile(const FileTable& table, double wavelength, TableRule rule, CubicGate gate) {
  const auto count = static_cast<std::size_t>(table.count);
  if (count < 1) return {};
  const float wanted = static_cast<float>(wavelength);
  if (wanted < table.lambda[1] || count == 1) return {Row(table.rows, 1), false};
  if (wanted > table.lambda[count]) return {Row(table.rows, count), false};
  FileLookup found;
  for (std::size_t i = 1; i < count; ++i) {
    if (!Holds(table.lambda, i, wanted)) continue;
    const std::size_t top = rule == TableRule::Cubic ? TopOfCubic(i, count, gate) : 0;
    const double t = Fraction(table.lambda, i, wanted);
    if (top != 0) {
      found.value = Cubic(table.lambda, table.rows, top, wavelength);
    } else if (t >= 1 && i + 1 == count) {
      const auto end = static_cast<std::size_t>(table.endRow);
      found.beyondRows = end > count;
      found.value = found.beyondRows ? std::nullopt : std::optional(Row(table.rows, end));
    } else {
      found.value = Between(table.rows[i], table.rows[i + 1], t);
    }
  }
  return found;
}

}  // namespace lumivex
