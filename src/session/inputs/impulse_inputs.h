#pragma once

#include "record/session.h"
#include "runs/pulse_band.h"
#include "runs/request.h"

namespace lumivex {

/// Whether a building of the pulse tells of one that has no band, or leaves that to whoever looks for a band.
enum class PulseVoice { Tell, Quiet };

/// The pulse of dlogImpulse, and where its times are counted from.
PulsedLight ReadPulsedLight(const Session& session);

/// Holds the inputs of the dialog against their limits; what cannot be used is marked.
bool PulseHolds(Session& session);

/// Builds the pulse of the dialog: its fields of the record, the drawing of the dialog, the lines on it in the panel
/// and the times of the further axis.
/// @param mode  0 for the display alone; otherwise the samples within the pulse are marked in PulseEnvelopeFlag too.
void ImpulseCalc(Session& session, int mode, PulseVoice voice = PulseVoice::Tell);

/// Before a run: the pulse as its inputs stand. Of one that cannot be used nothing is calculated, which is told.
/// @return false where there is no pulse with a band.
bool PulseIsThere(Session& session);

/// The clock of a run with the present inputs.
ResponseClock ClockOfInputs(const Session& session);

/// The limits of the times that can be asked for: those of one window.
struct TimeLimits {
  double low = 0, high = 0;  ///< fs
};
TimeLimits TimesOfWindow(const Session& session);

/// The columns of a picture between the times of the further axis.
Sweep ReadTimes(const Session& session);

/// The axis of time of efficiencies: the whole window, counted from the pulse. The times of the further axis are those
/// on show.
AxisRun ReadPulseAxis(const Session& session, const RunRequest& request);

/// Shows the dialog, unless settings are being restored. A cancelled one leaves pulse and times as they were.
void AskImpulse(Session& session);

/// Tells in the status line where the window of the last results is too short for their sphere.
void RemarkOnWindow(Session& session);

/// The wavelength of the panel is that of the pulse.
void FollowWavelength(Session& session);

// Events.
void dlogImpulse_Change(Session& session);
void dlogImpulse_Wavelength_Change(Session& session);
void dlogImpulse_Spectrum_Click(Session& session);
void dlogImpulse_OKButton_Click(Session& session);
void dlogImpulse_cmdPrint_Click(Session& session);
void mnuImpulse_Click(Session& session);
void mnuImpulseQ_Click(Session& session);

}  // namespace lumivex
