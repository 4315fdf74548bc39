#pragma once

#include "record/form.h"

namespace lumivex {

/// The inputs, lists, options, labels and buttons of the main window, each declared once. Lists are filled when the
/// session opens; a caption that depends on the graph is written when the graph is chosen.
struct Form1Inputs : Form {
  Form1Inputs() : Form("Form1", "Lumivex") {}

  using List = SelectionList;
  static constexpr auto Fixed = List::Style::Fixed;
  static constexpr auto Typed = List::Style::Editable;

  // Commands.
  CommandButton cmdNewPlot{*this, "cmdNewPlot", "New plot", "Calculate and draw a new graph (Enter)"};
  CommandButton cmdOverPlot{*this, "cmdOverPlot", "Overplot", "Calculate and draw over the present graph"};
  CommandButton cmdReplot{*this, "cmdReplot", "Replot", "Draw the present results again, without calculating"};
  CommandButton cmdStop{*this, "cmdStop", "Stop", "Stop the calculation (Esc)"};
  CommandButton cmdSimulation{*this, "cmdSimulation", "Simulation", "Paint the result over a photograph"};
  CommandButton cmdExit{*this, "cmdExit", "Exit", "Close Lumivex"};
  CommandButton cmdInfo{*this, "cmdInfo", "Info", "Show or hide the parameters of the run"};
  CommandButton cmdDefault{*this, "cmdDefault", "Restore defaults", "Restore the parameters of the start"};
  CommandButton cmdColourTest{*this, "cmdColourTest", "Colour test", "Draw the key of the false colours"};

  // Calculation.
  Frame Frame1{*this, "Frame1", "Calculation"};
  List cboType{*this, "cboType", Fixed, "Mie", "Calculation method"};
  List cboGraph{*this, "cboGraph", Fixed, "Intensity v. scattering angle", "Graph to be drawn"};
  Label Label8{*this, "Label8", "Polarisation"};
  List cboPol{*this, "cboPol", Fixed, "Both", "Polarisation of the curves, relative to the scattering plane"};
  Label Label9{*this, "Label9", "p"};
  List cboRays{*this, "cboRays", Typed, "2", "Number p of internal reflections"};
  Label lblQminQmax{*this, "lblQminQmax", "J min, max"};
  List cboQmin{*this, "cboQmin", Typed, "1", "First pole J of the surface waves that are added, 1 the least damped"};
  List cboQmax{*this, "cboQmax", Typed, "1",
               "Last pole J of the surface waves that are added, to 25; 10 are enough nearly everywhere"};
  Label lblSWAmp{*this, "lblSWAmp", "Amplitude"};
  TextInput txtSWAmp{*this, "txtSWAmp", "1", "Factor on the amplitudes of surface waves"};
  CheckBox chkDiffraction{*this, "chkDiffraction", "+ Diffraction", false, "Add the diffraction of the sphere's disc"};

  // Particle.
  Frame Frame3{*this, "Frame3", "Drop size"};
  OptionButton optMono{*this, "optMono", "size", "Mono", true, "All spheres have one size"};
  OptionButton optDisp{*this, "optDisp", "size", "Disperse", false, "Sizes are distributed"};
  Label Label7{*this, "Label7", "Radius (\u00B5m)"};
  TextInput txtRadius{*this, "txtRadius", "10", "Radius of the sphere in micrometres"};
  Label Label24{*this, "Label24", "Maximum radius"};
  TextInput txtRmax{*this, "txtRmax", "20", "Largest radius of the size axis in micrometres"};
  Label lblRstep{*this, "lblRstep", "No. of steps"};
  TextInput txtRstep{*this, "txtRstep", "4", "Number of steps of the size axis"};
  List cboDistrib{*this, "cboDistrib", Fixed, "Log-normal", "Size distribution"};
  Label Label11{*this, "Label11", "Std Dev %"};
  List cboSD{*this, "cboSD", Typed, "5", "Standard deviation of the radius in per cent"};
  Label Label13{*this, "Label13", "Samples"};
  List cboN{*this, "cboN", Typed, "1", "Number of samples of the size distribution"};

  // Light.
  Frame Frame4{*this, "Frame4", "Light"};
  Label Label4{*this, "Label4", "Wavelengths"};
  List cboWave{*this, "cboWave", Typed, "1", "Number of wavelengths in the calculation"};
  Label Label6{*this, "Label6", "Wavelength (\u00B5m) in vacuo"};
  TextInput txtLambda{*this, "txtLambda", "0.65", "Wavelength in vacuum, in micrometres"};
  OptionButton optPoint{*this, "optPoint", "source", "Point", true, "Light from one direction"};
  OptionButton optSun{*this, "optSun", "source", "Sun", false, "Light from a disc 0.5 degrees wide"};
  Label lblSpectrum{*this, "lblSpectrum", "Sun (Lee)"};
  Label lblSpectrumBand{*this, "lblSpectrumBand", "380 - 700 nm band"};
  CheckBox chkComponents{*this, "chkComponents", "Components", false, "Show red, green and blue apart"};
  Label lblWatts{*this, "lblWatts"};
  Label lblDistance{*this, "lblDistance"};

