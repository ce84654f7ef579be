#pragma once

#include <cassert>
#include <initializer_list>
#include <span>

#include "orvanta/Foundation/Value.h"

namespace orvanta {

class DictionaryNode;

/// A map from text to values that keeps the order of insertion; replacing a key's value keeps its
/// place. A copy shares the entries until one side is changed. Looking a key up takes constant
/// time however the keys were chosen.
class Dictionary {
 public:
  struct Entry {
    Value keyValue;  // always a string
    Value value;     // never nil
    std::string_view key() const noexcept { return *keyValue.string(); }
  };

  Dictionary() noexcept = default;
  Dictionary(std::initializer_list<std::pair<std::string_view, Value>> entries);
  Dictionary(const Dictionary& other) noexcept;
  Dictionary(Dictionary&& other) noexcept : node_(std::exchange(other.node_, nullptr)) {}
  ~Dictionary();
  Dictionary& operator=(Dictionary other) noexcept {
    std::swap(node_, other.node_);
    return *this;
  }

  std::size_t size() const noexcept;
  bool empty() const noexcept { return size() == 0; }
  const Entry* begin() const noexcept;
  const Entry* end() const noexcept { return begin() + size(); }

  /// The value of a key, nil when there is none; the reference lives as long as the dictionary
  /// stays as it is.
  const Value& operator[](std::string_view key) const noexcept;
  /// The same for a key that is at hand as a string value; faster.
  const Value& valueForKey(const Value& key) const noexcept;
  /// The same, looking first where the hint says, which moves on behind what was found: for
  /// looking up many keys in about the order of the entries. Begin with 0.
  const Value& valueForKey(const Value& key, std::size_t& hint) const noexcept;
  bool contains(std::string_view key) const noexcept { return !(*this)[key].isNil(); }

  void reserve(std::size_t capacity);
  /// Stores a value; a nil removes the key.
  void set(const Value& key, Value value);
  /// Stores a value that is not nil under a key that is known to be new; faster.
  inline void append(const Value& key, Value&& value);
  /// The same with room that `reserve` made just now, in a dictionary without a copy.
  template <class V>
  inline void appendInReserve(const Value& key, V&& value);
  void remove(std::string_view key);
  /// Stores every entry of the other dictionary over this one's.
  void addEntries(const Dictionary& other);

  /// Same keys with equal values, in whatever order.
  friend bool operator==(const Dictionary& a, const Dictionary& b);
  std::size_t hash() const;

 private:
  friend class Value;
  friend class TreeBuilder;
  void detach(std::size_t capacity);
  void appendWithRoom(Value key, Value&& value);

  const DictionaryNode* node_ = nullptr;
};

/// The entries behind a dictionary; they follow the header. From kIndexedSize entries on a hash
/// index with a key of its own per process finds them.
class DictionaryNode : public Node {
 public:
  using Entry = Dictionary::Entry;
  static constexpr std::size_t kIndexedSize = 32;

  static DictionaryNode* create(std::size_t capacity, Arena* arena);
  void destroy() const noexcept;

  std::size_t size() const noexcept { return size_; }
  std::size_t capacity() const noexcept { return capacity_; }
  Entry* entries() noexcept { return reinterpret_cast<Entry*>(this + 1); }
  const Entry* entries() const noexcept { return reinterpret_cast<const Entry*>(this + 1); }
  const Entry* find(const Value& key) const noexcept;
  Entry* find(const Value& key) noexcept {
    return const_cast<Entry*>(static_cast<const DictionaryNode*>(this)->find(key));
  }
  /// Appends an entry whose key is known to be new.
  template <class Key, class V>
  void push(Key&& key, V&& value) {
    new (entries() + size_) Entry{Value(std::forward<Key>(key)), Value(std::forward<V>(value))};
    if (++size_ >= kIndexedSize) enterNewest();
  }
  void erase(Entry* entry) noexcept;
  /// Makes the hash index, or makes it anew.
  void makeIndex();

 private:
  DictionaryNode(std::size_t capacity, Arena* arena) noexcept : Node(arena), capacity_(capacity) {}
  const Entry* findLong(const Value& key) const noexcept;
  const Entry* findIndexed(const Value& key) const noexcept;
  void enterNewest();
  void enterInIndex(std::size_t position) noexcept;
  static std::uint64_t keyHash(const Value& key) noexcept;

  std::size_t size_ = 0;
  std::size_t capacity_;
  std::span<std::uint32_t> index_;  // position + 1, 0 = free; a power of two of at least twice
                                    // the capacity; from the arena or the heap like the node
};

inline std::size_t Dictionary::size() const noexcept {
  return node_ == nullptr ? 0 : node_->size();
}
inline const Dictionary::Entry* Dictionary::begin() const noexcept {
  return node_ == nullptr ? nullptr : node_->entries();
}

inline void Dictionary::append(const Value& key, Value&& value) {
  if (node_ == nullptr || !node_->isUnshared() || size() == node_->capacity()) {
    return appendWithRoom(key, std::move(value));
  }
  const_cast<DictionaryNode*>(node_)->push(key, std::move(value));
}

template <class V>
inline void Dictionary::appendInReserve(const Value& key, V&& value) {
  assert(size() < node_->capacity());
  const_cast<DictionaryNode*>(node_)->push(key, std::forward<V>(value));
}

inline const Value& Dictionary::valueForKey(const Value& key, std::size_t& hint) const noexcept {
  if (hint < size() && begin()[hint].keyValue.hasSameBits(key)) return begin()[hint++].value;
  const Value& found = valueForKey(key);
  if (!found.isNil()) {
    // Values stand in entries, so the place of one tells that of the other.
    hint = static_cast<std::size_t>(reinterpret_cast<const std::byte*>(&found) -
                                    reinterpret_cast<const std::byte*>(begin())) /
               sizeof(Entry) +
           1;
  }
  return found;
}

inline const Dictionary* Value::dictionary() const noexcept {
  return payloadIf<Dictionary>(Kind::dictionary);
}

}  // namespace orvanta
