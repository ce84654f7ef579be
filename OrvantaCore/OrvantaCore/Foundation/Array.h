#pragma once

#include <initializer_list>

#include "orvanta/Foundation/Value.h"

namespace orvanta {

class ArrayNode;

/// An ordered list of values, none of which is nil. Copies share the elements until one is changed.
class Array {
 public:
  Array() noexcept = default;
  Array(std::initializer_list<Value> elements);
  Array(const Array& other) noexcept;
  Array(Array&& other) noexcept : node_(std::exchange(other.node_, nullptr)) {}
  ~Array();
  Array& operator=(Array other) noexcept {
    std::swap(node_, other.node_);
    return *this;
  }

  std::size_t size() const noexcept;
  bool empty() const noexcept { return size() == 0; }
  const Value* begin() const noexcept;
  const Value* end() const noexcept { return begin() + size(); }
  /// The element at an index below size().
  const Value& operator[](std::size_t index) const noexcept { return begin()[index]; }

  void reserve(std::size_t capacity);
  /// Appends a value; throws the invalid-argument exception for nil.
  void append(Value element);
  /// Replaces the element at an index below size(); throws like append.
  void set(std::size_t index, Value element);
  /// Removes the first `count` elements, or all if there are fewer.
  void removeFirst(std::size_t count);

  friend bool operator==(const Array& a, const Array& b);
  std::size_t hash() const;

 private:
  friend class Value;
  friend class TreeBuilder;
  /// Moves to an unshared node with room for `capacity` elements, unless it has one.
  void detach(std::size_t capacity);

  const ArrayNode* node_ = nullptr;
};

/// The shared contents of an array. The elements follow the header in memory.
class ArrayNode : public Node {
 public:
  static ArrayNode* create(std::size_t capacity, Arena* arena);
  /// Destroys the elements and frees the node, which is on the heap.
  void destroy() const noexcept;

  std::size_t size() const noexcept { return size_; }
  std::size_t capacity() const noexcept { return capacity_; }
  Value* elements() noexcept { return reinterpret_cast<Value*>(this + 1); }
  const Value* elements() const noexcept { return reinterpret_cast<const Value*>(this + 1); }
  template <class V>
  void push(V&& element) noexcept {
    new (elements() + size_) Value(std::forward<V>(element));
    ++size_;
  }
  void removeFirst(std::size_t count) noexcept;

 private:
  ArrayNode(std::size_t capacity, Arena* arena) noexcept : Node(arena), capacity_(capacity) {}
  std::size_t size_ = 0;
  std::size_t capacity_;
};

inline std::size_t Array::size() const noexcept { return node_ == nullptr ? 0 : node_->size(); }
inline const Value* Array::begin() const noexcept {
  return node_ == nullptr ? nullptr : node_->elements();
}

inline const Array* Value::array() const noexcept { return payloadIf<Array>(Kind::array); }

}  // namespace orvanta
