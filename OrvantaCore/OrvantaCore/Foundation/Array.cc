#include "orvanta/Foundation/Array.h"

#include <algorithm>
#include <memory>

#include "orvanta/Foundation/Exception.h"

namespace orvanta {

Array::Array(std::initializer_list<Value> elements) : Array() {
  reserve(elements.size());
  for (const Value& element : elements) append(element);
}

Array::Array(const Array& other) noexcept : node_(other.node_) {
  if (node_ != nullptr) node_->retain();
}

Array::~Array() {
  if (node_ != nullptr && node_->release()) node_->destroy();
}

void Array::detach(std::size_t capacity) {
  if (node_ != nullptr && node_->isUnshared() && node_->capacity() >= capacity) return;
  ArrayNode* own = ArrayNode::create(std::max(capacity, size()), nullptr);
  for (const Value& element : *this) own->push(element);
  *this = Array();
  node_ = own;
}

void Array::reserve(std::size_t capacity) {
  if (capacity > size()) detach(capacity);
}

static void requireNotNil(const Value& element) {
  if (!element.isNil()) return;
  throw Exception(Exception::kInvalidArgument,
                  "*** -[__NSArrayM insertObject:atIndex:]: object cannot be nil");
}

void Array::append(Value element) {
  requireNotNil(element);
  const bool full = node_ == nullptr || size() == node_->capacity();
  detach(full ? std::max<std::size_t>(4, 2 * size()) : size() + 1);
  const_cast<ArrayNode*>(node_)->push(std::move(element));
}

void Array::set(std::size_t index, Value element) {
  requireNotNil(element);
  detach(size());
  const_cast<ArrayNode*>(node_)->elements()[index] = std::move(element);
}

void Array::removeFirst(std::size_t count) {
  count = std::min(count, size());
  if (count == 0) return;
  detach(size());
  const_cast<ArrayNode*>(node_)->removeFirst(count);
}

bool operator==(const Array& a, const Array& b) {
  return a.node_ == b.node_ || std::equal(a.begin(), a.end(), b.begin(), b.end());
}

std::size_t Array::hash() const {
  std::size_t sum = size();
  for (const Value& element : *this) sum = sum * 31 + element.hash();
  return sum;
}

ArrayNode* ArrayNode::create(std::size_t capacity, Arena* arena) {
  const std::size_t bytes = sizeof(ArrayNode) + capacity * sizeof(Value);
  void* memory = arena != nullptr ? arena->allocate(bytes) : ::operator new(bytes);
  return new (memory) ArrayNode(capacity, arena);
}

void ArrayNode::destroy() const noexcept {
  auto* self = const_cast<ArrayNode*>(this);
  std::destroy_n(self->elements(), size_);
  ::operator delete(self);
}

void ArrayNode::removeFirst(std::size_t count) noexcept {
  std::move(elements() + count, elements() + size_, elements());
  std::destroy_n(elements() + (size_ - count), count);
  size_ -= count;
}

}  // namespace orvanta
