#pragma once

#include <memory>
#include <mutex>
#include <string>

#include "orvanta/Foundation/AttributedString.h"
#include "orvanta/Foundation/Exception.h"
#include "orvanta/Model/Mapping/OrvantaSerializableModel.h"
#include "orvanta/Model/Mapping/PropertyMacros.h"

namespace orvanta {

struct MappingEntry;
struct MappingPlan;
enum class Converter : std::uint8_t;

/// Root of all models: reads the properties of an object from a JSON-shaped dictionary and writes
/// them back, by the tables that the class declares (see PropertyMacros.h).
///
///     const Value payload = parseJSON(text);
///     const Dictionary* dictionary = payload.dictionary();
///     auto push = dictionary != nullptr ? make<OrvantaPushObject>(*dictionary) : nullptr;
///     if (push == nullptr) …                          // RefusalRecorder has the reason
///     if (auto id = push->pushId().get()) use(*id);   // see PropertyValue
///     const Dictionary written = push->dictionaryValue();
///
/// One thread at a time may update an object. Any number may write it: writing holds a lock.
class OrvantaBaseModel : public Object, public OrvantaSerializableModel {
 public:
  using Self = OrvantaBaseModel;
  static constexpr const Class& classObject() { return kClass; }
  const Class& isa() const override { return kClass; }
  static KeyTable keyPathPropertySelectorMapping() { return {}; }
  static ClassTable keyPathClassMapping() { return {}; }
  /// Property name to type code, for the object's class.
  const Dictionary& propertyTypeEncodingCache() const { return isa().propertyTypeEncodingCache(); }

  // ---- Creating ----

  OrvantaBaseModel();  // needs an initializer; see make
  ~OrvantaBaseModel() override;

  /// Initializes without a dictionary.
  virtual bool init() { return initWithDictionary(nullptr); }
  /// Initializes from a dictionary; returns false if the update fails. An override that can throw
  /// the undefined-key exception documents it.
  bool initWithDictionary(const Dictionary* dictionary) override {
    return updateWithDictionary(dictionary);
  }
  /// Returns a new object of the same class, initialized from this one's dictionary; nil if that
  /// fails. Properties with dotted wire keys are not copied, because these are written flat.
  Ref<OrvantaBaseModel> copyWithZone() const;

  // ---- Reading ----

  // Limits of one outermost update: without them a payload could nest and multiply models at will.
  static constexpr std::size_t kMaxNestedModels = 128;
  static constexpr std::size_t kMaxModels = 100'000;
  static constexpr std::size_t kMaxModelsNamedByPayload = 10'000;
  static constexpr std::size_t kMaxArrayElements = 10'000'000;  // counted whenever they are walked

  /// For each entry of the merged key table, in order: looks up the key path, converts nested
  /// dictionaries to models, converts the value, and assigns it. A missing key keeps its property.
  ///
  /// Returns false if a converter rejects a value or a key is undefined, without logging; for any
  /// other error after logging it. Exceeding a limit above is such an error. The log lines of one
  /// outermost update show 64 KB of dictionaries in all. Throws std::bad_alloc only.
  bool updateWithDictionary(const Dictionary* dictionary) override;

  /// Converts a nested dictionary to a model of the class declared for the property, or else of the
  /// class that its "klazz" names; without either returns it as it is. Nil if the model fails.
  Value valueForDictionaryComponent(const Dictionary& dictionary, std::string_view property) const;
  /// Returns an array with models in place of its dictionaries, at any depth. Throws the
  /// invalid-argument exception if one fails, since an array cannot contain nil.
  Array valueForArrayComponent(const Array& array, std::string_view property) const;

  /// Converts a value for a property by its type code, in either direction: booleans, URLs and
  /// dates; anything else stays. Returns false if the value cannot be converted. `error` is never
  /// set.
  bool validateValue(Value& value, std::string_view property, Value* error = nullptr) const;
  bool validateValueForKeyPath(Value& value, std::string_view keyPath,
                               Value* error = nullptr) const;
  /// A string to a URL (nil if it is not one), a URL to its string. Rejects anything else.
  static bool NSURLValidateValue(Value& value, Value* error = nullptr);
  /// Milliseconds since 1970 to a date and back; null stays. Rejects anything else.
  static bool NSDateValidateValue(Value& value, Value* error = nullptr);
  /// A number or a string to a boolean; throws the invalid-argument exception for anything else.
  static bool BOOLValidateValue(Value& value, Value* error = nullptr);

  Value valueForKey(std::string_view key) const override;
  void setValueForKey(const Value& value, std::string_view key) override;
  /// Sets the last key of a dotted path on the object at the rest of the path; does nothing if that
  /// is nil. Throws the undefined-key exception if it is a value without keys.
  void setValueForKeyPath(const Value& value, std::string_view keyPath);

