#include "solvers/layers/layered_sphere.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <numbers>
#include <vector>

#include "solvers/series/mie_coefficients.h"
#include "solvers/series/mie_efficiencies.h"

namespace lumivex {
namespace {

using Complex = std::complex<double>;

double Apart(const PartialWaves& a, const PartialWaves& b) {
  double most = 0;
  for (std::size_t n = 1; n < std::min(a.aRe.size(), b.aRe.size()); ++n)
    most = std::max({most, std::hypot(a.aRe[n] - b.aRe[n], a.aIm[n] - b.aIm[n]),
                     std::hypot(a.bRe[n] - b.bRe[n], a.bIm[n] - b.bIm[n])});
  return most;
}

std::vector<SphereLayer> Equal(double y, int layers, const ComplexD& m) {
  std::vector<SphereLayer> list;
  for (int i = 1; i <= layers; ++i) list.push_back({y * i / layers, m});
  return list;
}

// Bohren and Huffman 1983, appendix B: core and coating of soot and acid.
TEST(LayeredSphere, PublishedCoatedSphere) {
  SilentMonitor monitor;
  const double k = 2 * std::numbers::pi / 3;
  const SphereLayer layers[] = {{k * 0.171, {1.59, 0.66}}, {k * 6.265, {1.409, 0.1747}}};
  const double y = layers[1].x;
  const Efficiencies found = EfficienciesOf(LayeredSphereCoefficients(layers, LayeredSphereTerms(y), monitor), y);
  EXPECT_NEAR(found.Qext, 2.32803, 5e-6);
  EXPECT_NEAR(found.Qsca, 1.14341, 5e-6);
  EXPECT_NEAR(found.Qback * 4 * std::numbers::pi, 0.0285099, 5e-8);
}

TEST(LayeredSphere, LayersThatAreAlikeAreOneSphere) {
  SilentMonitor monitor;
  for (const ComplexD& m : {ComplexD(1.33, 0), ComplexD(1.33, 0.1), ComplexD(0.75, 0), ComplexD(2.5, 3)}) {
    for (const double y : {0.01, 1.0, 10.0, 1000.0}) {
      const PartialWaves mie = MieCoefficients(y, m.re, m.im, ComputeMieTruncation(y, m.re, m.im, false, false));
      for (const int layers : {1, 2, 128}) {
        SCOPED_TRACE(testing::Message() << m.re << " " << m.im << " y " << y << " layers " << layers);
        const auto list = Equal(y, layers, m);
        const int terms = LayeredSphereTerms(y);
        EXPECT_LT(Apart(LayeredSphereCoefficients(list, terms, monitor), mie), 2e-12);
        if (m.im != 0) continue;
        EXPECT_LT(Apart(LayeredSphereByTangents(list, terms, monitor), mie), 2e-12);
      }
    }
  }
}

/// The classic recurrence of a coated sphere (Bohren and Huffman 1983, appendix B), which holds while the coating's
/// absorption over its depth is small.
PartialWaves Classic(double x, double y, Complex m1, Complex m2) {
  const int terms = LayeredSphereTerms(y);
  PartialWaves waves(terms);
  const Complex i(0, 1), X1 = m1 * x, X2 = m2 * x, Y2 = m2 * y, m = m2 / m1;
  Complex D0X1 = std::cos(X1) / std::sin(X1), D0X2 = std::cos(X2) / std::sin(X2), D0Y2 = std::cos(Y2) / std::sin(Y2);
  double psi0 = std::cos(y), psi1 = std::sin(y), chi0 = -std::sin(y), chi1 = std::cos(y);
  Complex c0x = -std::sin(X2), c1x = std::cos(X2), c0y = -std::sin(Y2), c1y = std::cos(Y2);
  Complex brack, crack, cpy, cy;
  bool alone = false;
  for (int n = 1; n <= terms; ++n) {
    const double r = n;
    const double psi = (2 * r - 1) * psi1 / y - psi0, chi = (2 * r - 1) * chi1 / y - chi0;
    const Complex xi = psi - i * chi, xi1 = psi1 - i * chi1;
    const Complex D1Y2 = 1.0 / (r / Y2 - D0Y2) - r / Y2;
    Complex D1X1, D1X2, cx;
    if (!alone) {
      D1X1 = 1.0 / (r / X1 - D0X1) - r / X1;
      D1X2 = 1.0 / (r / X2 - D0X2) - r / X2;
      cx = (2 * r - 1) * c1x / X2 - c0x;
      cy = (2 * r - 1) * c1y / Y2 - c0y;
      const Complex cpx = c1x - r * cx / X2;
      cpy = c1y - r * cy / Y2;
      brack = (m * D1X1 - D1X2) / (m * D1X1 * cx - cpx) / (cx * D1X2 - cpx) * (cy * D1Y2 - cpy);
      crack = (m * D1X2 - D1X1) / (m * cpx - D1X1 * cx) / (cx * D1X2 - cpx) * (cy * D1Y2 - cpy);
      constexpr double del = 1e-8;
      if (std::max(std::abs(brack * cpy), std::abs(crack * cpy)) <= del * std::abs(D1Y2) &&
          std::max(std::abs(brack * cy), std::abs(crack * cy)) <= del) {
        brack = crack = 0;
        alone = true;
      }
    }
    const Complex dn = (D1Y2 - brack * cpy) / (1.0 - brack * cy), gn = (D1Y2 - crack * cpy) / (1.0 - crack * cy);
    const auto coefficient = [&](Complex h) { return (h * psi - psi1) / (h * xi - xi1); };
    const Complex a = coefficient(dn / m2 + r / y), b = coefficient(m2 * gn + r / y);
    const auto k = static_cast<std::size_t>(n);
    waves.aRe[k] = a.real();
    waves.aIm[k] = a.imag();
    waves.bRe[k] = b.real();
    waves.bIm[k] = b.imag();
    psi0 = psi1;
    psi1 = psi;
    chi0 = chi1;
    chi1 = chi;
    c0x = c1x;
    c1x = cx;
    c0y = c1y;
    c1y = cy;
    D0X1 = D1X1;
    D0X2 = D1X2;
    D0Y2 = D1Y2;
  }
  return waves;
}

TEST(LayeredSphere, ClassicRecurrenceOfTwoLayers) {
  SilentMonitor monitor;
  const struct {
    double x, y;
    Complex m1, m2;
  } cases[] = {{10, 20, {1.5, 0}, {1.33, 0}}, {3, 20, {1.59, 0.66}, {1.409, 0.17}}, {40, 60, {1.5, 0}, {1.3333, 0.05}}};
  for (const auto& c : cases) {
    const SphereLayer layers[] = {{c.x, c.m1}, {c.y, c.m2}};
    EXPECT_LT(Apart(LayeredSphereCoefficients(layers, LayeredSphereTerms(c.y), monitor), Classic(c.x, c.y, c.m1, c.m2)),
              1e-7)
        << c.x;
  }
}

// Energy: a clear sphere takes nothing away, an absorbing coat of any depth hides its core.
TEST(LayeredSphere, ClearLayersAbsorbNothingAndDeepOnesHideTheCore) {
  SilentMonitor monitor;
  std::vector<SphereLayer> lens;
  constexpr int layers = 512;
  for (int i = 1; i <= layers; ++i) {
    const double r = (i - 0.5) / layers;
    lens.push_back({50.0 * i / layers, {std::sqrt(2 - r * r), 0}});
  }
  const PartialWaves waves = LayeredSphereCoefficients(lens, LayeredSphereTerms(50), monitor);
  for (std::size_t n = 1; n < waves.aRe.size(); ++n) {
    EXPECT_NEAR(waves.aRe[n], waves.aRe[n] * waves.aRe[n] + waves.aIm[n] * waves.aIm[n], 1e-11) << n;
    EXPECT_NEAR(waves.bRe[n], waves.bRe[n] * waves.bRe[n] + waves.bIm[n] * waves.bIm[n], 1e-11) << n;
  }
  EXPECT_LT(Apart(waves, LayeredSphereByTangents(lens, LayeredSphereTerms(50), monitor)), 1e-10);

  const SphereLayer coat[] = {{300, {1.5, 2}}, {400, {1.33, 5}}};
  const PartialWaves plain = MieCoefficients(400, 1.33, 5, ComputeMieTruncation(400, 1.33, 5, false, false));
  EXPECT_LT(Apart(LayeredSphereCoefficients(coat, LayeredSphereTerms(400), monitor), plain), 1e-12);
}

TEST(LayeredSphere, StopLeavesNoTerms) {
  class Stopping final : public RunMonitor {
   public:
    bool Report(std::size_t, std::size_t) override { return false; }
  } stop;
  EXPECT_EQ(LayeredSphereCoefficients(Equal(100, 8192, {1.3, 0}), 120, stop).Terms(), 0);
  EXPECT_EQ(LayeredSphereByTangents(Equal(100, 8192, {1.3, 0}), 120, stop).Terms(), 0);
}

}  // namespace
}  // namespace lumivex
