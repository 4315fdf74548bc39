#pragma once

#include <array>
#include <cmath>
#include <memory>

#include "pages/drawing_reader.h"
#include "pages/graph_fixture.h"
#include "pages/maps/map_cells.h"
#include "pages/maps/paint_lee.h"

namespace lumivex {

/// A session on whose page maps are drawn that no run has calculated.
struct MapSession : GraphSession {
  using Channels = std::array<double, 3>;

  /// Rows from 137 to 145 degrees in steps of 0.05, with the neighbours that the disc of the sun looks at.
  static AngleRows Rows() {
    AngleRows rows;
    rows.xmin = 137;
    rows.xmax = 145;
    rows.step = 0.05;
    rows.NANG = 1801;
    rows.window = {2736, 2906};
    return rows;
  }
  static double AngleOf(int row) { return 136.75 + 0.05 * row; }
  static SpectrumOfLight Light() {
    SpectrumOfLight light;
    light.wavelength = {0, 0.65F, 0.51F, 0.44F};
    light.weight = {0, 1, 1, 1};
    light.red = {0, 1, 0, 0};
    light.green = {0, 0, 1, 0};
    light.blue = {0, 0, 0, 1};
    return light;
  }

  /// A map over angle of so many columns, without cells.
  MapFound& StoreAngles(GraphCode code, const Sweep& columns) {
    results = {};
    TakeGraph(code);
    results.asked.run = AngleMapRun{Rows(), columns};
    MapFound found;
    found.rows = 171;
    found.firstRow = 2736;
    found.columns = found.done = columns.Count();
    found.panels.resize(2);
    results.found = std::move(found);
    ShowRange("137", "145");
    return Map();
  }
  MapFound& Map() { return std::get<MapFound>(results.found); }

  /// A Lee diagram of radii from 10 to 20 um in 4 steps; f(polarisation, column, degrees) gives the channels.
  template <class F>
  MapFound& StoreLee(F&& f) {
    MapFound& found = StoreAngles({20, 1}, {Swept::Radius, 10, 20, 4, true});
    results.asked.light.spectrum = Light();
    for (int p = 0; p < 2; ++p) {
      MapPanel& panel = found.panels[static_cast<std::size_t>(p)];
      for (int column = 0; column < found.columns; ++column)
        for (int row = 0; row < found.rows; ++row) {
          const Channels c = f(p, column, AngleOf(row));
          panel.red.push_back(static_cast<float>(c[0]));
          panel.green.push_back(static_cast<float>(c[1]));
          panel.blue.push_back(static_cast<float>(c[2]));
        }
    }
    found.strongest.assign(2, std::vector<std::uint16_t>(found.panels[0].red.size(), 2));
    return found;
  }
  /// The same with one wavelength.
  template <class F>
  MapFound& StoreValues(GraphCode code, const Sweep& columns, F&& f) {
    MapFound& found = StoreAngles(code, columns);
    for (int p = 0; p < 2; ++p)
      for (int column = 0; column < found.columns; ++column)
        for (int row = 0; row < found.rows; ++row)
          found.panels[static_cast<std::size_t>(p)].value.push_back(static_cast<float>(f(p, column, AngleOf(row))));
    return found;
  }
  /// Efficiencies over index and size parameter; f(efficiency, index, x).
  template <class F>
  MapFound& StoreEfficiencies(F&& f) {
    results = {};
    TakeGraph({26, 1});
    const Sweep columns{Swept::SphereIndex, 1.1, 1.5, 4}, rows{Swept::SizeParameter, 1, 11, 20};
    results.asked.run = EfficiencyMapRun{columns, rows, 0};
    MapFound found;
    found.rows = rows.Count();
    found.columns = found.done = columns.Count();
    found.panels.resize(3);
    for (int p = 0; p < 3; ++p)
      for (int column = 0; column < found.columns; ++column)
        for (int row = 0; row < found.rows; ++row)
          found.panels[static_cast<std::size_t>(p)].value.push_back(
              static_cast<float>(f(p, columns.At(column), rows.At(row))));
    results.found = std::move(found);
    return Map();
  }

  /// Colour of a cell on the page, rows from the bottom.
  Colour CellOn(std::size_t picture, int column, int row) const {
    const PageMap& map = *session.page.map;
    const int columns = map.across.samples.count, rows = map.up.samples.count;
    return (*map.pictures[picture].cells)[static_cast<std::size_t>((rows - 1 - row) * columns + column)];
  }
  std::vector<DrawnOperation> Images() const { return DrawingReader(surface).All(DrawnOperation::Kind::Image); }
  std::string LineAt(MapLine::Place place) const {
    for (const MapLine& line : session.page.map->lines)
      if (line.place == place) return line.text;
    return "";
  }
};

}  // namespace lumivex
