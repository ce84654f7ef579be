#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "orvanta/Foundation/internal/Node.h"

namespace orvanta {

class Value;

/// The first part of every class object: its name and its superclass, nullptr for a root class.
/// Class objects are constant data that lives as long as the process.
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

/// Base of everything with identity, such as models. Objects are created with `new`, owned by Refs
/// and Values, and deleted with the last of them.
class Object : public Node {
 public:
  virtual ~Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

  virtual const ClassObject& isa() const = 0;
  bool isKindOf(const ClassObject& cls) const { return isa().isSubclassOf(cls); }

  /// The platform's `isEqual:`: identity unless overridden. Equal objects have equal hashes.
  virtual bool isEqual(const Value& other) const;
  virtual std::size_t hash() const;
  /// What "%@" prints: "<Class>" unless overridden.
  virtual std::string description() const;

  /// Key-value coding. Both throw the undefined-key exception if the object does not have the key;
  /// setting also throws the invalid-argument exception if a scalar property rejects the value.
  virtual Value valueForKey(std::string_view key) const;
  virtual void setValueForKey(const Value& value, std::string_view key);

 protected:
  Object() noexcept : Node(nullptr) {}
};

/// An owning, counted reference to an object; may be empty.
template <class T>
class Ref {
 public:
  Ref() noexcept = default;
  Ref(std::nullptr_t) noexcept {}
  /// Adds a reference to an object that is already owned.
  explicit Ref(T* object) noexcept : object_(object) {
    if (object_ != nullptr) object_->retain();
  }
  /// Takes over the reference that `new` returns.
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

  /// Transfers the reference to the caller and becomes empty.
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
