#include "solvers/layers/coated_paths.h"

#include <algorithm>
#include <cctype>
#include <string>

#include "solvers/functions/complex_algebra.h"

namespace lumivex {

namespace {

constexpr std::size_t ProductsPerLook = 200'000;
/// More reflections than a word of the list of paths can have; what is longer is no word.
constexpr std::size_t LongestWord = 100;

double Choose(int of, int taken) {
  double result = 1.0;
  for (int i = 1; i <= taken; ++i) result = result * (of - taken + i) / i;
  return result;
}

/// The letters of "p1r2" written out, "prr"; empty where the text is no such word.
std::optional<std::string> Spelled(std::string_view text) {
  std::string word;
  for (std::size_t i = 0; i < text.size();) {
    const char letter = static_cast<char>(std::tolower(static_cast<unsigned char>(text[i++])));
    if (letter != 'p' && letter != 'q' && letter != 'r') return std::nullopt;
    std::size_t number = 0;
    bool any = false;
    for (; i < text.size() && std::isdigit(static_cast<unsigned char>(text[i])); ++i, any = true) {
      number = number * 10 + static_cast<std::size_t>(text[i] - '0');
      if (number > LongestWord) return std::nullopt;
    }
    if (!any || word.size() + number > LongestWord) return std::nullopt;
    word.append(number, letter);
  }
  return word;
}

/// z^0 .. z^highest.
void Powers(const ComplexD& z, std::size_t highest, std::vector<ComplexD>& powers) {
  powers.assign(highest + 1, {1.0, 0.0});
  for (std::size_t k = 1; k <= highest; ++k) powers[k] = z * powers[k - 1];
}

/// The sum of ways for one partial wave.
class PathSum {
 public:
  explicit PathSum(std::span<const WeightedPath> paths) : paths_(paths) {
    for (const auto& [counts, weight] : paths_) {
      r_ = std::max(r_, counts.r);
      p_ = std::max(p_, counts.p);
      q_ = std::max(q_, counts.q);
      v_ = std::max(v_, counts.Visits());
    }
  }

  ComplexD Of(const CoatedWave& wave) {
    Powers(wave.r, static_cast<std::size_t>(r_), r);
    Powers(wave.p, static_cast<std::size_t>(p_), p);
    Powers(wave.q, static_cast<std::size_t>(q_), q);
    Powers(wave.Ti, static_cast<std::size_t>(v_), v);
    ComplexD inside;
    double outside = 0.0;
    for (const auto& [counts, weight] : paths_) {
      if (!counts.enters) {
        outside += weight;
        continue;
      }
      const auto at = [](const std::vector<ComplexD>& powers, int k) { return powers[static_cast<std::size_t>(k)]; };
      inside = inside + weight * (at(r, counts.r) * at(p, counts.p) * (at(q, counts.q) * at(v, counts.Visits())));
    }
    return 0.5 * outside * (ComplexD(1.0, 0.0) - wave.E) - 0.5 * wave.To * inside;
  }

 private:
  std::span<const WeightedPath> paths_;
  int r_ = 0, p_ = 0, q_ = 0, v_ = 0;
  std::vector<ComplexD> r, p, q, v;
};

}  // namespace

PathLabel PathCounts::Label() const {
  if (!enters) return {};
  return {r + p + q, 2 * (r + 1), Visits() + q};
}

std::optional<PathCounts> CountsOf(const PathLabel& label) {
  const auto [N, A, B] = label;
  if (label == PathLabel{}) return PathCounts{0, 0, 0, false};
  if (N < 0 || A < 2 || A % 2 != 0 || A > 2 * (N + 1) || B < 0 || B > N + 1 || (N + 1 - B) % 2 != 0)
    return std::nullopt;
  PathCounts counts{A / 2 - 1, (N + 1 - B) / 2, 0};
  counts.q = N - counts.r - counts.p;
  if (counts.q < 0 || counts.Visits() < 0 || (counts.Visits() == 0 && counts.q > 0)) return std::nullopt;
  return counts;
}

double Degeneracy(const PathCounts& counts) {
  if (!counts.enters || counts.Visits() == 0) return 1.0;
  return Choose(counts.r + 1, counts.p) * Choose(counts.q + counts.r - counts.p, counts.q);
}

std::vector<PathLabel> PathLabels(int first, int last) {
  std::vector<PathLabel> labels;
  if (first <= 0 && last >= 0) labels.push_back({});
  for (int N = std::max(first, 0); N <= last; ++N) {
    for (int A = 2; A <= 2 * (N + 1); A += 2) {
      for (int B = (N + 1) % 2; B <= N + 1; B += 2) {
        if (CountsOf({N, A, B})) labels.push_back({N, A, B});
      }
    }
  }
  return labels;
}

std::optional<PathWord> WordOf(std::string_view text) {
  const std::optional<std::string> word = Spelled(text);
  if (!word || text.empty()) return std::nullopt;
  PathWord path;
  char before = 'r';
  for (const char letter : *word) {
    if ((before == 'p' && letter != 'r') || (before == 'q' && letter == 'p')) return std::nullopt;
    ++(letter == 'r' ? path.counts.r : letter == 'p' ? path.counts.p : path.counts.q);
    before = letter;
  }
  path.factor = std::equal(word->begin(), word->end(), word->rbegin()) ? 1 : 2;
  return path;
}

PathCounts PathOfOrders(int P, int Q) {
  if (P <= 0) return {0, 0, 0, false};
  if (Q <= 0) return {P - 1, P, 0};
  return {P - 1, 0, P * (Q - 1)};
}

PartialWaves SumCoatedPaths(std::span<const CoatedWaves> surfaces, std::span<const WeightedPath> paths,
                            RunMonitor& monitor) {
  const int terms = static_cast<int>(surfaces.size()) - 1;
  PartialWaves waves(std::max(terms, 0));
  PathSum sum(paths);
  std::size_t products = 0;
  for (std::size_t n = 1; n < surfaces.size(); ++n) {
    products += paths.size() + 50;
    if (products > ProductsPerLook) {
      products = 0;
      if (!monitor.Report(n, surfaces.size())) break;
    }
    const ComplexD a = sum.Of(surfaces[n].TM);
    const ComplexD b = sum.Of(surfaces[n].TE);
    waves.aRe[n] = a.re;
    waves.aIm[n] = a.im;
    waves.bRe[n] = b.re;
    waves.bIm[n] = b.im;
  }
  return waves;
}

}  // namespace lumivex
