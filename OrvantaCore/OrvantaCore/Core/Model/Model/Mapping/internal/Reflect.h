#pragma once

#include <array>
#include <cstddef>
#include <utility>

#include "orvanta/Model/Mapping/PropertyValue.h"

// What the macros of PropertyMacros.h expand to.

namespace orvanta {

/// How a property declared as a T is stored in the object and passed to and from its accessors.
template <class T>
struct PropertyStorage {
  using Field = PropertyValue<T>;
  using Read = const PropertyValue<T>&;
  static Value box(Read property) { return property.raw(); }
  static Field unbox(const Value& value) { return Field::any(value); }
  static constexpr std::string_view encoding(std::string_view quotedName) {
    return PropertyTraits<T>::kEncoding.empty() ? quotedName : PropertyTraits<T>::kEncoding;
  }
};
template <class T>
requires std::is_arithmetic_v<T>
struct PropertyStorage<T> {
  using Field = T;
  using Read = T;
  static Value box(T scalar) { return scalar; }
  static Field unbox(const Value& value) { return scalarReading<T>(value); }
  static constexpr std::string_view encoding(std::string_view /*quotedName*/) {
    if (std::same_as<T, bool>) return "B";
    if (std::same_as<T, std::int32_t>) return "i";
    if (std::same_as<T, std::int64_t>) return "q";
    if (std::same_as<T, std::uint64_t>) return "Q";
    return std::same_as<T, float> ? "f" : "d";
  }
};

/// The class object of the model that a declaration names last, nullptr if it names none.
template <class... M>
constexpr const Class* modelClass() {
  const Class* named[] = {&M::classObject()..., nullptr};
  return named[0];
}

template <int>
struct Line {};

/// Collects the declarations in the body of a class. A macro cannot append to a list, so each
/// declaration is an overload of `declared` for the type Line<n>, and the tables are made of the
/// overloads that exist. n is the line within the class, the same in every unit that includes it;
/// __COUNTER__ would differ and break the one-definition rule.
struct Reflect {
  static constexpr int kMaxLines = 160;

  struct Row {
    Property property;
    std::string_view key;
    const Class* model;
  };

  template <std::size_t kProperties, std::size_t kKeys, std::size_t kClasses>
  struct Tables {
    std::array<Property, kProperties> properties{};
    std::array<KeyEntry, kKeys> keys{};
    std::array<ClassEntry, kClasses> classes{};
  };

  template <class M, int kLine>
  static constexpr bool kDeclares = requires {
    M::declared(Line<kLine>{});
  };

  template <class M, int... kLine>
  static consteval auto declaringLines(std::integer_sequence<int, kLine...> /*all*/) {
    constexpr std::size_t kCount = (std::size_t{0} + ... + (kDeclares<M, kLine> ? 1 : 0));
    std::array<int, kCount> lines{};
    std::size_t next = 0;
    for (const auto& [line, declares] : {std::pair{kLine, kDeclares<M, kLine>}...}) {
      if (declares) lines[next++] = line;
    }
    return lines;
  }

  template <class M>
  static constexpr auto kLines = declaringLines<M>(std::make_integer_sequence<int, kMaxLines>());

  template <class M, std::size_t... kIndex>
  static consteval auto rows(std::index_sequence<kIndex...> /*all*/) {
    return std::array<Row, sizeof...(kIndex)>{M::declared(Line<kLines<M>[kIndex]> {})...};
  }

  template <class M>
  static constexpr auto kRows = rows<M>(std::make_index_sequence<kLines<M>.size()>());

  static constexpr bool declares(const Row& row) { return !row.property.encoding.empty(); }
  static constexpr bool hasKey(const Row& row) { return !row.key.empty(); }
  static constexpr bool hasModel(const Row& row) { return row.model != nullptr; }

  template <class M>
  static consteval std::size_t count(bool (*matches)(const Row&)) {
    std::size_t number = 0;
    for (const Row& row : kRows<M>) number += matches(row) ? 1 : 0;
    return number;
  }

  template <class M>
  static consteval auto tables() {
    Tables<count<M>(declares), count<M>(hasKey), count<M>(hasModel)> tables;
    std::size_t property = 0;
    std::size_t key = 0;
    std::size_t model = 0;
    for (const Row& row : kRows<M>) {
      if (declares(row)) tables.properties[property++] = row.property;
      if (hasKey(row)) tables.keys[key++] = {row.key, row.property.name};
      if (hasModel(row)) tables.classes[model++] = {row.property.name, row.model};
    }
    return tables;
  }
};

}  // namespace orvanta
