#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

#include <algorithm>
#include <new>

#include "orvanta/Foundation/Description.h"
#include "orvanta/Foundation/KeyPath.h"
#include "orvanta/Model/Mapping/OrvantaLogger.h"
#include "orvanta/Model/Mapping/RefusalRecorder.h"

// Making and reading; OrvantaBaseModelWriting.cc has the other direction.

namespace orvanta {

// ---- The class object -----------------------------------------------------

namespace {
constexpr std::string_view kTableEncoding = "@\"NSDictionary\"";

constexpr Property kBaseProperties[] = {
    {"keyPathPropertyDictionary", kTableEncoding, Ownership::strong, false, 0,
     [](const OrvantaBaseModel& o) -> Value { return o.keyPathPropertyDictionary(); },
     [](OrvantaBaseModel& o, const Value& v) {
       o.setKeyPathPropertyDictionary(v.dictionary() != nullptr ? *v.dictionary() : Dictionary());
     }},
    {"keyPathClassDictionary", kTableEncoding, Ownership::strong, false, 0,
     [](const OrvantaBaseModel& o) -> Value { return o.keyPathClassDictionary(); },
     [](OrvantaBaseModel& o, const Value& v) {
       o.setKeyPathClassDictionary(v.dictionary() != nullptr ? *v.dictionary() : Dictionary());
     }},
};
}  // namespace

constinit const Class OrvantaBaseModel::kClass{
    "OrvantaBaseModel", nullptr, kBaseProperties, {}, {}, []() -> OrvantaBaseModel* {
      return new OrvantaBaseModel;
    }};

const Class& classObjectOfOrvantaBaseModel();
const Class& classObjectOfOrvantaBaseModel() { return OrvantaBaseModel::classObject(); }

Ref<OrvantaBaseModel> makeModel(const Class& cls, const Dictionary* dictionary) {
  auto model = Ref<OrvantaBaseModel>::adopt(cls.alloc());
  return model->initWithDictionary(dictionary) ? model : nullptr;
}

Ref<OrvantaBaseModel> OrvantaBaseModel::copyWithZone() const {
  const Dictionary dictionary = dictionaryValue();
  return makeModel(isa(), &dictionary);
}

// ---- Tables ---------------------------------------------------------------

/// What an object has of its own once a table was read or set.
struct OrvantaBaseModel::OwnTables {
  Dictionary keys;
  Dictionary classes;
  std::shared_ptr<const MappingPlan> plan;  // only when a table was set
};

OrvantaBaseModel::OrvantaBaseModel() = default;
OrvantaBaseModel::~OrvantaBaseModel() = default;

const Dictionary& OrvantaBaseModel::keyPathPropertyDictionary() const {
  if (!ownTables_) ownTables_ = std::make_unique<OwnTables>();
  if (ownTables_->keys.empty()) ownTables_->keys = isa().mergedKeyTable();
  return ownTables_->keys;
}

const Dictionary& OrvantaBaseModel::keyPathClassDictionary() const {
  if (!ownTables_) ownTables_ = std::make_unique<OwnTables>();
  if (ownTables_->classes.empty()) ownTables_->classes = isa().mergedClassTable();
  return ownTables_->classes;
}

void OrvantaBaseModel::setKeyPathPropertyDictionary(Dictionary table) {
  keyPathPropertyDictionary();
  ownTables_->keys = std::move(table);
  ownTables_->plan = std::make_shared<const MappingPlan>(isa(), keyPathPropertyDictionary(),
                                                         keyPathClassDictionary());
}

void OrvantaBaseModel::setKeyPathClassDictionary(Dictionary table) {
  keyPathClassDictionary();
  ownTables_->classes = std::move(table);
  ownTables_->plan = std::make_shared<const MappingPlan>(isa(), keyPathPropertyDictionary(),
                                                         keyPathClassDictionary());
}

std::shared_ptr<const MappingPlan> OrvantaBaseModel::ownPlan() const {
  return ownTables_ ? ownTables_->plan : nullptr;
}

// ---- Updating -------------------------------------------------------------

namespace {

/// What an outermost update has led to so far.
struct Spent {
  std::size_t updates = 0;
  std::size_t named = 0;  // models whose class a dictionary named
  std::size_t elements = 0;
  std::size_t describable = 65536;  // bytes that are left for the log
};

/// Counts the updates of one thread that run inside one another and all that an outermost one has
/// led to, so that no payload, however its "klazz" entries nest and multiply, takes unbounded time,
/// stack or space in the log.
class UpdateScope {
 public:
  UpdateScope() noexcept {
    if (depth_ == 0) spent_ = {};
    ++depth_;
    ++spent_.updates;
  }
  UpdateScope(const UpdateScope&) = delete;
  UpdateScope& operator=(const UpdateScope&) = delete;
  ~UpdateScope() { --depth_; }

