#include "orvanta/Foundation/KeyPath.h"
#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

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

bool OrvantaBaseModel::validateValueForKeyPath(Value& value, std::string_view keyPath,
                                               Value* error) const {
  const auto dot = keyPath.rfind('.');
  if (dot == std::string_view::npos) return validateValue(value, keyPath, error);
  const Value owner = valueForKeyPath(Value(this), keyPath.substr(0, dot));
  const auto* model = owner.as<OrvantaBaseModel>();
  return model == nullptr || model->validateValue(value, keyPath.substr(dot + 1), error);
}

}  // namespace orvanta
