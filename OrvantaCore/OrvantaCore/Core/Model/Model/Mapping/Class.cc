#include "orvanta/Model/Mapping/Class.h"

#include "orvanta/Foundation/Exception.h"
#include "orvanta/Foundation/Number.h"
#include "orvanta/Model/Mapping/OrvantaBaseModel.h"
#include "orvanta/Model/Mapping/internal/MappingPlan.h"

namespace orvanta {

void Property::assignTo(OrvantaBaseModel& object, const Value& value) const {
  if (set != nullptr) return set(object, value);
  if (!isStored()) throw Exception::undefinedKey(object.isa().name, name, /*writing=*/true);
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
  if (isScalar() || set != nullptr || !isStored()) return assignTo(object, value);
  *static_cast<Value*>(field(object)) = std::move(value);
}

const Property* Class::property(std::string_view propertyName) const {
  for (const Class* cls = this; cls != nullptr; cls = cls->parent()) {
    for (const Property& property : cls->properties) {
      if (property.name == propertyName) return &property;
    }
  }
  return nullptr;
}

std::string_view Class::encoding(std::string_view propertyName) const {
  std::string_view encoding;
  for (const Class* cls = this; cls != nullptr; cls = cls->parent()) {
    for (const Property& property : cls->properties) {
      if (property.name == propertyName) encoding = property.encoding;
    }
  }
  return encoding;
}

Dictionary Class::mergedKeyTable() const {
  std::size_t capacity = 0;
  for (const Class* cls = this; cls != nullptr; cls = cls->parent()) {
    capacity += cls->keyPathPropertySelectorMapping.size();
  }
  Dictionary merged;
  merged.reserve(capacity);
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

/// Never freed, since class objects live as long as the process.
struct Class::Resolved {
  std::recursive_mutex lock;
  std::optional<const Dictionary> typeCache;
  std::optional<const MappingPlan> plan;
};

Class::Resolved& Class::resolved() const {
  if (Resolved* resolved = resolved_.load(std::memory_order_acquire)) return *resolved;
  auto* own = new Resolved;
  Resolved* other = nullptr;  // that of a thread that was faster
  if (resolved_.compare_exchange_strong(other, own, std::memory_order_acq_rel)) return *own;
  delete own;
  return *other;
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

const MappingPlan& Class::buildPlan() const {
  Resolved& state = resolved();
  const std::lock_guard guard(state.lock);
  if (!state.plan) state.plan.emplace(*this, mergedKeyTable(), mergedClassTable());
  plan_.store(&*state.plan, std::memory_order_release);
  return *state.plan;
}

const Class* modelClassIn(const Value& value) {
  const ClassObject* cls = value.classObject();
  const bool isModel = cls != nullptr && cls->isSubclassOf(OrvantaBaseModel::classObject());
  return isModel ? static_cast<const Class*>(cls) : nullptr;
}

}  // namespace orvanta
