#include <algorithm>
#include <new>

#include "orvanta/Foundation/Description.h"
#include "orvanta/Foundation/KeyPath.h"
#include "orvanta/Model/Mapping/OrvantaBaseModel.h"
#include "orvanta/Model/Mapping/internal/MappingPlan.h"

namespace orvanta {

Value OrvantaBaseModel::readForWriting(const MappingEntry& entry) const {
  try {
    return entry.property != nullptr ? entry.property->valueIn(*this)
                                     : valueForKeyPath(Value(this), *entry.propertyName.string());
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception&) {
    return {};  // a property that cannot be read is not written
  }
}

/// Most arrays have neither; they are shared instead of copied.
static bool hasModelsOrArrays(const Array& array) {
  return std::any_of(array.begin(), array.end(), [](const Value& element) {
    return element.array() != nullptr || element.object() != nullptr;
  });
}

static Array converted(const Array& array, bool classInfo) {
  Array result;
  result.reserve(array.size());
  for (const Value& element : array) {
    if (const auto* model = element.as<OrvantaBaseModel>()) {
      result.append(model->dictionaryValueWithPolicy(classInfo));
    } else if (const Array* nested = element.array()) {
      result.append(OrvantaBaseModel::JSONValidValueForArray(*nested, classInfo));
    } else {
      result.append(element);
    }
  }
  return result;
}

Dictionary OrvantaBaseModel::dictionaryValueWithPolicy(bool classInfo) const {
  const std::lock_guard guard(writeLock_);
  const auto ownPlan = this->ownPlan();  // kept alive: a getter may replace the tables
  const MappingPlan& plan = ownPlan != nullptr ? *ownPlan : isa().plan();
  Dictionary result;
  const auto add = [&]<class V>(const Value& key, V&& value) {
    if (result.empty()) result.reserve(plan.entries.size());
    result.appendInReserve(key, std::forward<V>(value));
  };
  for (const MappingEntry& entry : plan.entries) {
    const Value* stored = entry.objectIn(*this);
    if (stored != nullptr) {  // the most frequent cases: nil, or a string
      if (stored->isNil()) continue;
      if (stored->isString() && entry.converter == Converter::none) {
        add(entry.key, *stored);
        continue;
      }
    }
    const Property* property = entry.property;
    const bool isField = property != nullptr && property->get == nullptr;
    Value value = isField ? property->valueIn(*this) : readForWriting(entry);
    if (value.isNil() || isUnsetInteger(value)) continue;
    if (const auto* model = value.as<OrvantaBaseModel>()) {
      value = model->dictionaryValueWithPolicy(classInfo);
    } else if (value.array() != nullptr && hasModelsOrArrays(*value.array())) {
      value = converted(*value.array(), classInfo);
    }
    if (entry.converter != Converter::none && (!convert(value, entry.converter) || value.isNil())) {
      continue;
    }
    add(entry.key, std::move(value));
  }
  if (classInfo) result.set("klazz", isa().name);
  return result;
}

Array OrvantaBaseModel::JSONValidValueForArray(const Array& array, bool classInfo) {
  return hasModelsOrArrays(array) ? converted(array, classInfo) : array;
}

Dictionary OrvantaBaseModel::flattened(const OrvantaBaseModel* model, bool classInfo,
                                       const Dictionary& own) {
  if (model == nullptr) return own;
  Dictionary result = model->dictionaryValueWithPolicy(classInfo);
  result.remove("klazz");  // so that the object's own comes last
  result.addEntries(own);
  return result;
}

std::string OrvantaBaseModel::description() const {
  return "Dictionary Representation :\n" + describe(dictionaryValue());
}

AttributedString OrvantaBaseModel::attributedDebugDescription() const {
  AttributedString text;
  text.runs.push_back({formatted("\n%@\n", {isa().name}), TextStyle::headline, 1});
  for (const Dictionary::Entry& entry : dictionaryValue()) {
    text.runs.push_back(
        {formatted("%@ : %@\n", {entry.key(), describe(entry.value)}), TextStyle::body, 0});
  }
  text.runs.push_back({"\n", TextStyle::none, 0});
  return text;
}

bool OrvantaBaseModel::isEqual(const Value& other) const {
  if (other.object() == this) return true;
  const auto* model = dynamic_cast<const OrvantaSerializableModel*>(other.object());
  return model != nullptr && dictionaryValue() == model->dictionaryValue();
}

std::size_t OrvantaBaseModel::hash() const { return dictionaryValue().hash(); }

}  // namespace orvanta