  /// Counts a model that its dictionary names, within an update.
  static void countNamed() {
    if (depth_ != 0) ++spent_.named;
  }
  /// Counts elements of arrays that are walked within an update.
  static void countElements(std::size_t number) {
    if (depth_ != 0) spent_.elements += number;
  }
  /// The same for an array and those inside it.
  static void countElements(const Array& array) {
    countElements(array.size());
    for (const Value& element : array) {
      if (isExhausted()) return;
      if (const Array* inner = element.array()) countElements(*inner);
    }
  }
  static bool isExhausted() {
    return depth_ > OrvantaBaseModel::kMostNestedModels ||
           (depth_ != 0 && (spent_.updates > OrvantaBaseModel::kMostModels ||
                            spent_.named > OrvantaBaseModel::kMostNamedModels ||
                            spent_.elements > OrvantaBaseModel::kMostElements));
  }
  static void check() {
    if (isExhausted()) {
      throw Exception(Exception::kInvalidArgument, "too many models in one dictionary");
    }
  }
  /// The text of a dictionary for the log. Nested models that fail each write the whole of theirs,
  /// so one outermost update has a share for all.
  static std::string described(const Dictionary& dictionary) {
    std::string text = describe(dictionary, spent_.describable);
    spent_.describable -= std::min(spent_.describable, text.size());
    return text;
  }

