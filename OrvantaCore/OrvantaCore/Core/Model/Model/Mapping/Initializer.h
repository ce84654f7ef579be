#pragma once

#include <utility>

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

// How a model declares initializers that store their arguments, and the class methods that make an
// object with one. Parameters are written as the names of the properties that they fill, in the
// order of the arguments; their types are those of the properties.

#define ORVANTA_PARENTHESES_ ()
#define ORVANTA_RESCAN_(...) ORVANTA_RESCAN1_(ORVANTA_RESCAN1_(ORVANTA_RESCAN1_(__VA_ARGS__)))
#define ORVANTA_RESCAN1_(...) ORVANTA_RESCAN2_(ORVANTA_RESCAN2_(ORVANTA_RESCAN2_(__VA_ARGS__)))
#define ORVANTA_RESCAN2_(...) __VA_ARGS__
#define ORVANTA_EACH_STEP_(do_, first_, ...) \
  do_(first_) __VA_OPT__(, ORVANTA_EACH_AGAIN_ ORVANTA_PARENTHESES_(do_, __VA_ARGS__))
#define ORVANTA_EACH_AGAIN_() ORVANTA_EACH_STEP_
/// do_ of each name, separated by commas; nine at least.
#define ORVANTA_EACH_(do_, ...) __VA_OPT__(ORVANTA_RESCAN_(ORVANTA_EACH_STEP_(do_, __VA_ARGS__)))

#define ORVANTA_PARAMETER_(name_) decltype(name_##_) name_
#define ORVANTA_ARGUMENT_(name_) std::forward<decltype(name_##_)>(name_)
#define ORVANTA_STORE_(name_) this->name_##_ = ORVANTA_ARGUMENT_(name_)
#define ORVANTA_STORE_MADE_(name_) made->name_##_ = ORVANTA_ARGUMENT_(name_)

/// An initializer: runs another one without arguments, then stores its own.
#define ORVANTA_INITIALIZER(init_, first_, ...)                \
  bool init_(ORVANTA_EACH_(ORVANTA_PARAMETER_, __VA_ARGS__)) { \
    if (!first_()) return false;                               \
    ORVANTA_EACH_(ORVANTA_STORE_, __VA_ARGS__);                \
    return true;                                               \
  }

/// A class method that makes an object with an initializer; nil when that answers false.
#define ORVANTA_FACTORY(factory_, init_, ...)                                            \
  static ::orvanta::Ref<Self> factory_(ORVANTA_EACH_(ORVANTA_PARAMETER_, __VA_ARGS__)) { \
    auto made = ::orvanta::Ref<Self>::adopt(new Self);                                   \
    return made->init_(ORVANTA_EACH_(ORVANTA_ARGUMENT_, __VA_ARGS__)) ? made : nullptr;  \
  }

#define ORVANTA_BARE_(...) __VA_ARGS__

/// An initializer that leaves its receiver as it is: it answers a new object of the receiver's
/// class, made with the initializer of the same name that the superclass has for the properties in
/// the first pair of parentheses, and given those in the second. The two class methods make an
/// object with the one and with the other.
#define ORVANTA_SUBSTITUTING_INITIALIZER(init_, inheritedFactory_, inherited_, factory_, own_) \
  using Super::init_;                                                                          \
  ::orvanta::Ref<Self> init_(                                                                  \
      ORVANTA_EACH_(ORVANTA_PARAMETER_, ORVANTA_BARE_ inherited_, ORVANTA_BARE_ own_)) const { \
    auto made = ::orvanta::Ref<Self>::adopt(static_cast<Self*>(isa().alloc()));                \
    if (!made->Super::init_(ORVANTA_EACH_(ORVANTA_ARGUMENT_, ORVANTA_BARE_ inherited_)))       \
      return nullptr;                                                                          \
    ORVANTA_EACH_(ORVANTA_STORE_MADE_, ORVANTA_BARE_ own_);                                    \
    return made;                                                                               \
  }                                                                                            \
  ORVANTA_FACTORY(inheritedFactory_, init_, ORVANTA_BARE_ inherited_)                          \
  static ::orvanta::Ref<Self> factory_(                                                        \
      ORVANTA_EACH_(ORVANTA_PARAMETER_, ORVANTA_BARE_ inherited_, ORVANTA_BARE_ own_)) {       \
    const auto receiver = ::orvanta::Ref<Self>::adopt(new Self);                               \
    return receiver->init_(                                                                    \
        ORVANTA_EACH_(ORVANTA_ARGUMENT_, ORVANTA_BARE_ inherited_, ORVANTA_BARE_ own_));       \
  }
