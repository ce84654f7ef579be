#include "orvanta/Inspection/Schema.h"

#include <map>
#include <optional>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Inspection/ClassMetadata.h"
#include "orvanta/Model/Requests/OrvantaRequestPathType.h"

namespace orvanta::inspection {

namespace {

template <class T>
Value orNull(const std::optional<T>& value) {
  return value ? Value(*value) : Value::null();
}

Dictionary classEntry(const Class& cls) {
  Array properties;
  for (const Property& property : cls.properties) {
    properties.append(Dictionary{
        {"name", property.name}, {"type", property.encoding}, {"readOnly", property.readOnly}});
  }
  Dictionary keys;
  for (const KeyEntry& entry : cls.keyPathPropertySelectorMapping) {
    keys.set(entry.keyPath, entry.property);
  }
  Dictionary classKeys;
  for (const ClassEntry& entry : cls.keyPathClassMapping) {
    classKeys.set(entry.property, entry.model->name);
  }
  Dictionary entry{
      {"name", cls.name},
      {"superclass", cls.superclass != nullptr ? Value(cls.superclass->name) : Value::null()},
      {"properties", properties},
      {"keys", keys},
      {"classKeys", classKeys}};
  const ClassMetadata metadata(cls);
  if (metadata.isEvent) entry.set("eventKey", orNull(metadata.eventCode));
  if (metadata.isEvent || metadata.isRequest) entry.set("priority", orNull(metadata.priority));
  if (metadata.isRequest) {
    entry.set("request", Dictionary{{"code", metadata.pathCode},
                                    {"path", orNull(metadata.path)},
                                    {"method", orNull(metadata.method)},
                                    {"responseClass", metadata.responseClass->name}});
  }
  return entry;
}

/// Lists every endpoint with the request class that uses it.
Array endpoints() {
  std::map<std::uint64_t, std::string_view> users;
  for (const Class* cls : modelClasses()) {
    const ClassMetadata metadata(*cls);
    if (metadata.path) users.emplace(metadata.pathCode, cls->name);
  }
  Array rows;
  for (std::uint64_t code = 1; code <= kRequestPathTypes; ++code) {
    const auto user = users.find(code);
    rows.append(Dictionary{{"code", code},
                           {"path", orNull(OrvantaRequestPathStringForType(code))},
                           {"class", user != users.end() ? Value(user->second) : Value::null()}});
  }
  return rows;
}

Array methods() {
  Array rows;
  for (std::uint64_t code = 0; code < kHTTPMethodTypes; ++code) {
    rows.append(
        Dictionary{{"code", code}, {"method", orNull(OrvantaHTTPMethodStringForType(code))}});
  }
  return rows;
}

Dictionary schemaOf(std::span<const Class* const> classes) {
  Array entries;
  for (const Class* cls : classes) entries.append(classEntry(*cls));
  return {{"format", 1}, {"classes", entries}};
}

}  // namespace

Dictionary schemaOfClass(const Class& cls) {
  const Class* const classes[] = {&cls};
  return schemaOf(classes);
}

Dictionary schemaOfAllClasses() {
  Dictionary schema = schemaOf(modelClasses());
  schema.set("endpoints", endpoints());
  schema.set("methods", methods());
  return schema;
}

}  // namespace orvanta::inspection
