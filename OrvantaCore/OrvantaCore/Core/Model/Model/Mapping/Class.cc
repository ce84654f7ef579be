#include "Mapping/Class.h"

#include "Foundation/Exception.h"
#include "Foundation/KeyPath.h"
#include "Foundation/Number.h"
#include "Mapping/MappingPlan.h"
#include "Mapping/OrvantaBaseModel.h"

namespace orvanta {

void Property::assignTo(OrvantaBaseModel& object, const Value& value) const {
  if (set != nullptr) return set(object, value);
  if (field == nullptr) throw Exception::undefinedKey(object.isa().name, name, /*writing=*/true);
  void* at = field(object);
  switch (encoding.front()) {
    case 'B':
      *static_cast<bool*>(at) = scalarReading<bool>(value);
      break;
    case 'i':
      *static_cast<std::int32_t*>(at) = scalarReading<std::int32_t>(value);
      break;
    case 'q':
      *static_cast<std::int64_t*>(at) = scalarReading<std::int64_t>(value);
      break;
    case 'Q':
      *static_cast<std::uint64_t*>(at) = scalarReading<std::uint64_t>(value);
      break;
    case 'f':
      *static_cast<float*>(at) = scalarReading<float>(value);
      break;
    case 'd':
      *static_cast<double*>(at) = scalarReading<double>(value);
      break;
    default:
      *static_cast<Value*>(at) = value;
  }
}

void Property::assignTo(OrvantaBaseModel& object, Value&& value) const {
  const bool isScalar = encoding.front() != '@' && encoding.front() != '#';
  if (isScalar || set != nullptr || field == nullptr) return assignTo(object, value);
  *static_cast<Value*>(field(object)) = std::move(value);
}

const Property* Class::property(std::string_view wanted) const {
  for (const Class* cls = this; cls != nullptr; cls = cls->parent()) {
    for (const Property& property : cls->properties) {
      if (property.name == wanted) return &property;
    }
  }
  return nullptr;
}

Dictionary Class::mergedKeyTable() const {
  Dictionary merged;
  for (const Class* cls = this; cls != nullptr; cls = cls->parent()) {
    for (const KeyEntry& entry : cls->keyPathPropertySelectorMapping) {
      merged.set(entry.keyPath, entry.property);
    }
  }
  return merged;
}

Dictionary Class::mergedClassTable() const {
  Dictionary merged;
  for (const Class* cls = this; cls != nullptr; cls = cls->parent()) {
    for (const ClassEntry& entry : cls->keyPathClassMapping) {
      merged.set(entry.property, Value(entry.model));
    }
  }
  return merged;
}

/// Lives as long as the process, like the class object that it belongs to.
struct Class::Resolved {
  std::recursive_mutex lock;
  std::optional<const Dictionary> typeCache;
  std::optional<const MappingPlan> plan;
  std::atomic<const MappingPlan*> readyPlan{nullptr};
};

Class::Resolved& Class::resolved() const {
  if (Resolved* made = resolved_.load(std::memory_order_acquire)) return *made;
  auto* fresh = new Resolved;
  Resolved* first = nullptr;
  if (resolved_.compare_exchange_strong(first, fresh, std::memory_order_acq_rel)) return *fresh;
  delete fresh;
  return *first;
}

const Dictionary& Class::propertyTypeEncodingCache() const {
  Resolved& state = resolved();
  const std::lock_guard guard(state.lock);
  if (!state.typeCache) {
    Dictionary encodings;
    for (const Class* cls = this; cls != nullptr; cls = cls->parent()) {
      for (const Property& property : cls->properties) {
        encodings.set(property.name, property.encoding);
      }
    }
    state.typeCache.emplace(std::move(encodings));
  }
  return *state.typeCache;
}

const MappingPlan& Class::plan() const {
  Resolved& state = resolved();
  if (const MappingPlan* ready = state.readyPlan.load(std::memory_order_acquire)) return *ready;
  const std::lock_guard guard(state.lock);
  if (!state.plan) state.plan.emplace(*this, mergedKeyTable(), mergedClassTable());
  state.readyPlan.store(&*state.plan, std::memory_order_release);
  return *state.plan;
}

const Class* modelClassIn(const Value& value) {
  const ClassObject* cls = value.classObject();
  const bool isModel = cls != nullptr && cls->isSubclassOf(OrvantaBaseModel::classObject());
  return isModel ? static_cast<const Class*>(cls) : nullptr;
}

Converter converterFor(std::string_view encoding) {
  if (encoding == "B") return Converter::boolean;
  if (encoding.find("NSURL") != std::string_view::npos) return Converter::url;
  if (encoding.find("NSDate") != std::string_view::npos) return Converter::date;
  return Converter::none;
}

MappingPlan::MappingPlan(const Class& cls, const Dictionary& keyTable,
                         const Dictionary& classTable) {
  const Dictionary& encodings = cls.propertyTypeEncodingCache();
  entries.reserve(keyTable.size());
  for (const Dictionary::Entry& row : keyTable) {
    const std::string_view name = row.value.string().value_or("");
    const auto encoding = encodings[name].string();
    MappingEntry entry{
        .key = row.keyValue,
        .path = splitKeyPath(row.key()),
        .sharesParent = false,
        .propertyName = name,
        .propertyPath = splitKeyPath(name),
        .property = cls.property(name),
        .converter = encoding ? converterFor(*encoding) : Converter::none,
        .model = modelClassIn(classTable[name]),
    };
    if (!entries.empty()) {
      const auto& before = entries.back().path;
      entry.sharesParent =
          before.size() == 2 && entry.path.size() == 2 && before.front() == entry.path.front();
    }
    entries.push_back(std::move(entry));
  }
}

}  // namespace orvanta
