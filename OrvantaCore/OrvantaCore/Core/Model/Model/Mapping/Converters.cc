#include "orvanta/Foundation/Date.h"
#include "orvanta/Foundation/Number.h"
#include "orvanta/Foundation/Url.h"
#include "orvanta/Model/Mapping/OrvantaBaseModel.h"
#include "orvanta/Model/Mapping/internal/MappingPlan.h"

namespace orvanta {

Converter converterFor(std::string_view encoding) {
  if (encoding == "B") return Converter::boolean;
  if (encoding.find("NSURL") != std::string_view::npos) return Converter::url;
  if (encoding.find("NSDate") != std::string_view::npos) return Converter::date;
  return Converter::none;
}

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

}  // namespace orvanta
