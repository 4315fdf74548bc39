#pragma once

#include "record/form.h"

namespace lumivex {

/// A sphere whose refractive index goes with the distance r from its centre, 1 at the surface.
struct DlogInhomSphere final : Form {
  DlogInhomSphere();

  static constexpr const char* group = "equation";

  Frame frmEquation{*this, "frmEquation", "Refractive index equation"};
  OptionButton optLinear{
      *this, "optLinear", group, "Coated sphere (linear transition)", true, "Two parts, joined by a straight line"};
  OptionButton optCosine{
      *this, "optCosine", group, "Coated sphere (sinusoidal transition)", false, "Two parts, joined by half a cosine"};
  OptionButton opt3Layer{
      *this, "opt3Layer", group, "3-layer (sinusoidal transitions)", false, "Three parts, joined by half cosines"};
  OptionButton OptModLuneburg{*this, "OptModLuneburg",
                              group, "Mod. Luneburg  Sqrt [1 + F -  F r^2]",
                              false, "A lens that ends with the index 1"};
  OptionButton optLuneburg{*this, "optLuneburg",
                           group, "Luneburg    Sqrt [2 J - K r^2 ]",
                           false, "J = 1 and K = 1 is the lens that has its focus on the surface"};
  OptionButton optExponential{
      *this, "optExponential", group, "Exponential:  J + K r^L", false, "A power of r, never more than nMax"};
  OptionButton optPolynomial{*this, "optPolynomial",    group, "Polynomial:  J + K r + L r^2 + M r^3",
                             false, "A polynomial of r"};
  OptionButton optSinusoidal{*this, "optSinusoidal",
                             group, "Sinusoidal  J + K sin[2 L pi (r/a) + M]",
                             false, "L waves from the centre to the surface"};

  Frame frmCoated{*this, "frmCoated", "Coated sphere: transition points"};
  Label lblR1{*this, "lblR1", "r1  <"};
  TextInput txtR1{*this, "txtR1", "0.4", "Where the inner part ends, 0 to 1"};
  Label lblN1{*this, "lblN1", "n1"};
  TextInput txtN1{*this, "txtN1", "1.5", "Refractive index of the inner part"};
  Label lblR2{*this, "lblR2", "r2  >"};
  TextInput txtR2{*this, "txtR2", "0.7", "Where the outer part begins, 0 to 1"};
  Label lblN2{*this, "lblN2", "n2"};
  TextInput txtN2{*this, "txtN2", "1.3333", "Refractive index of the outer part"};

  Frame frm3Layer{*this, "frm3Layer", "3-layer sphere: transition points"};
  Label lbl3R1{*this, "lbl3R1", "r1, n1"};
  TextInput txt3R1{*this, "txt3R1", "0.25", "Where the first part ends, 0 to 1"};
  TextInput txt3N1{*this, "txt3N1", "1.7", "Refractive index of the first part"};
  Label lbl3R2{*this, "lbl3R2", "r2, n2"};
  TextInput txt3R2{*this, "txt3R2", "0.4166", "Where the second part begins, 0 to 1"};
  TextInput txt3N2{*this, "txt3N2", "1.416", "Refractive index where the second part begins"};
  Label lbl3R3{*this, "lbl3R3", "r3, n3"};
  TextInput txt3R3{*this, "txt3R3", "0.5", "Where the second part ends, 0 to 1"};
  TextInput txt3N3{*this, "txt3N3", "1.416", "Refractive index where the second part ends"};
  Label lbl3R4{*this, "lbl3R4", "r4, n4"};
  TextInput txt3R4{*this, "txt3R4", "0.8333", "Where the third part begins, 0 to 1"};
  TextInput txt3N4{*this, "txt3N4", "1.132", "Refractive index of the third part"};

  Frame frmModLuneburg{*this, "frmModLuneburg", "Modified Luneburg sphere"};
  Label lblF{*this, "lblF", "F"};
  TextInput txtF{*this, "txtF", "1", "F of Sqrt [1 + F - F r^2]; 0 is no sphere at all"};

  Frame frmLuneburg{*this, "frmLuneburg", "Luneburg sphere"};
  Label lblLB{*this, "lblLB", "J"};
  TextInput txtLB{*this, "txtLB", "1", "J of Sqrt [2 J - K r^2]"};
  Label lblLC{*this, "lblLC", "K"};
  TextInput txtLC{*this, "txtLC", "0.7", "K of Sqrt [2 J - K r^2]"};

  Frame frmExponential{*this, "frmExponential", "Exponential"};
  Label lblJ{*this, "lblJ", "J"};
  TextInput txtJ{*this, "txtJ", "0.3333", "J of J + K r^L"};
  Label lblK{*this, "lblK", "K"};
  TextInput txtK{*this, "txtK", "1", "K of J + K r^L"};
  Label lblL{*this, "lblL", "L"};
  TextInput txtL{*this, "txtL", "-0.2", "L of J + K r^L"};
  Label lblnMax{*this, "lblnMax", "nMax"};
  TextInput txtnMax{*this, "txtnMax", "2", "Largest refractive index, and that of the centre"};

  Frame frmPolynomial{*this, "frmPolynomial", "Polynomial"};
  Label lblJ1{*this, "lblJ1", "J"};
  TextInput txtJ1{*this, "txtJ1", "1.5", "J of J + K r + L r^2 + M r^3"};
  Label lblK1{*this, "lblK1", "K"};
  TextInput txtK1{*this, "txtK1", "0", "K of J + K r + L r^2 + M r^3"};
  Label lblL1{*this, "lblL1", "L"};
  TextInput txtL1{*this, "txtL1", "-0.1667", "L of J + K r + L r^2 + M r^3"};
  Label lblM1{*this, "lblM1", "M"};
  TextInput txtM1{*this, "txtM1", "0", "M of J + K r + L r^2 + M r^3"};

  Frame frmSinusoidal{*this, "frmSinusoidal", "Sinusoidal"};
  Label lblJ2{*this, "lblJ2", "J"};
  TextInput txtJ2{*this, "txtJ2", "1.3333", "J of J + K sin(2 pi L r + M)"};
  Label lblK2{*this, "lblK2", "K"};
  TextInput txtK2{*this, "txtK2", "0.3333", "K of J + K sin(2 pi L r + M)"};
  Label lblL2{*this, "lblL2", "L"};
  TextInput txtL2{*this, "txtL2", "1", "L of J + K sin(2 pi L r + M): waves within the radius"};
  Label lblM2{*this, "lblM2", "M"};
  TextInput txtM2{*this, "txtM2", "0", "M of J + K sin(2 pi L r + M), in degrees"};

  Label lblEquation{*this, "lblEquation"};
  Label lblEquation2{*this, "lblEquation2"};
  Picture picProfile{*this, "picProfile", "Refractive index against the distance from the centre"};
  CheckBox chkGraphUpdate{*this, "chkGraphUpdate", "Graph update", true, "Draw the profile anew after each change"};

  Label lblLayers{*this, "lblLayers", "No. of layers"};
  SelectionList cboLayers{*this, "cboLayers", SelectionList::Style::Fixed, "128",
                          "Uniform layers of equal depth that take the place of the profile"};
  Frame frmVersion{*this, "frmVersion", "Version"};
  OptionButton optOldCode{*this, "optOldCode", "version", "Old code", false, "Recursion with tangents"};
  OptionButton optNewCode{*this, "optNewCode", "version", "New code", true, "Recursion with ratios"};
  CheckBox chkOverwrite{*this, "chkOverwrite", "Overwite?", true,
                        "OK draws a new graph; without it a curve over the last one"};
};

}  // namespace lumivex
