#include <algorithm>
#include <iomanip>
#include <map>
#include <ostream>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Model/Requests/OrvantaRequestPathType.h"
#include "orvanta/Tool/ClassMetadata.h"
#include "orvanta/Tool/Commands.h"
#include "orvanta/Tool/Text.h"
#include "orvanta/Tool/WireFormat.h"

namespace orvanta::tool {

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

/// One row of a class's table.
struct SchemaRow {
  std::string key;
  std::string property;
  std::string type;
  std::string remarks;
};

std::vector<SchemaRow> rowsOf(const Class& cls) {
  std::vector<SchemaRow> rows;
  const auto modelOf = [&](std::string_view property) {
    for (const ClassEntry& entry : cls.keyPathClassMapping) {
      if (entry.property == property) return " -> " + std::string(entry.model->name);
    }
    return std::string();
  };
  for (const Property& property : cls.properties) {
    SchemaRow row{"-", std::string(property.name), std::string(property.encoding),
                  (property.readOnly ? "read-only" : "") + modelOf(property.name)};
    for (const KeyEntry& entry : cls.keyPathPropertySelectorMapping) {
      if (entry.property == property.name) row.key = entry.keyPath;
    }
    rows.push_back(std::move(row));
  }
  for (const KeyEntry& entry : cls.keyPathPropertySelectorMapping) {
    const bool isOwn = std::any_of(cls.properties.begin(), cls.properties.end(),
                                   [&](const Property& p) { return p.name == entry.property; });
    if (!isOwn) {
      rows.push_back({std::string(entry.keyPath), std::string(entry.property), "", "inherited"});
    }
  }
  return rows;
}

void printTable(const Class& cls, std::ostream& out) {
  out << cls.name;
  if (cls.superclass != nullptr) out << " : " << cls.superclass->name;
  const ClassMetadata metadata(cls);
  if (metadata.eventCode) out << "  code " << *metadata.eventCode;
  if (metadata.path)
    out << "  " << *metadata.method << ' ' << *metadata.path << " -> "
        << metadata.responseClass->name;
  if ((metadata.eventCode || metadata.path) && metadata.priority)
    out << ", priority " << *metadata.priority;
  out << '\n';
  const std::vector<SchemaRow> rows = rowsOf(cls);
  const auto width = [&](std::string SchemaRow::*column) {
    std::size_t widest = 0;
    for (const SchemaRow& row : rows) widest = std::max(widest, (row.*column).size());
    return static_cast<int>(widest + 2);
  };
  out << std::left;
  for (const SchemaRow& row : rows) {
    out << "  " << std::setw(width(&SchemaRow::key)) << row.key
        << std::setw(width(&SchemaRow::property)) << row.property;
    if (row.remarks.empty()) {
      out << row.type << '\n';
    } else {
      out << std::setw(width(&SchemaRow::type)) << row.type
          << row.remarks.substr(row.remarks.front() == ' ' ? 1 : 0) << '\n';
    }
  }
}

}  // namespace

ExitCode schema(const SchemaOptions& options, const Streams& streams) {
  std::vector<const Class*> classes(modelClasses().begin(), modelClasses().end());
  if (!options.className.empty()) classes = {&classForArgument(options.className)};
  if (options.markdown) {
    printWireFormat(classes, streams.out);
    return ExitCode::done;
  }
  if (options.json) {
    Array entries;
    for (const Class* cls : classes) entries.append(classEntry(*cls));
    Dictionary whole{{"format", 1}, {"classes", entries}};
    if (options.className.empty()) {
      whole.set("endpoints", endpoints());
      whole.set("methods", methods());
    }
    printJSON(whole, streams.out, /*pretty=*/true);
    return ExitCode::done;
  }
  for (const Class* cls : classes) {
    if (cls != classes.front()) streams.out << '\n';
    printTable(*cls, streams.out);
  }
  return ExitCode::done;
}

}  // namespace orvanta::tool
