#include "pages/maps/map_cells.h"

#include <limits>
#include <vector>

namespace lumivex {

namespace {

/// Rows of a column with those that its ends reflect: element j is the row j - reach from the lowest shown on.
class PaddedColumn {
 public:
  PaddedColumn(const MapFound& found, ShownRows rows, int reach, int mirror) {
    sources_.reserve(static_cast<std::size_t>(rows.count) + 2 * static_cast<std::size_t>(reach));
    for (int j = -reach; j < rows.count + reach; ++j) {
      int row = found.firstRow + rows.lowest + j;  // of the grid, from 1
      if (mirror > 0 && row > mirror) row = 2 * mirror - row;
      if (row < 1) row = 2 - row;
      const int stored = row - found.firstRow;
      sources_.push_back(stored >= 0 && stored < found.rows ? stored : -1);
    }
    values_.resize(sources_.size());
  }

  const double* Fill(const float* column) {
    for (std::size_t j = 0; j < sources_.size(); ++j)
      values_[j] = sources_[j] < 0 ? std::numeric_limits<double>::quiet_NaN() : double{column[sources_[j]]};
    return values_.data();
  }

 private:
  std::vector<int> sources_;  ///< stored row, or -1 where there is none
  std::vector<double> values_;
};

/// One list of cells, column by column.
class Folding {
 public:
  Folding(const MapFound& found, ShownRows rows, const DiscWeights& disc, int mirror)
      : found_(found),
        rows_(rows),
        disc_(disc),
        padded_(found, rows, disc.rows, mirror),
        sums_(static_cast<std::size_t>(rows.count)) {}

  std::vector<float> Of(const std::vector<float>& cells) {
    std::vector<float> folded;
    if (cells.empty()) return folded;
    const std::size_t count = sums_.size();
    folded.resize(static_cast<std::size_t>(found_.columns) * count);
    for (int column = 0; column < found_.done; ++column) {
      FoldColumn(padded_.Fill(&cells[found_.At(column, 0)]) + disc_.rows);
      float* to = folded.data() + static_cast<std::size_t>(column) * count;
      for (std::size_t i = 0; i < count; ++i) to[i] = static_cast<float>(sums_[i] / disc_.total);
    }
    return folded;
  }

 private:
  void FoldColumn(const double* middle) {
    const std::size_t count = sums_.size();
    for (std::size_t i = 0; i < count; ++i) sums_[i] = disc_.weight[0] * middle[i];
    for (int j = 1; j <= disc_.rows; ++j) {
      const double weight = disc_.weight[static_cast<std::size_t>(j)];
      const double *before = middle - j, *after = middle + j;
      for (std::size_t i = 0; i < count; ++i) sums_[i] += weight * (before[i] + after[i]);
    }
  }

  const MapFound& found_;
  ShownRows rows_;
  const DiscWeights& disc_;
  PaddedColumn padded_;
  std::vector<double> sums_;
};

/// Of each column the rows shown.
std::vector<std::uint16_t> ShownOnly(const MapFound& found, ShownRows rows, const std::vector<std::uint16_t>& cells) {
  std::vector<std::uint16_t> shown;
  if (cells.empty() || rows.count < 1) return shown;
  shown.reserve(static_cast<std::size_t>(found.columns) * static_cast<std::size_t>(rows.count));
  for (int column = 0; column < found.columns; ++column) {
    const auto* from = &cells[found.At(column, rows.lowest)];
    shown.insert(shown.end(), from, from + rows.count);
  }
  return shown;
}

}  // namespace

bool PictureCells::SecondIsGreater(std::size_t cell) const {
  if (second_ == nullptr) return false;
  const auto greatest = [cell](const MapPanel& panel) {
    return panel.value.empty() ? std::max({panel.red[cell], panel.green[cell], panel.blue[cell]}) : panel.value[cell];
  };
  return greatest(*second_) > greatest(*first_);
}

double GreatestOf(const MapFound& found, const PictureCells& cells, int column, ShownRows rows) {
  double greatest = 0;
  const std::size_t first = found.At(column, rows.lowest), end = first + static_cast<std::size_t>(rows.count);
  for (std::size_t cell = first; cell < end; ++cell) {
    const double value = cells.Greatest(cell);
    if (value > greatest) greatest = value;
  }
  return greatest;
}

MapFound SeenUnderDisc(const MapFound& found, ShownRows rows, const DiscWeights& disc, int mirror) {
  MapFound seen;
  seen.rows = rows.count;
  seen.columns = found.columns;
  seen.firstRow = found.firstRow + rows.lowest;
  seen.done = found.done;
  Folding fold(found, rows, disc, mirror);
  for (const MapPanel& panel : found.panels)
    seen.panels.push_back({fold.Of(panel.value), fold.Of(panel.red), fold.Of(panel.green), fold.Of(panel.blue)});
  for (const auto& cells : found.strongest) seen.strongest.push_back(ShownOnly(found, rows, cells));
  return seen;
}

}  // namespace lumivex
