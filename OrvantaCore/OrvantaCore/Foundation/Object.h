#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "orvanta/Foundation/internal/Node.h"

namespace orvanta {

class Value;

/// What every class object begins with: its name, and the class object that it derives from
/// (nullptr for a root class). Class objects are constant data and live for the process.
struct ClassObject {
  std::string_view name;
  const ClassObject* superclass = nullptr;

  constexpr ClassObject(std::string_view className, const ClassObject* parent)
      : name(className), superclass(parent) {}
  bool isSubclassOf(const ClassObject& wanted) const {
    for (const ClassObject* cls = this; cls != nullptr; cls = cls->superclass) {
      if (cls == &wanted) return true;
    }
    return false;
  }
};

/// Base of everything that has identity and is shared by reference: models and the like. Held
/// through Ref or inside a Value; freed with the last of them.
class Object : public Node {
 public:
  virtual ~Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

  virtual const ClassObject& isa() const = 0;
  bool isKindOf(const ClassObject& cls) const { return isa().isSubclassOf(cls); }

  /// Equality of the platform's `isEqual:`; identity unless overridden. Equal objects hash alike.
  virtual bool isEqual(const Value& other) const;
  virtual std::size_t hash() const;
  /// What "%@" prints; "<Class>" unless overridden.
  virtual std::string description() const;

  /// Key-value coding. Both throw the undefined-key exception for a key that the object does not
  /// have, and the second the invalid-argument one for a value that a scalar cannot take.
  virtual Value valueForKey(std::string_view key) const;
  virtual void setValueForKey(const Value& value, std::string_view key);

 protected:
  Object() noexcept : Node(nullptr) {}
};

/// A shared, counted reference to an object; empty means nil.
template <class T>
class Ref {
 public:
  Ref() noexcept = default;
  Ref(std::nullptr_t) noexcept {}
  /// Shares an object that somebody holds already.
  explicit Ref(T* object) noexcept : object_(object) {
    if (object_ != nullptr) object_->retain();
  }
  /// Takes over the one reference that a new object is born with.
  static Ref adopt(T* object) noexcept {
    Ref ref;
    ref.object_ = object;
    return ref;
  }
  Ref(const Ref& other) noexcept : Ref(other.object_) {}
  Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  template <class U>
  requires std::is_convertible_v<U*, T*> Ref(const Ref<U>& other)
  noexcept : Ref(other.get()) {}
  ~Ref() { reset(); }

  Ref& operator=(Ref other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  void reset() noexcept {
    T* object = std::exchange(object_, nullptr);
    if (object != nullptr && object->release()) delete object;
  }

  /// Hands the reference over to the caller; this one is empty then.
  T* release() noexcept { return std::exchange(object_, nullptr); }

  T* get() const noexcept { return object_; }
  T* operator->() const noexcept { return object_; }
  T& operator*() const noexcept { return *object_; }
  explicit operator bool() const noexcept { return object_ != nullptr; }
  friend bool operator==(const Ref& a, const Ref& b) noexcept { return a.object_ == b.object_; }

 private:
  T* object_ = nullptr;
};

}  // namespace orvanta
