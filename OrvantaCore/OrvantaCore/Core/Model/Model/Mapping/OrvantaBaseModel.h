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

/// Root of every data class: fills an object's properties from a JSON-shaped dictionary, and writes
/// them back, by the tables that the class declares.
///
/// An object is to be filled by one thread at a time; writing it out holds a lock of its own.
class OrvantaBaseModel : public Object, public OrvantaSerializableModel {
 public:
  using Self = OrvantaBaseModel;
  static constexpr const Class& classObject() { return kClass; }
  const Class& isa() const override { return kClass; }
  static KeyTable keyPathPropertySelectorMapping() { return {}; }
  static ClassTable keyPathClassMapping() { return {}; }
  /// Property name to type code, of the object's own class.
  const Dictionary& propertyTypeEncodingCache() const { return isa().propertyTypeEncodingCache(); }

  // ---- Making ----

  OrvantaBaseModel();  // and then an initializer, see make
  ~OrvantaBaseModel() override;

  /// initWithDictionary: without one.
  virtual bool init() { return initWithDictionary(nullptr); }
  /// The update, whose refusal means that there is no object. An override may let the
  /// undefined-key exception pass; it says so.
  bool initWithDictionary(const Dictionary* dictionary) override {
    return updateWithDictionary(dictionary);
  }
  /// A new object of the same class, initialized from this one's dictionary; nil when that
  /// refuses. Since dotted wire keys are written flat, their properties do not come along.
  Ref<OrvantaBaseModel> copyWithZone() const;

  // ---- Reading ----

  static constexpr std::size_t kMaxNestedModels = 128;
  static constexpr std::size_t kMaxModels = 100'000;
  static constexpr std::size_t kMaxModelsNamedByPayload = 10'000;
  static constexpr std::size_t kMaxArrayElements = 10'000'000;

  /// For each entry of the merged key table, in its order: looks the key path up, makes models of
  /// nested dictionaries, converts, and assigns. A missing key leaves its property alone.
  ///
  /// Answers NO for a value that a converter refuses and for an undefined key, silently; for any
  /// other error after an error line in the log. std::bad_alloc passes. In one outermost update,
  /// models nested deeper than kMaxNestedModels, more than kMaxModels, more than
  /// kMaxModelsNamedByPayload whose class a "klazz" names, or more than kMaxArrayElements array
  /// elements to look at (each counts as often as it is looked at) are such an error. The lines of
  /// an update and of those inside it show 64 KB of dictionaries in all.
  bool updateWithDictionary(const Dictionary* dictionary) override;

  /// A nested dictionary as a model: of the class declared for the property, else of the one that
  /// its "klazz" names, else the dictionary as it is. Nil when the model refuses the dictionary.
  Value valueForDictionaryComponent(const Dictionary& dictionary, std::string_view property) const;
  /// An array with its dictionaries made models the same way, at any depth. An element that
  /// refuses throws the invalid-argument exception.
  Array valueForArrayComponent(const Array& array, std::string_view property) const;

  /// Converts a value for a property, in either direction: booleans, URLs and dates by the type
  /// code, anything else stays. False when the value cannot be one. `error` is never filled in.
  bool validateValue(Value& value, std::string_view property, Value* error = nullptr) const;
  bool validateValueForKeyPath(Value& value, std::string_view keyPath,
                               Value* error = nullptr) const;
  /// Text to URL (nil when it is none), URL to text; refuses the rest.
  static bool NSURLValidateValue(Value& value, Value* error = nullptr);
  /// Number of milliseconds since 1970 to date and back; null stays; refuses the rest.
  static bool NSDateValidateValue(Value& value, Value* error = nullptr);
  /// The boolean reading; throws the invalid-argument exception when there is none.
  static bool BOOLValidateValue(Value& value, Value* error = nullptr);

  Value valueForKey(std::string_view key) const override;
  void setValueForKey(const Value& value, std::string_view key) override;
  /// Reads all but the last step of a dotted path and assigns to what stands there, if anything.
  void setValueForKeyPath(const Value& value, std::string_view keyPath);

  /// This object's tables: wire key path to property name, and property name to class. Those of
  /// the class until set; a table that is set to an empty one counts as not set.
  const Dictionary& keyPathPropertyDictionary() const;
  void setKeyPathPropertyDictionary(Dictionary table);
  const Dictionary& keyPathClassDictionary() const;
  void setKeyPathClassDictionary(Dictionary table);

  // ---- Writing ----

  Dictionary dictionaryValue() const final { return dictionaryValueWithPolicy(false); }
  Dictionary dictionaryValueWithClassInfo() const final { return dictionaryValueWithPolicy(true); }
  /// Holds the object's recursive lock. A wire key becomes one flat key, dots and all; unset
  /// integers, nil and what a converter refuses are left out. "klazz" stands last.
  Dictionary dictionaryValueWithPolicy(bool classInfo) const override;
  /// Models inside an array, at any depth, become their dictionaries.
  static Array JSONValidValueForArray(const Array& array, bool classInfo);

  /// "Dictionary Representation :" and the dictionary.
  std::string description() const override;
  std::string debugDescription() const { return attributedDebugDescription().string(); }
  AttributedString attributedDebugDescription() const;
  /// Equal to any model with an equal dictionary, whatever its class.
  bool isEqual(const Value& other) const override;
  std::size_t hash() const override;

 protected:
  friend struct Reflect;
  static const Class kClass;

  /// Reads a key path of a payload outside the update's catch: the undefined-key exception passes.
  Value readKeyPath(const Dictionary& dictionary, std::span<const Value> keyPath,
                    std::string_view property) const;
  /// Tells a recorder that a model which this one needs refused its dictionary.
  void recordFailedModel(std::string_view keyPath, std::string_view property) const;

  /// For a property whose model is no entry of its own but flattened: its keys stand among this
  /// object's. Makes the model of the whole dictionary; false when it refuses, and is nil then.
  template <class M>
  bool updateFlattened(PropertyValue<M>& model, std::string_view property,
                       const Dictionary* dictionary);
  /// The model's dictionary with this object's own entries over it, "klazz" among them.
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

/// Makes a model of a class that is known at run time; nil when it refuses the dictionary.
Ref<OrvantaBaseModel> makeModel(const Class& cls, const Dictionary* dictionary);

/// Makes an M and initializes it with one of its initializers, `init` unless another is named; nil
/// when that answers false:
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
