#pragma once

#include <vector>

#include "record/form.h"

namespace lumivex {

/// Elevation of the sun.
struct DlogWernand final : Form {
  DlogWernand() : Form("dlogWernand", "Sun elevation") {}
  Label lblElevation{*this, "lblElevation", "Elevation (\u00B0)"};
  TextInput txtElevation{*this, "txtElevation", "45",
                         "Height of the sun over the horizon in degrees, from 0 to below 90; yellow below 10, where "
                         "the air mass is uncertain"};
};

/// Temperature of a black body.
struct DlogBlackBody final : Form {
  DlogBlackBody() : Form("dlogBlackBody", "Black body") {}
  Label lblBlackBody{*this, "lblBlackBody", "Temperature (K)"};
  TextInput txtBlackBody{*this, "txtBlackBody", "6000", "Temperature of the black body in kelvin"};
};

/// The last spectrum read, or a new one.
struct DlogSpectrumFile final : Form {
  DlogSpectrumFile() : Form("dlogSpectrumFile", "Spectrum data file") {}
  OptionButton optExisting{*this, "optExisting", "file", "Existing data", true, "Use the spectrum that was read last"};
  OptionButton optNewFile{*this, "optNewFile", "file", "New file", false, "Read a spectrum from a file"};
};

/// Power of the light and distance of the observer.
struct DlogIncident final : Form {
  DlogIncident() : Form("dlogIncident", "Incident light") {}
  Label lblIncidentPD{*this, "lblIncidentPD", "Incident intensity (Watts/sq m)"};
  TextInput txtIncidentPD{*this, "txtIncidentPD", "100", "Power of the incident light in watts per square metre"};
  Label lblIncidentDistance{*this, "lblIncidentDistance", "Distance (m)"};
  TextInput txtDistance{*this, "txtDistance", "1", "Distance from the sphere to the observer in metres"};
};

/// The dialogs of the light but for dlogSpectrumBand, which is among the first.
struct LightDialogs {
  DlogWernand dlogWernand;
  DlogBlackBody dlogBlackBody;
  DlogSpectrumFile dlogSpectrumFile;
  DlogIncident dlogIncident;

  std::vector<Form*> LightForms() { return {&dlogWernand, &dlogBlackBody, &dlogSpectrumFile, &dlogIncident}; }
};

}  // namespace lumivex
