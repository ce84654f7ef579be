#include <algorithm>
#include <iomanip>
#include <map>
#include <ostream>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Model/Requests/OrvantaRequestPathType.h"
#include "orvanta/Tool/ClassFacts.h"
#include "orvanta/Tool/Commands.h"
#include "orvanta/Tool/Text.h"
#include "orvanta/Tool/WireFormat.h"

namespace orvanta::tool {

namespace {

template <class T>
Value orNull(const std::optional<T>& fact) {
  return fact ? Value(*fact) : Value::null();
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
  const ClassFacts facts(cls);
  if (facts.isEvent) entry.set("eventKey", orNull(facts.eventCode));
  if (facts.isEvent || facts.isRequest) entry.set("priority", orNull(facts.priority));
  if (facts.isRequest) {
    entry.set("request", Dictionary{{"code", facts.pathCode},
                                    {"path", orNull(facts.path)},
                                    {"method", orNull(facts.method)},
                                    {"responseClass", facts.responseClass->name}});
  }
  return entry;
}

/// Every endpoint with the request class that uses it.
Array endpoints() {
  std::map<std::uint64_t, std::string_view> users;
  for (const Class* cls : modelClasses()) {
    const ClassFacts facts(*cls);
    if (facts.path) users.emplace(facts.pathCode, cls->name);
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

/// One line of a class's table: wire key, property, type, remarks.
struct Line {
  std::string key;
  std::string property;
  std::string type;
  std::string remarks;
};

std::vector<Line> linesOf(const Class& cls) {
  std::vector<Line> lines;
  const auto modelOf = [&](std::string_view property) {
    for (const ClassEntry& entry : cls.keyPathClassMapping) {
      if (entry.property == property) return " -> " + std::string(entry.model->name);
    }
    return std::string();
  };
  for (const Property& property : cls.properties) {
    Line line{"-", std::string(property.name), std::string(property.encoding),
              (property.readOnly ? "read-only" : "") + modelOf(property.name)};
    for (const KeyEntry& entry : cls.keyPathPropertySelectorMapping) {
      if (entry.property == property.name) line.key = entry.keyPath;
    }
    lines.push_back(std::move(line));
  }
  for (const KeyEntry& entry : cls.keyPathPropertySelectorMapping) {
    const bool isOwn = std::any_of(cls.properties.begin(), cls.properties.end(),
                                   [&](const Property& p) { return p.name == entry.property; });
    if (!isOwn) {
      lines.push_back({std::string(entry.keyPath), std::string(entry.property), "", "inherited"});
    }
  }
  return lines;
}

void printTable(const Class& cls, std::ostream& out) {
  out << cls.name;
  if (cls.superclass != nullptr) out << " : " << cls.superclass->name;
  const ClassFacts facts(cls);
  if (facts.eventCode) out << "  code " << *facts.eventCode;
  if (facts.path)
    out << "  " << *facts.method << ' ' << *facts.path << " -> " << facts.responseClass->name;
  if ((facts.eventCode || facts.path) && facts.priority) out << ", priority " << *facts.priority;
  out << '\n';
  const std::vector<Line> lines = linesOf(cls);
  const auto width = [&](std::string Line::*column) {
    std::size_t widest = 0;
    for (const Line& line : lines) widest = std::max(widest, (line.*column).size());
    return static_cast<int>(widest + 2);
  };
  out << std::left;
  for (const Line& line : lines) {
    out << "  " << std::setw(width(&Line::key)) << line.key << std::setw(width(&Line::property))
        << line.property;
    if (line.remarks.empty()) {
      out << line.type << '\n';
    } else {
      out << std::setw(width(&Line::type)) << line.type
          << line.remarks.substr(line.remarks.front() == ' ' ? 1 : 0) << '\n';
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