 private:
  inline static thread_local std::size_t depth_ = 0;
  inline static thread_local Spent spent_;
};

/// Finds the values of a plan's entries in one dictionary. The parent of a path of several names is
/// looked up once for a run of entries that share it.
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
    if (const Array* walked = parent_->array()) UpdateScope::countElements(*walked);
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
  // Setters may replace what holds the dictionary or the table.
  const Dictionary payload = *dictionary;
  const auto ownPlan = this->ownPlan();
  const MappingPlan& plan = ownPlan != nullptr ? *ownPlan : isa().plan();
  const MappingEntry* current = nullptr;
  const auto refuse = [&](std::string_view error) {
    if (RefusalRecorder* recorder = RefusalRecorder::current()) {
      if (current != nullptr) {
        recordRefusal(*current, payload);
      } else {
        recorder->record(isa(), "", "", "a dictionary", error);
      }
    }
    if (error.data() != nullptr) {
      logError(kUpdateFailed, [&] {
        return formatted("*** Caught exception deserializing dictionary '%@' to class '%@' : %@",
                         {UpdateScope::described(payload), isa().name, error});
      });
    }
    return false;
  };
  const UpdateScope scope;
  try {
    UpdateScope::check();
    Lookup lookup(payload);
    for (const MappingEntry& entry : plan.entries) {
      current = &entry;
      const Value& found = lookup.find(entry);
      if (found.isString() && entry.takesText) {  // the most of them
        *entry.objectIn(*this) = found;
      } else if (!found.isNil() && !apply(entry, found)) {
        return refuse({});
      }
    }
    return true;
  } catch (const Exception& error) {
    return refuse(error.name() == Exception::kUndefinedKey ? std::string_view() : error.reason());
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception& error) {
    return refuse(error.what());
  }
}

static bool isFullContainer(const Value& value) {
  const Array* array = value.array();
  return value.dictionary() != nullptr || (array != nullptr && !array->empty());
}

bool OrvantaBaseModel::apply(const MappingEntry& entry, const Value& found) {
  Value made;
  const bool isMade = isFullContainer(found) && component(found, entry.model, made);
  const Value* value = isMade ? &made : &found;
  const bool isPath = entry.hasPropertyPath();
  if (entry.converter != Converter::none || isPath) {
    if (value == &found) made = found;
    value = &made;
    if (!(isPath ? validateValueForKeyPath(made, *entry.propertyName.string())
                 : convert(made, entry.converter))) {
      return false;
    }
  }
  const bool isNil = value->isNil();
  if (entry.property == nullptr) {
    setValueForKeyPath(*value, *entry.propertyName.string());
  } else if (value == &made) {
    entry.property->assignTo(*this, std::move(made));
  } else {
    entry.property->assignTo(*this, found);
  }
  if (isNil) RefusalRecorder::forget();  // a nested model's, which did not matter
  return true;
}

bool OrvantaBaseModel::component(const Value& value, const Class* declared, Value& made) {
  static const Value kKlazz = "klazz";
  if (const Dictionary* dictionary = value.dictionary()) {
    if (declared == nullptr) {
      if (const auto name = dictionary->valueForKey(kKlazz).string())
        declared = modelClassNamed(*name);
      if (declared != nullptr) UpdateScope::countNamed();
    }
    if (declared == nullptr) return false;
    made = makeModel(*declared, dictionary);
    return true;
  }
  const Array* array = value.array();
  if (array == nullptr) return false;
  UpdateScope::countElements(array->size());
  UpdateScope::check();
  // Nothing to convert is the common case; the array is then shared as it is.
  Array converted;
  bool isConverted = false;
  for (const Value& element : *array) {
    if (!isFullContainer(element)) {
      if (isConverted) converted.append(element);
      continue;
    }
    Value madeElement;
    const bool isMade = component(element, declared, madeElement);
    if (isMade && !isConverted) {
      isConverted = true;
      converted.reserve(array->size());
      for (const Value* before = array->begin(); before != &element; ++before) {
        converted.append(*before);
      }
    }
    if (isConverted) converted.append(isMade ? std::move(madeElement) : Value(element));
  }
  if (isConverted) made = std::move(converted);
  return isConverted;
}

Value OrvantaBaseModel::componentOf(const Value& value, std::string_view property) const {
  Value made;
  return component(value, modelClassIn(keyPathClassDictionary()[property]), made) ? made : value;
}

Value OrvantaBaseModel::valueForDictionaryComponent(const Dictionary& dictionary,
                                                    std::string_view property) const {
  return componentOf(dictionary, property);
}

Array OrvantaBaseModel::valueForArrayComponent(const Array& array,
                                               std::string_view property) const {
  return *componentOf(array, property).array();
}

// ---- Converters -----------------------------------------------------------

bool OrvantaBaseModel::convert(Value& value, Converter converter) {
  switch (converter) {
    case Converter::boolean:
      return BOOLValidateValue(value);
    case Converter::url:
      return NSURLValidateValue(value);
    case Converter::date:
      return NSDateValidateValue(value);
    case Converter::none:
      break;
  }
  return true;
}

bool OrvantaBaseModel::validateValue(Value& value, std::string_view property,
                                     Value* /*error*/) const {
  const auto encoding = propertyTypeEncodingCache()[property].string();
  return !encoding || convert(value, converterFor(*encoding));
}

bool OrvantaBaseModel::validateValueForKeyPath(Value& value, std::string_view keyPath,
                                               Value* error) const {
  const auto dot = keyPath.rfind('.');
  if (dot == std::string_view::npos) return validateValue(value, keyPath, error);
  const Value owner = valueForKeyPath(Value(this), keyPath.substr(0, dot));
  const auto* model = owner.as<OrvantaBaseModel>();
  return model == nullptr || model->validateValue(value, keyPath.substr(dot + 1), error);
}

bool OrvantaBaseModel::BOOLValidateValue(Value& value, Value* /*error*/) {
  if (value.kind() != Kind::boolean) value = scalarReading<bool>(value);
  return true;
}

bool OrvantaBaseModel::NSURLValidateValue(Value& value, Value* /*error*/) {
  if (value.isString()) {
    auto url = Url::parse(value);
    value = url ? Value(*std::move(url)) : Value();
    return true;
  }
  if (const Url* url = value.url()) {
    value = url->stringValue();
    return true;
  }
  return false;
}

bool OrvantaBaseModel::NSDateValidateValue(Value& value, Value* /*error*/) {
  if (const auto number = value.number()) {
    value = Date::fromMilliseconds(number->longLongValue());
  } else if (const auto date = value.date()) {
    value = date->milliseconds();
  } else {
    return value.isNull();
  }
  return true;
}

// ---- Key-value coding -----------------------------------------------------

Value OrvantaBaseModel::valueForKey(std::string_view key) const {
  if (const Property* property = isa().property(key)) return property->valueIn(*this);
  return Object::valueForKey(key);
}

void OrvantaBaseModel::setValueForKey(const Value& value, std::string_view key) {
  if (const Property* property = isa().property(key)) return property->assignTo(*this, value);
  Object::setValueForKey(value, key);
}

void OrvantaBaseModel::setValueForKeyPath(const Value& value, std::string_view keyPath) {
  const auto dot = keyPath.rfind('.');
  if (dot == std::string_view::npos) return setValueForKey(value, keyPath);
  const Value owner = valueForKeyPath(Value(this), keyPath.substr(0, dot));
  if (owner.isNil()) return;
  if (Object* object = owner.object()) {
    return object->setValueForKey(value, keyPath.substr(dot + 1));
  }
  throw Exception::undefinedKey(owner.className(), keyPath.substr(dot + 1), /*writing=*/true);
}

// ---- Telling why ----------------------------------------------------------

namespace {

/// What stands at a path, or the first value on the way that has no keys. An array on the way
/// stands for the array of what its elements have.
[[gnu::cold]] Value reachedAt(const Value& from, std::span<const Value> path,
                              std::string& keyless) {
  if (path.empty()) return from;
  if (const Array* array = from.array()) {
    for (const Value& element : *array) {
      Value reached = reachedAt(element, path, keyless);
      if (!keyless.empty()) return reached;
    }
    return from;
  }
  try {
    return reachedAt(valueForKeyPath(from, path.first(1)), path.subspan(1), keyless);
  } catch (const Exception&) {
    keyless = std::string("which has no key \"").append(*path.front().string()).append("\"");
    return from;
  }
}

std::string_view refusalReason(const MappingEntry& entry) {
  switch (entry.converter) {
    case Converter::boolean:
      return "but a boolean is read from numbers and text only";
    case Converter::url:
      return "but a URL is read from text only";
    case Converter::date:
      return "but a date is read from a number of milliseconds only";
    case Converter::none:
      break;
  }
  return entry.property == nullptr ? "for a property that the class does not have"
                                   : "but a number is read from numbers and text only";
}

}  // namespace

void OrvantaBaseModel::recordRefusal(const MappingEntry& entry,
                                     const Dictionary& dictionary) const {
  std::string reason;
  const Value value = reachedAt(dictionary, splitKeyPath(*entry.key.string()), reason);
  if (reason.empty()) reason = refusalReason(entry);
  RefusalRecorder::current()->record(isa(), *entry.key.string(), *entry.propertyName.string(),
                                     value.kindName(), reason);
}

Value OrvantaBaseModel::readByHand(const Dictionary& dictionary, std::span<const Value> keyPath,
                                   std::string_view property) const {
  try {
    if (UpdateScope::isExhausted()) return {};  // the update will refuse
    if (const Array* walked = dictionary.valueForKey(keyPath.front()).array()) {
      UpdateScope::countElements(*walked);
    }
    return valueForKeyPath(dictionary, keyPath);
  } catch (const Exception&) {
    if (RefusalRecorder* recorder = RefusalRecorder::current()) {
      std::string reason;
      const Value value = reachedAt(dictionary, keyPath, reason);
      recorder->reset();  // whatever was refused before, this is what ends the update
      recorder->record(isa(), joinedKeyPath(keyPath), property, value.kindName(), reason);
    }
    throw;
  }
}

void OrvantaBaseModel::recordRefusedModel(std::string_view keyPath,
                                          std::string_view property) const {
  if (RefusalRecorder* recorder = RefusalRecorder::current()) {
    recorder->record(isa(), keyPath, property, "a dictionary", "that its model refused");
  }
}

}  // namespace orvanta
