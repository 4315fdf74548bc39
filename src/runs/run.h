#pragma once

#include "runs/request.h"
#include "runs/results.h"
#include "runs/run_watch.h"

namespace lumivex {

/// Runs a request to its results. Pure: it reads nothing but the request and writes nothing but what it returns, so
/// that any thread may call it and several at once.
///
/// Wavelengths, sizes, points and blocks of angles are shared among threads; results are the same to the last bit on
/// any number of them.
/// @param watch    looked to by the calling thread alone; it may stop the run.
/// @param threads  at most so many, the calling one included; 0 for as many as the machine has.
/// @return the results of a run that is done, or of one that was stopped with something whole in hand: whole rows,
///         wavelengths, points or spheres, never a false one. A run that is stopped before, refused, or whose
///         arithmetic fails has none.
RunEnd Run(const RunRequest& request, RunWatch& watch, unsigned threads = 0);

/// Most points of an x axis.
inline constexpr int mostPoints = 18001;

/// Most intensities of one polarisation that a spectrum may leave, wavelengths times rows: 160 MB.
inline constexpr double mostSpectrumValues = 20e6;

/// Most cells of a map: as many as fit into 230 MB with three channels and their wavelength in two panels.
inline constexpr double mostMapCells = 8e6;

/// Most cells of a picture of angle and time, which have one value in two panels: 120 MB, beside 180 MB of colours and
/// the block of rows that is being calculated.
inline constexpr double mostTimeCells = 15e6;

/// Cells of a map; 0 for any other run.
double MapCells(const FamilyRun& run);

/// Why the largest spheres of a volume cannot be calculated, so that nobody waits for them; empty where they can, and
/// for any other run.
Refusal BeyondVolume(const RunRequest& request);

/// Rows from 0 to 90 degrees of a two-angle run: steps of 0.1 degrees.
inline constexpr int twoAngleRowsTo90 = 901;

/// Ratio of neighbouring points of an axis with logarithmic steps; 1 for equal ones.
double StepRatio(const AxisRun& axis);

/// Position of a point of an axis, from 1, in the unit of the axis.
/// @param ratio  StepRatio of the axis.
double AxisPosition(const AxisRun& axis, double ratio, int point);

}  // namespace lumivex
