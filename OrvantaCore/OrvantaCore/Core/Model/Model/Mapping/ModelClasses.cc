#include "orvanta/Model/Mapping/Class.h"

namespace orvanta {

#define ORVANTA_MODEL_CLASS(Name_) const Class& classObjectOf##Name_();
#include "orvanta/Model/Mapping/ModelClasses.def"
#undef ORVANTA_MODEL_CLASS

std::span<const Class* const> modelClasses() {
  static const Class* const kClasses[] = {
#define ORVANTA_MODEL_CLASS(Name_) &classObjectOf##Name_(),
#include "orvanta/Model/Mapping/ModelClasses.def"
#undef ORVANTA_MODEL_CLASS
  };
  return kClasses;
}

const Class* modelClassNamed(std::string_view name) {
  for (const Class* cls : modelClasses()) {
    if (cls->name == name) return cls;
  }
  return nullptr;
}

}  // namespace orvanta