  /// The tables of this object: wire key path to property name, and property name to class. Those
  /// of the class until they are set; an empty table counts as not set.
  const Dictionary& keyPathPropertyDictionary() const;
  void setKeyPathPropertyDictionary(Dictionary table);
  const Dictionary& keyPathClassDictionary() const;
  void setKeyPathClassDictionary(Dictionary table);

  // ---- Writing ----

  Dictionary dictionaryValue() const final { return dictionaryValueWithPolicy(false); }
  Dictionary dictionaryValueWithClassInfo() const final { return dictionaryValueWithPolicy(true); }
  /// Writes each wire key path as one key, with its dots. Omits nil, unset integers (kUnsetInteger)
  /// and values that a converter rejects. "klazz" comes last. Holds the object's recursive lock.
  Dictionary dictionaryValueWithPolicy(bool classInfo) const override;
  /// Returns an array with dictionaries in place of models, at any depth.
  static Array JSONValidValueForArray(const Array& array, bool classInfo);

  /// "Dictionary Representation :" and the dictionary, described.
  std::string description() const override;
  std::string debugDescription() const { return attributedDebugDescription().string(); }
  AttributedString attributedDebugDescription() const;
  /// Equal to any model with an equal dictionary, also of another class.
  bool isEqual(const Value& other) const override;
  std::size_t hash() const override;

 protected:
  friend struct Reflect;
  static const Class kClass;

  /// Returns the value at a key path of a payload, for overrides that read before the update.
  /// Unlike the update it throws the undefined-key exception, which it records under `property`.
  Value readKeyPath(const Dictionary& dictionary, std::span<const Value> keyPath,
                    std::string_view property) const;
  /// Records that a nested model failed that this one requires.
  void recordFailedModel(std::string_view keyPath, std::string_view property) const;

  /// Reads a flattened model, one whose keys are mixed with this object's own, from the whole
  /// dictionary. Returns false and sets it to nil on failure.
  template <class M>
  bool updateFlattened(PropertyValue<M>& model, std::string_view property,
                       const Dictionary* dictionary);
  /// Returns the dictionary of a flattened model with this object's entries added, which replace
  /// the model's, "klazz" included.
  static Dictionary flattened(const OrvantaBaseModel* model, bool classInfo, const Dictionary& own);

 private:
  struct OwnTables;

  /// Converts nested dictionaries to models. Returns false if there were none; otherwise stores the
  /// result in `converted`.
  static bool convertNested(const Value& value, const Class* declared, Value& converted);
  Value valueForComponent(const Value& value, std::string_view property) const;
  static bool convert(Value& value, Converter converter);
  /// The plan of the tables set on this object; empty if those of the class apply.
  std::shared_ptr<const MappingPlan> ownPlan() const {
    return ownTables_ != nullptr ? planOfOwnTables() : nullptr;
  }
  [[gnu::cold]] std::shared_ptr<const MappingPlan> planOfOwnTables() const;
  bool apply(const MappingEntry& entry, const Value& input);
  Value readForWriting(const MappingEntry& entry) const;

  mutable std::recursive_mutex writeLock_;
  mutable std::unique_ptr<OwnTables> ownTables_;
};

/// Creates a model of a class known at run time; nil if it rejects the dictionary.
Ref<OrvantaBaseModel> makeModel(const Class& cls, const Dictionary* dictionary);

/// Creates an M with one of its initializers, `init` by default; nil if that returns false.
/// Creation is separate from initialization because initializers call functions that subclasses
/// override.
///
///     auto push = make<OrvantaPushObject>(&OrvantaPushObject::initWithDictionary, &payload);
template <class M>
Ref<M> make() {
  auto model = Ref<M>::adopt(new M);
  return model->init() ? model : nullptr;
}
template <class M, class Base, class... Parameters, class... Arguments>
Ref<M> make(bool (Base::*initializer)(Parameters...), Arguments&&... arguments) {
  auto model = Ref<M>::adopt(new M);
  return ((*model).*initializer)(std::forward<Arguments>(arguments)...) ? model : nullptr;
}
template <class M>
Ref<M> make(const Dictionary& dictionary) {
  return make<M>(&M::initWithDictionary, &dictionary);
}

template <class M>
bool OrvantaBaseModel::updateFlattened(PropertyValue<M>& model, std::string_view property,
                                       const Dictionary* dictionary) {
  model = make<M>(&M::initWithDictionary, dictionary);
  if (!model.isPresent()) recordFailedModel("", property);
  return model.isPresent();
}

}  // namespace orvanta
