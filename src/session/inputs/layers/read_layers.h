#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "record/session.h"
#include "runs/request.h"

namespace lumivex {

/// The layers of a coated sphere, by the numbers that its dialog and scripts know them by.
enum Layer { coreLayer = 1, shellLayer = 2, mediumLayer = 3 };

/// The list of materials and the index field of a layer.
struct LayerInputs {
  SelectionList& material;
  TextInput& index;
};
LayerInputs InputsOfLayer(DlogCoatedSphere& dialog, int layer);

/// The material of a layer as its list and field in dlogCoatedSphere stand. Layers are of the materials that RIcoat
/// knows; what is typed, vacuum and glass do not absorb.
Material LayerMaterial(const Session& session, int layer);

/// The core of the coated sphere.
SphereCore ReadCore(const Session& session);
/// The radius of the whole coated sphere (um).
double MantleRadius(const Session& session);

/// Why the selection of ways names none.
struct NoPath {
  std::vector<Control*> marked;
  std::string text;
};
std::optional<NoPath> PathsRefused(Session& session);

/// The ways whose Debye terms are added, each with its weight; nothing where the whole sphere is calculated. A
/// selection that names no way gives an empty list.
std::optional<std::vector<WeightedPath>> ReadPaths(const Session& session);

/// The selection in words: "p1r1: N-A-B 2-4-1, 2 ways"; empty without one.
std::string PathWords(const Session& session);

/// N, A and B of the selection, as labels have them: A and B are empty where it holds several.
struct PathNumbers {
  std::string N, A, B;
};
std::optional<PathNumbers> NumbersOfPath(const Session& session);

/// Which recursion of the Debye terms.
WaveRecursion ReadRecursion(const DlogCoatedSphere& dialog);

/// The profile that the option and its fields in dlogInhomSphere stand for, and how it is taken apart.
ProfileLayers ReadProfile(const Session& session);

/// n at the distance x from the centre, 1 at the surface, by the option and the fields as they stand.
void RefractiveIndex(const Session& session, double x, double& n);

/// A shape of profile in dlogInhomSphere: its option, its frame, and the fields of its parameters in their order with
/// the labels beside them.
struct ProfileRow {
  OptionButton DlogInhomSphere::*option;
  ProfileShape shape;
  Frame DlogInhomSphere::*frame;
  std::array<TextInput DlogInhomSphere::*, 8> fields{};  ///< null beyond the last
  std::array<Label DlogInhomSphere::*, 4> labels{};
};
std::span<const ProfileRow> ProfileRows();
/// That of the option that is on.
const ProfileRow& ChosenProfile(const DlogInhomSphere& dialog);

/// The profile as an equation: "n(r) = 1.5 - 0.1667 r^2".
std::string ProfileEquation(const IndexProfile& profile);

}  // namespace lumivex
