#pragma once

#include <map>
#include <string>
#include <type_traits>
#include <vector>

#include "record/main_form_state.h"

namespace lumivex {

/// A field as bytes, by which a change is seen. The kinds that are not told apart hold results only.
template <class Field>
std::string BytesOf(const Field& field) {
  if constexpr (std::is_same_v<Field, std::string>) {
    return field;
  } else if constexpr (std::is_same_v<Field, AmplitudeTable>) {
    const auto re = field.RealParts(), im = field.ImaginaryParts();
    return BytesOf(std::vector<double>(re.begin(), re.end())) + BytesOf(std::vector<double>(im.begin(), im.end()));
  } else if constexpr (requires { field.data(); }) {
    using Element = std::remove_cvref_t<decltype(*field.data())>;
    if constexpr (std::is_trivially_copyable_v<Element>)
      return {reinterpret_cast<const char*>(field.data()), field.size() * sizeof(Element)};
    return {};
  } else if constexpr (std::is_trivially_copyable_v<Field>) {
    return {reinterpret_cast<const char*>(&field), sizeof(Field)};
  } else {
    return {};
  }
}

/// Every field of the record by name, as bytes.
using RecordSnapshot = std::map<std::string, std::string>;

inline RecordSnapshot SnapshotOf(const MainFormState& state) {
  RecordSnapshot fields;
  ForEachStateField(state, [&](std::string_view name, const auto& f) { fields[std::string(name)] = BytesOf(f); });
  return fields;
}

}  // namespace lumivex
