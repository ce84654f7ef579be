#pragma once

#include <cassert>
#include <initializer_list>
#include <span>

#include "orvanta/Foundation/Value.h"

namespace orvanta {

class DictionaryNode;

/// A map from strings to values that keeps the order of insertion; a replaced value keeps its
/// place. Copies share the entries until one is changed. Lookup takes constant time whatever keys
/// an attacker chooses.
///
///     Dictionary payload{{"id", 7}, {"tags", Array{"a", "b"}}};
///     payload.set("id", "seven");
///     for (const Dictionary::Entry& entry : payload) use(entry.key(), entry.value);
///     if (const Array* tags = payload["tags"].array()) …   // nil, not an exception, if absent
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

  /// The value for a key, nil if there is none. The reference is valid until the dictionary
  /// changes.
  const Value& operator[](std::string_view key) const noexcept;
  /// The same for a key that is a string value already, which is faster.
  const Value& valueForKey(const Value& key) const noexcept;
  /// The same, looking at the entry number `hint` first; `hint` becomes the number after the entry
  /// with the key. For looking up many keys in about the order of the entries, starting with 0.
  const Value& valueForKey(const Value& key, std::size_t& hint) const noexcept;
  bool contains(std::string_view key) const noexcept { return !(*this)[key].isNil(); }

  void reserve(std::size_t capacity);
  /// Stores a value, or removes the key if the value is nil.
  void set(const Value& key, Value value);
  /// Stores a value that is not nil under a key that is not in the dictionary; not checked.
  inline void append(const Value& key, Value&& value);
  /// The same, right after `reserve` made room and before the dictionary is copied.
  template <class V>
  inline void appendInReserve(const Value& key, V&& value);
  void remove(std::string_view key);
  /// Stores every entry of the other dictionary, replacing values of the same keys.
  void addEntries(const Dictionary& other);

  /// Same keys with equal values; the order is irrelevant.
  friend bool operator==(const Dictionary& a, const Dictionary& b);
  std::size_t hash() const;

 private:
  friend class Value;
  friend class TreeBuilder;
  void detach(std::size_t capacity);
  void appendWithRoom(Value key, Value&& value);

  const DictionaryNode* node_ = nullptr;
};

/// The shared contents of a dictionary. The entries follow the header in memory. Fewer than
/// kIndexedSize entries are searched; more have a hash index, keyed by a secret of the process.
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
  /// Appends an entry whose key the node does not have; there is room.
  template <class Key, class V>
  void push(Key&& key, V&& value) {
    new (entries() + size_) Entry{Value(std::forward<Key>(key)), Value(std::forward<V>(value))};
    if (++size_ >= kIndexedSize) indexNewest();
  }
  void erase(Entry* entry) noexcept;
  /// Builds or rebuilds the hash index.
  void buildIndex();

 private:
  DictionaryNode(std::size_t capacity, Arena* arena) noexcept : Node(arena), capacity_(capacity) {}
  const Entry* findLong(const Value& key) const noexcept;
  const Entry* findIndexed(const Value& key) const noexcept;
  void indexNewest();
  void addToIndex(std::size_t position) noexcept;
  static std::uint64_t keyHash(const Value& key) noexcept;

  std::size_t size_ = 0;
  std::size_t capacity_;
  // Open addressing over 1 + the number of an entry, 0 where free. The size is a power of two, at
  // least twice the capacity. Allocated where the node is: in the arena or on the heap.
  std::span<std::uint32_t> index_;
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
  const Value& value = valueForKey(key);
  if (!value.isNil()) {
    // The value is a member of its entry, so its address gives the entry's number.
    hint = static_cast<std::size_t>(reinterpret_cast<const std::byte*>(&value) -
                                    reinterpret_cast<const std::byte*>(begin())) /
               sizeof(Entry) +
           1;
  }
  return value;
}

inline const Dictionary* Value::dictionary() const noexcept {
  return payloadIf<Dictionary>(Kind::dictionary);
}

}  // namespace orvanta
