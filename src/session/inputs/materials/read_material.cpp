#include "session/inputs/materials/read_material.h"

#include "record/number_text.h"

namespace lumivex {

namespace {

Material Formula(const Session& session) {
  return SellmeierGlass{session.state.Sellmeier.terms};
}

Material Ray(const Session& session) {
  return WaterTable{WaterSource::Ray, session.forms.dlogRay.chkRI_Complex.Checked};
}

Material Segelstein(const Session& session) {
  return WaterTable{WaterSource::Segelstein, session.forms.dlogSegelstein.chkRI_Complex.Checked};
}

Material SphereFile(const Session& session) {
  const auto& s = session.state;
  return IndexFromFile{s.FileTable1, RuleTicked(session.form1), {s.FileRows1, false}};
}

Material MediumFile(const Session& session) {
  const auto& s = session.state;
  return IndexFromFile{s.FileTable2, RuleTicked(session.form1), {s.FileRows1, true}};
}

template <MetalName metal>
Material Metal(const Session& session) {
  return MetalFilm{metal, RuleTicked(session.form1)};
}

Material KayeLaby(const Session&) {
  return WaterKayeLaby{};
}

Material WaterOf(const TextInput& txtTemp, const TextInput& txtDensity, bool complex) {
  return WaterFormula{Val(txtDensity.Text), (Val(txtTemp.Text) + 273.15) / 273.15, complex};
}

Material SphereWater(const Session& session) {
  const auto& d = session.forms.dlogTemp;
  return WaterOf(d.txtTemp, d.txtDensity, d.chkRI_Complex.Checked);
}

Material MediumWater(const Session& session) {
  const auto& d = session.forms.dlogTemp2;
  return WaterOf(d.txtTemp, d.txtDensity, false);
}

Material Air(const Session& session) {
  return AirAt{Val(session.forms.dlogAir.txtAirTemp.Text)};
}

Material Empty(const Session&) {
  return Vacuum{};
}

Material SphereFields(const Session& session) {
  return FixedIndex{Val(session.form1.txtRefractReal.Text), Val(session.form1.txtRefractImag.Text)};
}

Material MediumField(const Session& session) {
  return FixedIndex{Val(session.form1.txtRefractMedium.Text), 0};
}

Material SphereDielectric(const Session& session) {
  const auto& d = session.forms.dlogDielectric;
  return FixedDielectric{Val(d.txtDFreal.Text), Val(d.txtDFimag.Text)};
}

Material MediumDielectric(const Session& session) {
  return FixedDielectric{Val(session.forms.dlogDielectric2.txtDFreal2.Text), 0};
}

Material PointsOf(const UserMaterialDialog& d) {
  return FourPoints{{Val(d.txtRI_lambda1_1.Text), Val(d.txtRI_lambda1_2.Text), Val(d.txtRI_lambda1_3.Text),
                     Val(d.txtRI_lambda1_4.Text)},
                    {Val(d.txtRI_1_1.Text), Val(d.txtRI_1_2.Text), Val(d.txtRI_1_3.Text), Val(d.txtRI_1_4.Text)}};
}

Material SpherePoints(const Session& session) {
  return PointsOf(session.forms.dlogRI_User1);
}

Material MediumPoints(const Session& session) {
  return PointsOf(session.forms.dlogRI_User2);
}

struct Model {
  MenuEntry Form1Menus::*entry;  ///< null: an index that the user typed in
  Material (*read)(const Session&);
};

constexpr Model sphereModels[] = {
    {&Form1Menus::mnuRI_Formula, Formula},
    {&Form1Menus::mnuRI_Ray, Ray},
    {&Form1Menus::mnuRI_Segelstein, Segelstein},
    {&Form1Menus::mnuRI_File1, SphereFile},
    {&Form1Menus::mnuRI_Au, Metal<MetalName::Gold>},
    {&Form1Menus::mnuRI_Ag, Metal<MetalName::Silver>},
    {&Form1Menus::mnuRI_Cu, Metal<MetalName::Copper>},
    {&Form1Menus::mnuRI_KayeLaby, KayeLaby},
    {&Form1Menus::mnuRI_IAPWS, SphereWater},
    {&Form1Menus::mnuRI_Air1, Air},
    {&Form1Menus::mnuRI_Vacuum1, Empty},
    {nullptr, SphereFields},
    {&Form1Menus::mnuRI_Fixed1, SphereFields},
    {&Form1Menus::mnuRI_Perm1, SphereDielectric},
    {&Form1Menus::mnuRI_User1, SpherePoints},
};

constexpr Model mediumModels[] = {
    {nullptr, MediumField},
    {&Form1Menus::mnuRI_Air2, Air},
    {&Form1Menus::mnuRI_Vacuum2, Empty},
    {&Form1Menus::mnuRI_Fixed2, MediumField},
    {&Form1Menus::mnuRI_File2, MediumFile},
    {&Form1Menus::mnuRI_IAPWS2, MediumWater},
    {&Form1Menus::mnuRI_User2, MediumPoints},
    {&Form1Menus::mnuRI_Segelstein2, Segelstein},
    {&Form1Menus::mnuRI_Perm2, MediumDielectric},
};

template <std::size_t count>
Material LastChosen(const Session& session, const Model (&models)[count], bool typed) {
  const Model* chosen = nullptr;
  for (const Model& model : models)
    if (model.entry == nullptr ? typed : (session.form1.*model.entry).Checked) chosen = &model;
  return chosen == nullptr ? Material(IndexFromFile{}) : chosen->read(session);
}

}  // namespace

TableRule RuleTicked(const Form1& form) {
  return form.mnuInterpolate.Checked ? TableRule::Cubic : TableRule::Linear;
}

Material SphereMaterial(const Session& session) {
  return LastChosen(session, sphereModels, session.state.SphereIndexTyped != 0);
}

Material MediumMaterial(const Session& session) {
  return LastChosen(session, mediumModels, session.state.MediumIndexTyped != 0);
}

std::string NameOfMaterial(const std::string& given) {
  return Trim(given).empty() ? "unnamed material" : given;
}

MaterialWords SphereWords(const Session& session) {
  const auto& form = session.form1;
  MaterialWords words{session.state.SphereName, form.lblSphere.Caption};
  if (form.mnuRI_Perm1.Checked) words.caption = "Sphere: Fixed dielectric function";
  if (form.mnuRI_User1.Checked) {
    words.name = NameOfMaterial(session.forms.dlogRI_User1.txtMaterial.Text);
    words.caption = "Sphere: " + words.name;
  }
  return words;
}

MaterialWords MediumWords(const Session& session) {
  const auto& form = session.form1;
  MaterialWords words{session.state.MediumName, form.lblRI_Medium.Caption};
  if (form.mnuRI_Fixed2.Checked) words.caption = "Medium: Fixed refractive index";
  if (form.mnuRI_User2.Checked) {
    words.name = NameOfMaterial(session.forms.dlogRI_User2.txtMaterial.Text);
    words.caption = "Medium: " + words.name;
  }
  if (form.mnuRI_Perm2.Checked) words.caption = "Medium: Fixed dielectric function";
  // A map that varies its index is not in the material that is ticked.
  if (ChosenGraph(session.state).VariesMedium()) words.caption = form.lblRI_Medium.Caption;
  return words;
}

}  // namespace lumivex
