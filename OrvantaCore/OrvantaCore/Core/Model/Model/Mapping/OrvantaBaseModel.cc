#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

#include "orvanta/Model/Mapping/internal/MappingPlan.h"

// The class object, an object's own tables, and copies. Reading, writing, conversion and key-value
// coding have files of their own.

namespace orvanta {

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

/// The tables of one object. Few objects have any, so they are created when read or set.
struct OrvantaBaseModel::OwnTables {
  Dictionary keys;
  Dictionary classes;
  std::shared_ptr<const MappingPlan> plan;  // only if a table was set
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

std::shared_ptr<const MappingPlan> OrvantaBaseModel::planOfOwnTables() const {
  return ownTables_->plan;
}

}  // namespace orvanta
