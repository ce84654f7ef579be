#include <new>

#include "orvanta/Foundation/Description.h"
#include "orvanta/Foundation/KeyPath.h"
#include "orvanta/Model/Mapping/OrvantaBaseModel.h"
#include "orvanta/Model/Mapping/OrvantaLogger.h"
#include "orvanta/Model/Mapping/RefusalRecorder.h"
#include "orvanta/Model/Mapping/internal/MappingPlan.h"
#include "orvanta/Model/Mapping/internal/UpdateBudget.h"

// One unit from lookup to nested models: every payload passes through all of it many times.

namespace orvanta {

namespace {

/// Looks up the values of a plan's entries in one dictionary. The parent of a path of several names
/// is looked up once for a run of entries that share it.
class Lookup {
 public:
  explicit Lookup(const Dictionary& dictionary) : dictionary_(dictionary) {}

  const Value& find(const MappingEntry& entry) {
    if (entry.depth == KeyDepth::one) return dictionary_.valueForKey(entry.key, hint_);
    if (!entry.sharesParent) {
      parent_ = &dictionary_.valueForKey(entry.parent);
      hint_ = 0;
    }
    if (parent_->isNil()) return *parent_;
    const Dictionary* parent = parent_->dictionary();
    if (parent != nullptr && entry.depth == KeyDepth::two) {
      return parent->valueForKey(entry.child, hint_);
    }
    if (const Array* array = parent_->array()) UpdateBudget::countElements(*array);
    collected_ = valueForKeyPath(dictionary_, *entry.key.string());
    return collected_;
  }

 private:
  const Dictionary& dictionary_;
  const Value* parent_ = nullptr;
  std::size_t hint_ = 0;  // entries often come in the table's order
  Value collected_;
};

constexpr LogSite kUpdateFailed{"-[OrvantaBaseModel updateWithDictionary:]", "OrvantaBaseModel",
                                81};

}  // namespace

bool OrvantaBaseModel::updateWithDictionary(const Dictionary* dictionary) {
  if (dictionary == nullptr) return true;
  // Setters may replace the owner of the dictionary or the table, so both are kept alive.
  const Dictionary payload = *dictionary;
  const auto ownPlan = this->ownPlan();
  const MappingPlan& plan = ownPlan != nullptr ? *ownPlan : isa().plan();
  const MappingEntry* current = nullptr;
  const auto fail = [&](std::string_view error) {
    if (RefusalRecorder* recorder = RefusalRecorder::current()) {
      if (current != nullptr) {
        recorder->record(isa(), *current, payload);
      } else {
        recorder->record(isa(), "", "", "a dictionary", error);
      }
    }
    if (error.data() != nullptr) {
      logError(kUpdateFailed, [&] {
        return formatted("*** Caught exception deserializing dictionary '%@' to class '%@' : %@",
                         {UpdateBudget::describeForLog(payload), isa().name, error});
      });
    }
    return false;
  };
  const UpdateBudget budget;
  try {
    UpdateBudget::check();
    Lookup lookup(payload);
    for (const MappingEntry& entry : plan.entries) {
      current = &entry;
      const Value& input = lookup.find(entry);
      if (input.isString() && entry.storesStrings) {  // the most frequent case
        *entry.objectIn(*this) = input;
      } else if (!input.isNil() && !apply(entry, input)) {
        return fail({});
      }
    }
    return true;
  } catch (const Exception& error) {
    return fail(error.name() == Exception::kUndefinedKey ? std::string_view() : error.reason());
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception& error) {
    return fail(error.what());
  }
}

static bool isNonEmptyContainer(const Value& value) {
  const Array* array = value.array();
  return value.dictionary() != nullptr || (array != nullptr && !array->empty());
}

bool OrvantaBaseModel::apply(const MappingEntry& entry, const Value& input) {
  Value converted;
  const bool hasModels = isNonEmptyContainer(input) && convertNested(input, entry.model, converted);
  const Value* value = hasModels ? &converted : &input;
  const bool isPath = entry.hasPropertyPath();
  if (entry.converter != Converter::none || isPath) {
    if (value == &input) converted = input;
    value = &converted;
    if (!(isPath ? validateValueForKeyPath(converted, *entry.propertyName.string())
                 : convert(converted, entry.converter))) {
      return false;
    }
  }
  const bool isNil = value->isNil();
  if (entry.property == nullptr) {
    setValueForKeyPath(*value, *entry.propertyName.string());
  } else if (value == &converted) {
    entry.property->assignTo(*this, std::move(converted));
  } else {
    entry.property->assignTo(*this, input);
  }
  if (isNil) RefusalRecorder::forget();  // a nested model failed, which its owner tolerates
  return true;
}

bool OrvantaBaseModel::convertNested(const Value& value, const Class* declared, Value& converted) {
  static const Value kKlazz = "klazz";
  if (const Dictionary* dictionary = value.dictionary()) {
    if (declared == nullptr) {
      if (const auto name = dictionary->valueForKey(kKlazz).string())
        declared = modelClassNamed(*name);
      if (declared != nullptr) UpdateBudget::countNamedModel();
    }
    if (declared == nullptr) return false;
    converted = makeModel(*declared, dictionary);
    return true;
  }
  const Array* array = value.array();
  if (array == nullptr) return false;
  UpdateBudget::countElements(array->size());
  UpdateBudget::check();
  // Most arrays have nothing to convert; they are shared instead of copied.
  Array elements;
  bool isCopied = false;
  for (const Value& element : *array) {
    if (!isNonEmptyContainer(element)) {
      if (isCopied) elements.append(element);
      continue;
    }
    Value model;
    const bool isConverted = convertNested(element, declared, model);
    if (isConverted && !isCopied) {
      isCopied = true;
      elements.reserve(array->size());
      for (const Value* before = array->begin(); before != &element; ++before) {
        elements.append(*before);
      }
    }
    if (isCopied) elements.append(isConverted ? std::move(model) : Value(element));
  }
  if (isCopied) converted = std::move(elements);
  return isCopied;
}

Value OrvantaBaseModel::valueForComponent(const Value& value, std::string_view property) const {
  Value converted;
  const Class* declared = modelClassIn(keyPathClassDictionary()[property]);
  return convertNested(value, declared, converted) ? converted : value;
}

Value OrvantaBaseModel::valueForDictionaryComponent(const Dictionary& dictionary,
                                                    std::string_view property) const {
  return valueForComponent(dictionary, property);
}

Array OrvantaBaseModel::valueForArrayComponent(const Array& array,
                                               std::string_view property) const {
  return *valueForComponent(array, property).array();
}

Value OrvantaBaseModel::readKeyPath(const Dictionary& dictionary, std::span<const Value> keyPath,
                                    std::string_view property) const {
  try {
    if (UpdateBudget::isExhausted()) return {};  // the update that follows fails
    if (const Array* array = dictionary.valueForKey(keyPath.front()).array()) {
      UpdateBudget::countElements(*array);
    }
    return valueForKeyPath(dictionary, keyPath);
  } catch (const Exception&) {
    if (RefusalRecorder* recorder = RefusalRecorder::current()) {
      recorder->recordUndefinedKey(isa(), keyPath, property, dictionary);
    }
    throw;
  }
}

void OrvantaBaseModel::recordFailedModel(std::string_view keyPath,
                                         std::string_view property) const {
  if (RefusalRecorder* recorder = RefusalRecorder::current()) {
    recorder->record(isa(), keyPath, property, "a dictionary", "that its model refused");
  }
}

}  // namespace orvanta
