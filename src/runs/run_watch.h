#pragma once

namespace lumivex {

struct MapFound;

/// Where a run stands: the piece that was begun last, and the share of all the work that is done.
struct RunProgress {
  double share = 0;    ///< 0 to 1; never falls
  int wavelength = 1;  ///< running wavelength of a spectrum, from 1
  int sample = 0;      ///< running size of a cloud, from 1; 0 for one size
  int point = 0;       ///< running point of an axis, from 1
  int column = 0;      ///< running cell of a table, from 0
  int row = 0;
  double lambda = 0;                ///< um
  double radius = 0;                ///< um
  double sphereN = 0, sphereK = 0;  ///< indices of the sphere
  double relative = 0;              ///< real part, relative to the medium
  /// Of a map the cells that it has so far: columns before `columnsDone` are whole and stand, the others are in the
  /// hands of other threads. Valid during the look.
  const MapFound* map = nullptr;
  int columnsDone = 0;
  int rowsDone = 0;  ///< of a map that grows by rows, those that stand; 0 of one that grows by columns
};

/// Who watches a run: shows how far it is, and may stop it.
class RunWatch {
 public:
  virtual ~RunWatch() = default;

  /// Called now and again, at least every 50 ms, by the thread that called Run and by no other.
  /// @return true to go on, false to stop.
  virtual bool Look(const RunProgress& progress) = 0;
};

/// Of whoever neither watches nor stops.
class SilentWatch final : public RunWatch {
 public:
  bool Look(const RunProgress&) override { return true; }
};

}  // namespace lumivex
