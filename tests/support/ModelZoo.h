#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"
#include "orvanta/Model/Push/OrvantaPushObject.h"

// Small models, each for one trait of the mapping.

namespace orvanta::testing {

/// A scalar of every width; each key is the type code.
class ScalarModel : public OrvantaBaseModel {
  ORVANTA_MODEL(ScalarModel, OrvantaBaseModel)

  ORVANTA_PROPERTY("B", assign, bool, flag, setFlag)
  ORVANTA_PROPERTY("i", assign, std::int32_t, narrow, setNarrow)
  ORVANTA_PROPERTY("q", assign, std::int64_t, whole, setWhole)
  ORVANTA_PROPERTY("Q", assign, std::uint64_t, natural, setNatural)
  ORVANTA_PROPERTY("f", assign, float, single, setSingle)
  ORVANTA_PROPERTY("d", assign, double, real, setReal)
};

/// The model that others nest; an update fails when the size is null.
class LeafModel : public OrvantaBaseModel {
  ORVANTA_MODEL(LeafModel, OrvantaBaseModel)

  ORVANTA_PROPERTY("name", copy, String, name, setName)
  ORVANTA_PROPERTY("size", assign, std::int64_t, size, setSize)
};

/// A property of every object type; no nested class is declared.
class ObjectModel : public OrvantaBaseModel {
  ORVANTA_MODEL(ObjectModel, OrvantaBaseModel)

  ORVANTA_PROPERTY("text", copy, String, text, setText)
  ORVANTA_PROPERTY("number", strong, Number, number, setNumber)
  ORVANTA_PROPERTY("url", strong, Url, url, setUrl)
  ORVANTA_READONLY("date", strong, Date, date)
  ORVANTA_PROPERTY("array", copy, Array, array, setArray)
  ORVANTA_PROPERTY("marray", strong, MutableArray, mutableArray, setMutableArray)
  ORVANTA_PROPERTY("dictionary", copy, Dictionary, dictionary, setDictionary)
  ORVANTA_PROPERTY("mdictionary", strong, MutableDictionary, mutableDictionary,
                   setMutableDictionary)
  ORVANTA_PROPERTY("any", strong, AnyObject, any, setAny)
  ORVANTA_PROPERTY("class", assign, ClassReference, model, setModel)
  ORVANTA_PROPERTY("block", copy, Block<void()>, block, setBlock)
  ORVANTA_PROPERTY("leaf", strong, LeafModel, leaf, setLeaf)
};

/// Dotted keys: two below one parent, a longer path, the first parent again.
class DottedModel : public OrvantaBaseModel {
  ORVANTA_MODEL(DottedModel, OrvantaBaseModel)

  ORVANTA_PROPERTY("aps.sound", copy, String, sound, setSound)
  ORVANTA_PROPERTY("aps.badge", assign, std::int64_t, badge, setBadge)
  ORVANTA_PROPERTY("a.b.c", strong, AnyObject, deep, setDeep)
  ORVANTA_PROPERTY("a.b", strong, AnyObject, middle, setMiddle)
  ORVANTA_PROPERTY("aps.tags", copy, Array, tags, setTags)
  ORVANTA_PROPERTY("title", copy, String, title, setTitle)
};

/// Nested models: declared, undeclared, and arrays of both.
class NestingModel : public OrvantaBaseModel {
  ORVANTA_MODEL(NestingModel, OrvantaBaseModel)

  ORVANTA_PROPERTY("leaf", strong, LeafModel, leaf, setLeaf, LeafModel)
  ORVANTA_PROPERTY("leaves", strong, MutableArray, leaves, setLeaves, LeafModel)
  ORVANTA_PROPERTY("free", strong, AnyObject, free, setFree)
  ORVANTA_PROPERTY("list", copy, Array, list, setList)
  ORVANTA_PROPERTY("deeper", strong, NestingModel, deeper, setDeeper, NestingModel)
};

/// A key and a property that its subclass redeclares, and a getter that it overrides.
class AncestorModel : public OrvantaBaseModel {
  ORVANTA_MODEL(AncestorModel, OrvantaBaseModel)