  // Refractive indices.
  Frame Frame5{*this, "Frame5", "Refractive index"};
  Label lblSphere{*this, "lblSphere", "Sphere: Water (IAPWS 5C Complex)"};
  TextInput txtRefractReal{*this, "txtRefractReal", "1.3325704", "Refractive index n of the sphere (real part)"};
  Label Label10{*this, "Label10", "+ i"};
  TextInput txtRefractImag{*this, "txtRefractImag", "0", "Absorption index k of the sphere (imaginary part)"};
  Label lblRI_Medium{*this, "lblRI_Medium", "Medium: Vacuum"};
  TextInput txtRefractMedium{*this, "txtRefractMedium", "1", "Refractive index of the medium around the sphere"};

  // Horizontal axis.
  Frame Frame2{*this, "Frame2", "Angle scale"};
  Label Label3{*this, "Label3", "Minimum angle"};
  TextInput txtXmin{*this, "txtXmin", "0", "Lowest value of the horizontal axis (scattering angle in degrees)"};
  Label Label2{*this, "Label2", "Maximum angle"};
  TextInput txtXmax{*this, "txtXmax", "180", "Highest value of the horizontal axis (scattering angle in degrees)"};
  Label Label5{*this, "Label5", "Angular resolution"};
  List cboStep{*this, "cboStep", Typed, "0.1", "Step of the calculation (degrees), or number of steps"};
  OptionButton OptXLinear{*this, "OptXLinear", "xscale", "Linear", true, "Linear horizontal axis"};
  OptionButton optXLog{*this, "optXLog", "xscale", "Log", false, "Logarithmic horizontal axis"};

  // Further axis of Lee diagrams, maps, impulse and power graphs.
  Frame Frame9{*this, "Frame9", "Scattering angle"};
  Label Label19{*this, "Label19", "Scattering angle"};
  TextInput txtAngle{*this, "txtAngle", "138", "Scattering angle in degrees"};
  Label Label30{*this, "Label30", "Imaginary part"};
  TextInput txtF9_fixed{*this, "txtF9_fixed", "0", "Value that stays fixed along the further axis"};
  Label Label32{*this, "Label32", "Real part"};
  TextInput txtF9_min{*this, "txtF9_min", "1.1", "Lowest value of the further axis"};
  TextInput txtF9_max{*this, "txtF9_max", "1.5", "Highest value of the further axis"};
  Label Label35{*this, "Label35", "No. of steps"};
  TextInput txtF9_step{*this, "txtF9_step", "4", "Number of steps of the further axis"};

  // Vertical axis and brightness.
  Frame Frame8{*this, "Frame8", "Intensity scale"};
  Label Label1{*this, "Label1", "Maximum"};
  List cboYmax{*this, "cboYmax", Typed, "Automatic", "Top of the vertical axis"};
  Label Label12{*this, "Label12", "Minimum"};
  List cboYmin{*this, "cboYmin", Typed, "Automatic", "Bottom of the vertical axis"};
  OptionButton OptLog{*this, "OptLog", "yscale", "Log", true, "Logarithmic vertical axis"};
  OptionButton optLinear{*this, "optLinear", "yscale", "Linear", false, "Linear vertical axis"};
  Label Label18{*this, "Label18", "Brightness"};
  List cboBright{*this, "cboBright", Typed, "1", "Brightness of the colours"};
  Label Label26{*this, "Label26", "Lee diagram"};
  List cboLee{*this, "cboLee", Fixed, "Normalised",
              "Normalised = each column set to max brightness, Absolute = normalised to max overall brightness "};

  // Run and result.
  TextInput txtProgress{*this, "txtProgress", "% complete", "Progress of the calculation"};
  Label lblDebyeRays{*this, "lblDebyeRays", "Mie (plane wave)"};
  Label lblAverage{*this, "lblAverage", "Average  "};
  Label lblLogo{*this, "lblLogo", "Lumivex"};
  Frame Frame6{*this, "Frame6", "Parameters of the run"};

  // Panels beside the graph.
  Picture Picture1{*this, "Picture1"};
  Picture Picture2{*this, "Picture2"};
  Picture Picture3{*this, "Picture3"};
  Picture Picture1a{*this, "Picture1a"};
  Picture Picture2a{*this, "Picture2a"};
  Picture Picture3a{*this, "Picture3a"};
  Picture Picture1b{*this, "Picture1b"};
  Picture Picture2b{*this, "Picture2b"};
  Picture Picture3b{*this, "Picture3b"};
};

}  // namespace lumivex
