#pragma once

#include <array>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "materials/index/index_formulas.h"
#include "materials/index/index_table.h"

namespace lumivex {

/// The material of the Sellmeier equation as the user accepted it. Runs read this and not the inputs of the dialog, in
/// which the user may be looking at other entries of the catalogue.
struct SellmeierChoice {
  std::string name = "Schott BK7";
  SellmeierTerms terms = CrownGlass;
  double lowest = 0, highest = 0;  ///< wavelengths that the equation holds for (um); 0 is none
  bool quiet = false;              ///< nothing is said of wavelengths beyond them
  bool operator==(const SellmeierChoice&) const = default;
};

/// What a sphere in layers writes over the labels of the materials, and what stood there before. Empty while the label
/// is the material's own.
struct LayerLabels {
  std::string sphereShown, sphereKept, mediumShown, mediumKept;
  bool operator==(const LayerLabels&) const = default;
};

/// Refractive indices at the last wavelength looked up, the parameters of their models and the tables read from files.
struct MaterialState {
  double RefractReal = 0;               ///< n of the sphere
  double RefractImag = 0;               ///< k of the sphere
  double RefractMedium = 1;             ///< n of the medium
  double RefractMediumImag = 0;         ///< always 0
  float MaterialTemp = 5;               ///< temperature of the water (C)
  float TempRatio = 278.15F / 273.15F;  ///< (T + 273.15) / 273.15
  float WaterDensity = 0.99996382F;     ///< g/cm3
  float LookupWavelength = 0;           ///< wavelength rounded to single precision, as the tables are searched (um)
  int RIUserEdited = 0;                 ///< 1 when an index was typed in since the last evaluation
  int SphereIndexTyped = 0;             ///< 1 while the sphere's index is one that was typed in
  int SphereIndexVaries = 0;            ///< 1 while the sphere is named after a graph that varies its index
  int MediumIndexTyped = 0;             ///< 1 from the typing of the medium's index to its next evaluation
  std::string SphereCaptionBefore;      ///< caption of lblSphere before an index was typed in
  LayerLabels Layers;

  // The four points of the user-defined materials, first index 1; wavelengths in um.
  std::vector<double> UserLambda1 = std::vector<double>(5);
  std::vector<double> UserRI1 = std::vector<double>(5);
  std::vector<double> UserLambda2 = std::vector<double>(5);
  std::vector<double> UserRI2 = std::vector<double>(5);

  // Tables from files, sphere (1) and medium (2): rows 1 to FileRows, um; columns 0 n, 1 k, 2 unused.
  std::vector<float> FileLambda1, FileLambda2;
  std::vector<std::array<float, 3>> FileData1, FileData2;
  std::shared_ptr<const IndexTable> FileTable1, FileTable2;  ///< the same, as runs share them; null before a file
  int FileRows1 = 0, FileRows2 = 0;
  float FileFirst1 = 0, FileLast1 = 0;  ///< first and last wavelength of the sphere's table (um)
  float FileFirst2 = 0, FileLast2 = 0;  ///< the same of the medium's
  std::string FileName1, FileName2;     ///< the material's name in the file

  SellmeierChoice Sellmeier;

  std::string LastFile;             ///< path of the last input file chosen
  std::string CatalogueFolder;      ///< where Dispersion.rxi and DispersionBackup.rxi were delivered; empty: nowhere
  std::string CatalogueUserFolder;  ///< where the user's own Dispersion.rxi lies or is put; empty: nowhere
  int CatalogueIndex = 0;           ///< entry of the catalogue last chosen, from 0
};

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, MaterialState>
void ForEachField(Group& g, Visitor&& visit) {
  visit("RefractReal", g.RefractReal);
  visit("RefractImag", g.RefractImag);
  visit("RefractMedium", g.RefractMedium);
  visit("RefractMediumImag", g.RefractMediumImag);
  visit("MaterialTemp", g.MaterialTemp);
  visit("TempRatio", g.TempRatio);
  visit("WaterDensity", g.WaterDensity);
  visit("LookupWavelength", g.LookupWavelength);
  visit("RIUserEdited", g.RIUserEdited);
  visit("SphereIndexTyped", g.SphereIndexTyped);
  visit("SphereIndexVaries", g.SphereIndexVaries);
  visit("MediumIndexTyped", g.MediumIndexTyped);
  visit("SphereCaptionBefore", g.SphereCaptionBefore);
  visit("LayerSphereShown", g.Layers.sphereShown);
  visit("LayerSphereKept", g.Layers.sphereKept);
  visit("LayerMediumShown", g.Layers.mediumShown);
  visit("LayerMediumKept", g.Layers.mediumKept);
  visit("UserLambda1", g.UserLambda1);
  visit("UserRI1", g.UserRI1);
  visit("UserLambda2", g.UserLambda2);
  visit("UserRI2", g.UserRI2);
  visit("FileLambda1", g.FileLambda1);
  visit("FileData1", g.FileData1);
  visit("FileRows1", g.FileRows1);
  visit("FileFirst1", g.FileFirst1);
  visit("FileLast1", g.FileLast1);
  visit("FileName1", g.FileName1);
  visit("FileLambda2", g.FileLambda2);
  visit("FileData2", g.FileData2);
  visit("FileRows2", g.FileRows2);
  visit("FileFirst2", g.FileFirst2);
  visit("FileLast2", g.FileLast2);
  visit("FileName2", g.FileName2);
  visit("SellmeierName", g.Sellmeier.name);
  visit("SellmeierTerms", g.Sellmeier.terms);
  visit("SellmeierMin", g.Sellmeier.lowest);
  visit("SellmeierMax", g.Sellmeier.highest);
  visit("LastFile", g.LastFile);
  visit("CatalogueFolder", g.CatalogueFolder);
  visit("CatalogueUserFolder", g.CatalogueUserFolder);
  visit("CatalogueIndex", g.CatalogueIndex);
}

}  // namespace lumivex
