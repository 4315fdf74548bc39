#pragma once

#include <vector>

#include "record/form.h"
#include "record/forms/angle_dialogs.h"
#include "record/forms/beam_dialogs.h"
#include "record/forms/coated_dialog.h"
#include "record/forms/compare_dialogs.h"
#include "record/forms/drop_dialogs.h"
#include "record/forms/impulse_dialogs.h"
#include "record/forms/inhom_dialog.h"
#include "record/forms/light_dialogs.h"
#include "record/forms/main_form.h"
#include "record/forms/material_dialogs.h"
#include "record/forms/ray_dialogs.h"
#include "record/forms/settings_dialogs.h"
#include "record/forms/simulation_form.h"
#include "record/forms/size_dialogs.h"
#include "record/forms/volume_dialog.h"

namespace lumivex {

/// Temperature and density of the water of the sphere.
struct DlogTemp final : Form {
  DlogTemp() : Form("dlogTemp", "Water properties") {}
  Label lblTemp{*this, "lblTemp", "Temperature (C)"};
  TextInput txtTemp{*this, "txtTemp", "5", "Temperature of the water in degrees Celsius, 0 to 100"};
  Label lblDensity{*this, "lblDensity", "Density (kg/m3)"};
  TextInput txtDensity{*this, "txtDensity", "0.99996382125", "Density of the water in g/cm3; follows the temperature"};
  CheckBox chkRI_Complex{*this, "chkRI_Complex", "Complex values of refractive index?", true,
                         "Take the absorption of water into account"};
};

/// The band of a calculation with several wavelengths.
struct DlogSpectrumBand final : Form {
  DlogSpectrumBand() : Form("dlogSpectrumBand", "Spectrum band") {}
  Label lblSpectrumMin{*this, "lblSpectrumMin", "Minimum wavelength (nm)"};
  TextInput txtSpectrumMin{*this, "txtSpectrumMin", "380", "Lower limit of the band in nanometres"};
  Label lblSpectrumMax{*this, "lblSpectrumMax", "Maximum wavelength (nm)"};
  TextInput txtSpectrumMax{*this, "txtSpectrumMax", "700", "Upper limit of the band in nanometres"};
};

/// Width of the running mean of the curves.
struct DlogAverage final : Form {
  DlogAverage() : Form("dlogAverage", "Average") {}
  Label lblAverageWidth{*this, "lblAverageWidth", "Width of the average"};
  TextInput txtAverage{*this, "txtAverage", "1", "Width of the running mean in the unit of the horizontal axis"};
};

/// A line colour of the user's own.
struct DlogPlotColour final : Form {
  DlogPlotColour() : Form("dlogPlotColour", "Line colour") {}
  Label lblPalette{*this, "lblPalette", "Colour"};
  SelectionList cboPalette{*this, "cboPalette", SelectionList::Style::Fixed, "Grey", "A colour to start from"};
  Label lblRed{*this, "lblRed", "Red"};
  TextInput txtRed{*this, "txtRed", "128", "Red channel of the line colour, 0 to 255"};
  Label lblGreen{*this, "lblGreen", "Green"};
  TextInput txtGreen{*this, "txtGreen", "128", "Green channel of the line colour, 0 to 255"};
  Label lblBlue{*this, "lblBlue", "Blue"};
  TextInput txtBlue{*this, "txtBlue", "128", "Blue channel of the line colour, 0 to 255"};
};

/// Every window and dialog of a session.
struct Forms : MaterialDialogs,
               LightDialogs,
               SizeDialogs,
               RayDialogs,
               AngleDialogs,
               BeamDialogs,
               DropDialogs,
               ImpulseDialogs,
               CompareDialogs {
  // Hundreds of controls are made here: in one place, not in each source that makes a session.
  Forms();
  ~Forms();

  Form1 form1;
  Form2 form2;
  DlogTemp dlogTemp;
  DlogSpectrumBand dlogSpectrumBand;
  DlogAverage dlogAverage;
  DlogPlotColour dlogPlotColour;
  DlogCoatedSphere dlogCoatedSphere;
  DlogInhomSphere dlogInhomSphere;
  DlogVolume dlogVolume;
  DlogCalibration dlogCalibration;

  /// All of them, the main window first.
  std::vector<Form*> All() {
    std::vector<Form*> all = {
        &form1,           &dlogTemp,   &dlogSpectrumBand, &dlogAverage, &dlogPlotColour, &dlogCoatedSphere,
        &dlogInhomSphere, &dlogVolume, &dlogCalibration,  &form2};
    for (const auto& more : {MaterialForms(), LightForms(), SizeForms(), RayForms(), AngleForms(), BeamForms(),
                             DropForms(), ImpulseForms(), CompareForms()})
      all.insert(all.end(), more.begin(), more.end());
    return all;
  }
  /// The form of that name, whatever its case; null where there is none.
  Form* Find(std::string_view name);
};

}  // namespace lumivex
