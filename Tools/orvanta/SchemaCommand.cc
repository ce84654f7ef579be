#include <algorithm>
#include <iomanip>
#include <ostream>

#include "orvanta/Inspection/ClassMetadata.h"
#include "orvanta/Inspection/Models.h"
#include "orvanta/Inspection/Schema.h"
#include "orvanta/Tool/Commands.h"
#include "orvanta/Tool/Text.h"
#include "orvanta/Tool/WireFormat.h"

namespace orvanta::tool {

namespace {

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
  const inspection::ClassMetadata metadata(cls);
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
  if (!options.className.empty()) classes = {&inspection::classNamed(options.className)};
  if (options.markdown) {
    printWireFormat(classes, streams.out);
    return ExitCode::done;
  }
  if (options.json) {
    printJSON(options.className.empty() ? inspection::schemaOfAllClasses()
                                        : inspection::schemaOfClass(*classes.front()),
              streams.out, /*pretty=*/true);
    return ExitCode::done;
  }
  for (const Class* cls : classes) {
    if (cls != classes.front()) streams.out << '\n';
    printTable(*cls, streams.out);
  }
  return ExitCode::done;
}

}  // namespace orvanta::tool