  ORVANTA_PROPERTY("k", copy, String, inherited, setInherited)
  ORVANTA_PROPERTY("s", strong, AnyObject, stamp, setStamp)
  ORVANTA_OVERRIDABLE("code", copy, String, code)
};
class DescendantModel : public AncestorModel {
  ORVANTA_MODEL(DescendantModel, AncestorModel)

  ORVANTA_PROPERTY("own", copy, String, own, setOwn)
  ORVANTA_PROPERTY("k", copy, String, overruled, setOverruled)
  ORVANTA_PROPERTY(kUnmapped, strong, Date, stamp, setStamp)
  PropertyValue<String> code() const override { return "overridden"; }
};

/// A custom setter. It throws the exception that the string names: "known", "unknown key",
/// "standard" or "memory"; "tables" replaces the key table. For a value that is not a string it
/// sets `before`.
class SetterModel : public OrvantaBaseModel {
  ORVANTA_MODEL(SetterModel, OrvantaBaseModel)

  ORVANTA_PROPERTY("before", copy, String, before, setBefore)
  ORVANTA_CUSTOM_SETTER("text", copy, String, text, setText)
  ORVANTA_PROPERTY("after", copy, String, after, setAfter)
};

/// Properties without storage, one of them read-only.
class ComputedModel : public OrvantaBaseModel {
  ORVANTA_MODEL(ComputedModel, OrvantaBaseModel)

  ORVANTA_PROPERTY("half", assign, double, half, setHalf)
  ORVANTA_COMPUTED("twice", assign, "d", twice, &ComputedModel::readTwice, nullptr)
  ORVANTA_COMPUTED(kUnmapped, assign, "q", percent, &ComputedModel::readPercent,
                   (+[](OrvantaBaseModel& o, const Value& v) {
                     static_cast<ComputedModel&>(o).setHalf(scalarReading<double>(v) / 200);
                   }))
  static Value readTwice(const OrvantaBaseModel& model);
  static Value readPercent(const OrvantaBaseModel& model);
};

/// Getters that throw, between others that do not.
class FaultyGetterModel : public OrvantaBaseModel {
  ORVANTA_MODEL(FaultyGetterModel, OrvantaBaseModel)

  ORVANTA_PROPERTY("first", copy, String, first, setFirst)
  ORVANTA_COMPUTED("known", strong, "@", known, &FaultyGetterModel::throwKnown, nullptr)
  ORVANTA_COMPUTED("standard", strong, "@", standard, &FaultyGetterModel::throwStandard, nullptr)
  ORVANTA_PROPERTY("last", copy, String, last, setLast)
  static Value throwKnown(const OrvantaBaseModel& model);
  static Value throwStandard(const OrvantaBaseModel& model);
};

/// Writes itself while it is written, and counts without a lock.
class SelfWritingModel : public OrvantaBaseModel {
  ORVANTA_MODEL(SelfWritingModel, OrvantaBaseModel)

  ORVANTA_PROPERTY("name", copy, String, name, setName)
  ORVANTA_COMPUTED("entries", assign, "q", entries, &SelfWritingModel::countEntries, nullptr)
  static Value countEntries(const OrvantaBaseModel& model);
  int timesCounted() const { return timesCounted_; }

 private:
  mutable bool counting_ = false;
  mutable int timesCounted_ = 0;
};

/// An update that sets defaults first.
class DefaultsModel : public OrvantaBaseModel {
  ORVANTA_MODEL(DefaultsModel, OrvantaBaseModel)

  ORVANTA_PROPERTY("count", assign, std::int64_t, count, setCount)
  ORVANTA_PROPERTY("unit", copy, String, unit, setUnit)
  bool updateWithDictionary(const Dictionary* dictionary) override;
};

/// Nests a model whose update throws.
class PushHolderModel : public OrvantaBaseModel {
  ORVANTA_MODEL(PushHolderModel, OrvantaBaseModel)

  ORVANTA_PROPERTY("push", strong, OrvantaPushObject, push, setPush, OrvantaPushObject)
  ORVANTA_PROPERTY("after", copy, String, after, setAfter)
};

/// Used only by the test of concurrent first use.
class UntouchedModel : public LeafModel {
  ORVANTA_MODEL(UntouchedModel, LeafModel)

  ORVANTA_PROPERTY("link", strong, Url, link, setLink)
};

}  // namespace orvanta::testing
