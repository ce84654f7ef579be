#include "orvanta/Tool/WireFormat.h"

#include <algorithm>
#include <map>
#include <ostream>
#include <string>

#include "orvanta/Inspection/ClassMetadata.h"

namespace orvanta::tool {

namespace {

constexpr std::string_view kIntroduction =
    "# The wire format\n"
    "\n"
    "Every model class with its wire keys. Made by `orvanta schema --markdown`: to change this "
    "file,\n"
    "change the declarations and run `./run schema --markdown >docs/wire-format.md`.\n"
    "\n"
    "A key with dots is a path: `aps.sound` is read from the entry `sound` of the dictionary "
    "under\n"
    "`aps`, and written as one flat key. A class has the keys of the class that it derives from\n"
    "besides its own. Dates are whole milliseconds since 1970-01-01 00:00 UTC. An integer of\n"
    "9223372036854775807 is unset and is left out when written. An amount or interval of\n"
    "9223372036854775808.0 was not given, or never elapses. [mapping.md](mapping.md) has the "
    "rules.\n";

struct TypeName {
  std::string_view encoding;
  std::string_view words;
};
constexpr TypeName kTypeNames[] = {
    {"@\"NSString\"", "text"},
    {"@\"NSNumber\"", "number"},
    {"@\"NSURL\"", "URL, as text"},
    {"@\"NSDate\"", "date, in milliseconds"},
    {"@\"NSArray\"", "array"},
    {"@\"NSMutableArray\"", "array"},
    {"@\"NSDictionary\"", "dictionary"},
    {"@\"NSMutableDictionary\"", "dictionary"},
    {"@", "any value"},
    {"@?", "callback"},
    {"#", "class"},
    {"B", "boolean"},
    {"i", "32-bit integer"},
    {"q", "64-bit integer"},
    {"Q", "unsigned 64-bit integer"},
    {"f", "32-bit floating point"},
    {"d", "64-bit floating point"},
};

/// Behavior of a class that its tables do not express.
struct Note {
  std::string_view className;
  std::string_view words;
};
constexpr Note kNotes[] = {
    {"OrvantaPushObject",
     "The texts of the alert are read from `aps.alert`, a text or a dictionary. Written, they "
     "stand "
     "at the top level, under the object's own entries. `action` is made of `_ov.act` as well."},
    {"OrvantaBaseProductEvent",
     "The keys of `product` stand in the event's own dictionary; where both have a key, the "
     "event's "
     "entry is written."},
    {"OrvantaBaseContentEvent",
     "The keys of `content` stand in the event's own dictionary; where both have a key, the "
     "event's "
     "entry is written."},
    {"OrvantaWebViewActionEvent",
     "`eventData` is the whole dictionary that was read. Its entries stand in the event's own "
     "dictionary, and over the event's, `code` among them."},
    {"OrvantaErrorEvent",
     "The event does not own its array and message: they are written while somebody else holds "
     "them, and are nil when read from a dictionary."},
    {"OrvantaPurchaseEvent", "Read from a dictionary, `items` are dictionaries still."},
    {"OrvantaEventRequest",
     "`events` are events again when each names its class under `klazz`, dictionaries otherwise."},
};

std::string link(std::string_view className) {
  return std::string("[").append(className).append("](#").append(className).append(")");
}

/// Describes a property's type; the class of a model, or of an array's elements, is a link.
std::string typeOf(const Class& cls, const Property& property) {
  const auto* known =
      std::find_if(std::begin(kTypeNames), std::end(kTypeNames),
                   [&](const TypeName& type) { return type.encoding == property.encoding; });
  const auto declared =
      std::find_if(cls.keyPathClassMapping.begin(), cls.keyPathClassMapping.end(),
                   [&](const ClassEntry& entry) { return entry.property == property.name; });
  const bool hasModel = declared != cls.keyPathClassMapping.end();
  if (known == std::end(kTypeNames)) {  // @"Class"
    return link(property.encoding.substr(2, property.encoding.size() - 3));
  }
  return std::string(known->words) + (hasModel ? " of " + link(declared->model->name) : "");
}

void printRow(std::string_view key, const Class& declaring, const Property& property,
              std::string_view remark, std::ostream& out) {
  out << "| " << (key.empty() ? "" : "`") << (key.empty() ? "none" : key)
      << (key.empty() ? "" : "`") << " | `" << property.name << "` | "
      << typeOf(declaring, property) << " | " << remark << " |\n";
}

void printClass(const Class& cls, std::ostream& out) {
  out << "\n<a id=\"" << cls.name << "\"></a>\n### " << cls.name << "\n\n";
  if (cls.superclass == nullptr) {
    out << "The root of all models.\n";
  } else {
    out << "Derives from " << link(cls.superclass->name) << ".";
    const inspection::ClassMetadata metadata(cls);
    if (metadata.eventCode) out << " Event code `" << *metadata.eventCode << "`.";
    if (metadata.path) {
      out << " Sent with " << *metadata.method << " to `" << *metadata.path << "`, answered with "
          << link(metadata.responseClass->name) << ".";
    }
    if ((metadata.eventCode || metadata.path) && metadata.priority) {
      out << " Priority " << *metadata.priority << ".";
    }
    out << "\n";
  }
  const KeyTable keys = cls.keyPathPropertySelectorMapping;
  for (const Note& note : kNotes) {
    if (note.className == cls.name) out << "\n" << note.words << "\n";
  }
  if (cls.property("filter") != nullptr) {
    out << "\nThe keys of `filter` stand in the request's own dictionary, over its entries.\n";
  }
  if (keys.empty() && cls.properties.empty()) return;
  out << "\n| Key | Property | Type | |\n|---|---|---|---|\n";
  for (const Property& property : cls.properties) {
    const auto entry = std::find_if(keys.begin(), keys.end(), [&](const KeyEntry& row) {
      return row.property == property.name;
    });
    printRow(entry != keys.end() ? entry->keyPath : "", cls, property,
             property.readOnly ? "read-only" : "", out);
  }
  for (const KeyEntry& entry : keys) {
    const bool isOwn = std::any_of(cls.properties.begin(), cls.properties.end(),
                                   [&](const Property& p) { return p.name == entry.property; });
    if (!isOwn) {
      printRow(entry.keyPath, cls, *cls.property(entry.property), "a further key of it", out);
    }
  }
}

void printEventCodes(const std::vector<const Class*>& classes, std::ostream& out) {
  std::vector<std::string> rows;
  for (const Class* cls : classes) {
    const inspection::ClassMetadata metadata(*cls);
    if (!metadata.eventCode) continue;
    rows.push_back("| `" + *metadata.eventCode + "` | " + link(cls->name) + " | " +
                   std::to_string(*metadata.priority) + " |\n");
  }
  if (rows.empty()) return;
  out << "\n## Event codes\n\n| Code | Class | Priority |\n|---|---|---|\n";
  std::sort(rows.begin(), rows.end());
  for (const std::string& row : rows) out << row;
}

void printEndpoints(const std::vector<const Class*>& classes, std::ostream& out) {
  std::map<std::uint64_t, std::string> rows;
  for (const Class* cls : classes) {
    const inspection::ClassMetadata metadata(*cls);
    if (!metadata.path) continue;
    rows[metadata.pathCode] = "| " + std::to_string(metadata.pathCode) + " | `" +
                              std::string(*metadata.path) + "` | " + link(cls->name) + " | " +
                              link(metadata.responseClass->name) + " |\n";
  }
  if (rows.empty()) return;
  out << "\n## Endpoints\n\n| Code | Path | Request | Reply |\n|---|---|---|---|\n";
  for (const auto& [code, row] : rows) out << row;
}

}  // namespace

void printWireFormat(const std::vector<const Class*>& classes, std::ostream& out) {
  out << kIntroduction;
  printEventCodes(classes, out);
  printEndpoints(classes, out);
  out << "\n## Classes\n";
  for (const Class* cls : classes) printClass(*cls, out);
}

}  // namespace orvanta::tool
