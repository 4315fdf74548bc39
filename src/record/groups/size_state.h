#pragma once

#include <string>
#include <type_traits>
#include <vector>

namespace lumivex {

/// The size distribution: its samples and the table of a size file. Lists have the first index 1; sizes in um.
struct SizeState {
  std::string DistribInUse = "Log-normal";       ///< the distribution that the sizes stand for
  double RelativeSD = 0;                         ///< standard deviation over the mean radius
  std::vector<float> DistSample = {0.0F, 0.0F};  ///< points of the standard normal distribution, equally probable
  std::vector<double> DistRadius;                ///< radius of each sample of a model or file
  std::vector<double> DistWeight;                ///< number of each
  float DistMin = 0;                             ///< range of a model
  float DistMax = 0;
  double DistRatio = 1;  ///< ratio of neighbouring samples; 1 with equal steps

  std::vector<float> SizeTableUniform;     ///< size of each row of the file: as given, or the lower end of a class
  std::vector<float> SizeTableUpper;       ///< upper end of a class; 0 in a uniform table
  std::vector<float> SizeTableNonUniform;  ///< middle of each class
  std::vector<float> SizeTableNumber;      ///< number of particles in each row
  int SizeTableMode = 0;                   ///< 1: classes with a lower and an upper end (non-uniform)
  int SizeFileCount = 0;                   ///< rows
  int SizeFileLoaded = 0;                  ///< 1 after a good read
  float SizeFileMin = 0;                   ///< limits of the distribution in the file
  float SizeFileMax = 0;
  double SizeFileTotal = 0;  ///< sum of the numbers as they stand in the table
  double SizeFilePeak = 0;   ///< the largest of them
  std::string SizeFileName;  ///< its path

  double GammaThird = 0;  ///< gamma function of 1/3, 0.5, -0.5, -1.5 and 5
  double GammaHalf = 0;
  double GammaMinusHalf = 0;
  double GammaMinusThreeHalves = 0;
  double GammaFive = 0;
};

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, SizeState>
void ForEachField(Group& g, Visitor&& visit) {
  visit("DistribInUse", g.DistribInUse);
  visit("RelativeSD", g.RelativeSD);
  visit("DistSample", g.DistSample);
  visit("DistRadius", g.DistRadius);
  visit("DistWeight", g.DistWeight);
  visit("DistMin", g.DistMin);
  visit("DistMax", g.DistMax);
  visit("DistRatio", g.DistRatio);
  visit("SizeTableUniform", g.SizeTableUniform);
  visit("SizeTableUpper", g.SizeTableUpper);
  visit("SizeTableNonUniform", g.SizeTableNonUniform);
  visit("SizeTableNumber", g.SizeTableNumber);
  visit("SizeTableMode", g.SizeTableMode);
  visit("SizeFileCount", g.SizeFileCount);
  visit("SizeFileLoaded", g.SizeFileLoaded);
  visit("SizeFileMin", g.SizeFileMin);
  visit("SizeFileMax", g.SizeFileMax);
  visit("SizeFileTotal", g.SizeFileTotal);
  visit("SizeFilePeak", g.SizeFilePeak);
  visit("SizeFileName", g.SizeFileName);
  visit("GammaThird", g.GammaThird);
  visit("GammaHalf", g.GammaHalf);
  visit("GammaMinusHalf", g.GammaMinusHalf);
  visit("GammaMinusThreeHalves", g.GammaMinusThreeHalves);
  visit("GammaFive", g.GammaFive);
}

}  // namespace lumivex
