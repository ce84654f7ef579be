#pragma once

#include "Models.h"
#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Dictionary.h"

// What the structs hold, as values by property name: equal for all contenders that read a text
// alike.

namespace orvanta::benchmarks {

/// A peer's free-form value as ours; each peer defines it for its own.
template <class Tree>
Value valueOf(const Tree& tree);

template <class T>
inline constexpr bool kIsVector = false;
template <class T>
inline constexpr bool kIsVector<std::vector<T>> = true;

/// Of whatever a property can be.
template <class T>
Value factOf(const T& held) {
  if constexpr (requires { Fields<T>::kAll; }) {
    Dictionary facts;
    eachField<T>([&](const auto& field) { facts.set(field.property, factOf(held.*field.member)); });
    return facts;
  } else if constexpr (requires { held.has_value(); }) {
    return held ? factOf(*held) : Value();
  } else if constexpr (kIsVector<T>) {
    Array all;
    for (const auto& element : held) all.append(factOf(element));
    return all;
  } else if constexpr (std::is_arithmetic_v<T> || std::same_as<T, std::string>) {
    return held;
  } else if constexpr (std::same_as<T, Url>) {
    return held.text;
  } else if constexpr (std::same_as<T, Date>) {
    return held.secondsSince1970;
  } else {
    return valueOf<T>(held);
  }
}

}  // namespace orvanta::benchmarks
