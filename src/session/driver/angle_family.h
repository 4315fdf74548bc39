#pragma once

#include "record/session.h"
#include "solvers/functions/complex_pairs.h"

namespace lumivex {

/// A run of one wavelength against scattering angle: sizes the arrays, calls the solver once and fills the curves.
/// Size, wavelength and index stand in the record. Refused or failed runs leave PlotMode 4 and the old results.
void CalculateAngles(Session& session);

/// Reads the axis of angles into the record: NANG, NN, ArrayRows, FirstPoint, LastPoint, the window AngleLow to
/// AngleHigh with the neighbours that averages need, and the weights of the solar disc.
void PrepareAngleRows(Session& session);

/// Fills S1 and S2 in that window for the sphere that stands in the record, or for the cloud about it with optDisp.
void SolveAngles(Session& session);

/// Gives the curve arrays ArrayRows rows, all 0.
void SizeAngleCurves(MainFormState& s);

/// Fills the curve arrays from S1 and S2, as amplitudes or intensities, with the degree of polarisation (Extra1) and
/// the phases (Extra2, Extra3); a row that was not computed to the end holds not-a-number.
void FillAngleCurves(Session& session);

/// Amplitudes of one row or point.
struct AmplitudePair {
  ComplexD S1, S2;
};
/// Element i of the curve arrays from its amplitudes: moduli, or intensities over IntensityNorm.
void FillCurvePoint(MainFormState& s, std::size_t i, const AmplitudePair& pair, bool amplitude);

/// WaveNumber, and IntensityNorm after mnuInvWavelength and mnuAmplitude.
void SetIntensityNorm(Session& session);

}  // namespace lumivex
