#pragma once

#include <utility>

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

// Declarations of initializers that store their arguments, and of class methods that create an
// object with one. Parameters are given as the names of the properties that they are stored in,
// which also have their types:
//
//     ORVANTA_PROPERTY("pi", copy, String, productId, setProductId)
//     ORVANTA_PROPERTY("pn", copy, String, productName, setProductName)
//
//     ORVANTA_INITIALIZER(initWithId, init, productId, productName)
//     ORVANTA_FACTORY(productWithId, initWithId, productId, productName)

// The preprocessor does not recurse. ORVANTA_EACH_STEP_ leaves its next step unexpanded, as
// ORVANTA_EACH_AGAIN_ and separate parentheses, and every rescan expands one more step.
#define ORVANTA_PARENTHESES_ ()
#define ORVANTA_RESCAN_(...) ORVANTA_RESCAN1_(ORVANTA_RESCAN1_(ORVANTA_RESCAN1_(__VA_ARGS__)))
#define ORVANTA_RESCAN1_(...) ORVANTA_RESCAN2_(ORVANTA_RESCAN2_(ORVANTA_RESCAN2_(__VA_ARGS__)))
#define ORVANTA_RESCAN2_(...) __VA_ARGS__
#define ORVANTA_EACH_STEP_(do_, first_, ...) \
  do_(first_) __VA_OPT__(, ORVANTA_EACH_AGAIN_ ORVANTA_PARENTHESES_(do_, __VA_ARGS__))
#define ORVANTA_EACH_AGAIN_() ORVANTA_EACH_STEP_
/// do_ applied to each name, separated by commas. The rescans suffice for nine names.
#define ORVANTA_EACH_(do_, ...) __VA_OPT__(ORVANTA_RESCAN_(ORVANTA_EACH_STEP_(do_, __VA_ARGS__)))

#define ORVANTA_PARAMETER_(name_) decltype(name_##_) name_
#define ORVANTA_ARGUMENT_(name_) std::forward<decltype(name_##_)>(name_)
#define ORVANTA_STORE_(name_) this->name_##_ = ORVANTA_ARGUMENT_(name_)
#define ORVANTA_STORE_IN_MODEL_(name_) model->name_##_ = ORVANTA_ARGUMENT_(name_)

/// An initializer that calls `first_`, an initializer without arguments, and then stores its own.
#define ORVANTA_INITIALIZER(init_, first_, ...)                \
  bool init_(ORVANTA_EACH_(ORVANTA_PARAMETER_, __VA_ARGS__)) { \
    if (!first_()) return false;                               \
    ORVANTA_EACH_(ORVANTA_STORE_, __VA_ARGS__);                \
    return true;                                               \
  }

/// A class method that creates an object with an initializer; nil if that returns false.
#define ORVANTA_FACTORY(factory_, init_, ...)                                             \
  static ::orvanta::Ref<Self> factory_(ORVANTA_EACH_(ORVANTA_PARAMETER_, __VA_ARGS__)) {  \
    auto model = ::orvanta::Ref<Self>::adopt(new Self);                                   \
    return model->init_(ORVANTA_EACH_(ORVANTA_ARGUMENT_, __VA_ARGS__)) ? model : nullptr; \
  }

#define ORVANTA_BARE_(...) __VA_ARGS__

/// An initializer that does not change its receiver but returns a new object of the receiver's
/// class. It calls the superclass's initializer of the same name with the properties in
/// `inherited_`, in parentheses, and then stores those in `own_`. The class methods create an
/// object with the inherited initializer and with this one.
#define ORVANTA_SUBSTITUTING_INITIALIZER(init_, inheritedFactory_, inherited_, factory_, own_) \
  using Super::init_;                                                                          \
  ::orvanta::Ref<Self> init_(                                                                  \
      ORVANTA_EACH_(ORVANTA_PARAMETER_, ORVANTA_BARE_ inherited_, ORVANTA_BARE_ own_)) const { \
    auto model = ::orvanta::Ref<Self>::adopt(static_cast<Self*>(isa().alloc()));               \
    if (!model->Super::init_(ORVANTA_EACH_(ORVANTA_ARGUMENT_, ORVANTA_BARE_ inherited_)))      \
      return nullptr;                                                                          \
    ORVANTA_EACH_(ORVANTA_STORE_IN_MODEL_, ORVANTA_BARE_ own_);                                \
    return model;                                                                              \
  }                                                                                            \
  ORVANTA_FACTORY(inheritedFactory_, init_, ORVANTA_BARE_ inherited_)                          \
  static ::orvanta::Ref<Self> factory_(                                                        \
      ORVANTA_EACH_(ORVANTA_PARAMETER_, ORVANTA_BARE_ inherited_, ORVANTA_BARE_ own_)) {       \
    const auto receiver = ::orvanta::Ref<Self>::adopt(new Self);                               \
    return receiver->init_(                                                                    \
        ORVANTA_EACH_(ORVANTA_ARGUMENT_, ORVANTA_BARE_ inherited_, ORVANTA_BARE_ own_));       \
  }
