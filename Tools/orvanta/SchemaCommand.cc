#include <algorithm>
#include <iomanip>
#include <ostream>

#include "Commands.h"
#include "Events/OrvantaEvent.h"
#include "Foundation/Array.h"
#include "Text.h"
#include "WireFormat.h"

namespace orvanta::tool {

namespace {

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
  const auto model = makeModel(cls, nullptr);
  if (const auto* event = Value(model).as<OrvantaEvent>()) {
    const Held<String> code = event->eventKey();
    entry.set("eventKey", code ? code.value() : Value::null());
    entry.set("priority", event->priority());
  }
  return entry;
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
  const auto model = makeModel(cls, nullptr);
  if (const auto* event = Value(model).as<OrvantaEvent>()) {
    if (const auto code = event->eventKey().get()) {
      out << "  code " << *code << ", priority " << event->priority();
    }
  }
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
    printJSON(Dictionary{{"format", 1}, {"classes", entries}}, streams.out, /*pretty=*/true);
    return ExitCode::done;
  }
  for (const Class* cls : classes) {
    if (cls != classes.front()) streams.out << '\n';
    printTable(*cls, streams.out);
  }
  return ExitCode::done;
}

}  // namespace orvanta::tool
