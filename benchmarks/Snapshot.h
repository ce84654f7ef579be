#pragma once

#include "Models.h"
#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Dictionary.h"

// Converts a struct to a dictionary by property name, so that the results of all implementations
// can be compared.

namespace orvanta::benchmarks {

/// Converts a peer's free-form value; each peer specializes it for its own type.
template <class Tree>
Value valueOf(const Tree& tree);

template <class T>
inline constexpr bool kIsVector = false;
template <class T>
inline constexpr bool kIsVector<std::vector<T>> = true;

/// Converts anything that a property can hold.
template <class T>
Value snapshotOf(const T& source) {
  if constexpr (requires { Fields<T>::kAll; }) {
    Dictionary snapshot;
    eachField<T>(
        [&](const auto& field) { snapshot.set(field.property, snapshotOf(source.*field.member)); });
    return snapshot;
  } else if constexpr (requires { source.has_value(); }) {
    return source ? snapshotOf(*source) : Value();
  } else if constexpr (kIsVector<T>) {
    Array all;
    for (const auto& element : source) all.append(snapshotOf(element));
    return all;
  } else if constexpr (std::is_arithmetic_v<T> || std::same_as<T, std::string>) {
    return source;
  } else if constexpr (std::same_as<T, Url>) {
    return source.text;
  } else if constexpr (std::same_as<T, Date>) {
    return source.secondsSince1970;
  } else {
    return valueOf<T>(source);
  }
}

}  // namespace orvanta::benchmarks
