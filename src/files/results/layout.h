#pragma once

#include <string>
#include <vector>

#include "files/results/file_lines.h"
#include "files/results/file_version.h"
#include "record/session.h"
#include "runs/results.h"

namespace lumivex {

/// The numbers of a results file beside its inputs: limits and rows of curves, as the lines have them.
struct CurveRows {
  double Xmin = 0, Xmax = 180;
  double Ymin = 0, Ymax = 0, YAutoMin = 0, YAutoMax = 0;
  int firstPoint = 1, lastPoint = 0;  ///< of an axis
  double Qsca = 0;
  std::vector<double> x, perpendicular, parallel,
      unpolarised;                  ///< row by row; of a spectrum wavelength after wavelength
  AmplitudeTable S1, S2;            ///< of the matrix against wavelength, by point
  AmplitudeTable angleS1, angleS2;  ///< by row of angle, where item 25 stands
  MapFound cells;
  int leeRowStart = 1, leeRowEnd = 0;
  std::string sphereFile;  ///< name of the table of the sphere's indices, where it is one from a file
};

/// A walk along the layout: what is written from, or read into.
struct LayoutWalk {
  FileLines& lines;
  Session& sheet;  ///< inputs
  CurveRows& rows;
  int version = newestFile;

  Form1& Form() const { return sheet.form1; }
  const Graph& Chosen() const { return ChosenGraph(sheet.state); }
};

/// Items that are not in every version.
enum class FileItem {
  Method,
  MaterialName,
  WaterOnOneLine,
  MediumSource,
  ImaginaryIndex,
  ComplexLine,
  Rays,
  MediumIndex,
  Heiligenschein,
  CoatedSphere,
  InhomogeneousSphere,
};

/// Whether files of a version have an item.
bool Stands(FileItem item, int version);

/// Walks lines 2 to the last of the inputs (the scales of the axes): everything before the curves. What old versions
/// lack stays as it is in the sheet. Throws BadFile.
void WalkInputs(LayoutWalk& walk);

/// Walks what a picture of angle and time has between its axis and its scales: its inputs, then its cells, a line of
/// two polarisations each, and the colour of its light. Does nothing for other graphs.
void WalkTimes(LayoutWalk& walk);

/// Walks the curves: of angles, points or cells, and the amplitudes where the file has them.
void WalkCurves(LayoutWalk& walk);

/// Whether single terms of a series may be what was found: their efficiencies can be of either sign.
bool SumsTerms(Method method);

/// Whether a value of a graph may lie below 0: asymmetries, what rounding leaves of an absorption, and the efficiencies
/// of terms that are taken by themselves. Intensities and other efficiencies cannot.
/// @param curve  0 to 2: perpendicular, parallel, unpolarised, or Qext, Qsca, Qabs.
bool MayLieBelow0(const Graph& graph, Method method, std::size_t curve);

/// Names sphere and medium as the lines of a file without our block have it: after the source and its temperature where
/// it has one, otherwise by the names in the file. Graphs that vary an index say so in its label.
void NameMaterials(Session& sheet, const std::string& sphereName, const std::string& mediumName);

/// Wavelengths of the run that the inputs of the sheet ask for.
int WavelengthsOf(const Session& sheet);

/// Rows of angle whose intensities a file holds: those of a plain graph of the sheet's limits and step, with the
/// neighbours that averages need.
RowWindow FileWindow(const Session& sheet);

}  // namespace lumivex
