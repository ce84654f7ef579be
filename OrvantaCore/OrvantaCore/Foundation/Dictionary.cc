#include "orvanta/Foundation/Dictionary.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <memory>
#include <random>

namespace orvanta {

namespace {

constinit const Value kNil;

/// SipHash-1-3 with a secret of the process. Payload keys come from outside, and with a known hash
/// a sender could choose keys that collide, so that a dictionary takes quadratic time. No output
/// depends on the hash, since entries keep the order of insertion.
class KeyedHash {
 public:
  static std::uint64_t of(std::string_view text) noexcept {
    static const KeyedHash instance;
    return instance.hash(text);
  }

 private:
  KeyedHash() noexcept {
    try {
      std::random_device device;
      for (std::uint64_t& word : key_) word = std::uint64_t{device()} << 32 | device();
    } catch (const std::exception&) {
      key_[0] = reinterpret_cast<std::uintptr_t>(this);  // an address, at least not known outside
    }
  }

  static void round(std::uint64_t (&v)[4]) noexcept {
    v[0] += v[1], v[1] = std::rotl(v[1], 13), v[1] ^= v[0], v[0] = std::rotl(v[0], 32);
    v[2] += v[3], v[3] = std::rotl(v[3], 16), v[3] ^= v[2];
    v[0] += v[3], v[3] = std::rotl(v[3], 21), v[3] ^= v[0];
    v[2] += v[1], v[1] = std::rotl(v[1], 17), v[1] ^= v[2], v[2] = std::rotl(v[2], 32);
  }

  std::uint64_t hash(std::string_view text) const noexcept {
    std::uint64_t v[4] = {key_[0] ^ 0x736f6d6570736575U, key_[1] ^ 0x646f72616e646f6dU,
                          key_[0] ^ 0x6c7967656e657261U, key_[1] ^ 0x7465646279746573U};
    const char* at = text.data();
    std::size_t left = text.size();
    for (; left >= 8; at += 8, left -= 8) {
      std::uint64_t word;
      std::memcpy(&word, at, 8);
      v[3] ^= word;
      round(v);
      v[0] ^= word;
    }
    std::uint64_t last = static_cast<std::uint64_t>(text.size()) << 56;
    for (std::size_t i = 0; i < left; ++i) {
      last |= std::uint64_t{static_cast<unsigned char>(at[i])} << (8 * i);
    }
    v[3] ^= last;
    round(v);
    v[0] ^= last;
    v[2] ^= 0xFF;
    for (int i = 0; i < 3; ++i) round(v);
    return v[0] ^ v[1] ^ v[2] ^ v[3];
  }

  std::uint64_t key_[2] = {0, 0};
};

}  // namespace

Dictionary::Dictionary(std::initializer_list<std::pair<std::string_view, Value>> entries)
    : Dictionary() {
  reserve(entries.size());
  for (const auto& [key, value] : entries) set(key, value);
}

Dictionary::Dictionary(const Dictionary& other) noexcept : node_(other.node_) {
  if (node_ != nullptr) node_->retain();
}

Dictionary::~Dictionary() {
  if (node_ != nullptr && node_->release()) node_->destroy();
}

const Value& Dictionary::operator[](std::string_view key) const noexcept {
  if (node_ == nullptr) return kNil;
  if (key.size() > Value::kInlineCapacity) {
    if (size() >= DictionaryNode::kIndexedSize) return valueForKey(key);
    for (const Entry& entry : *this) {
      if (entry.key() == key) return entry.value;
    }
    return kNil;
  }
  return valueForKey(Value::inlineString(key));
}

const Value& Dictionary::valueForKey(const Value& key) const noexcept {
  const Entry* entry = node_ == nullptr ? nullptr : node_->find(key);
  return entry == nullptr ? kNil : entry->value;
}

void Dictionary::detach(std::size_t capacity) {
  const bool isOwn = node_ != nullptr && node_->isUnshared();
  if (isOwn && node_->capacity() >= capacity) return;
  struct Destroy {
    void operator()(const DictionaryNode* node) const { node->destroy(); }
  };
  std::unique_ptr<DictionaryNode, Destroy> own(
      DictionaryNode::create(std::max(capacity, size()), nullptr));
  if (size() >= DictionaryNode::kIndexedSize) own->buildIndex();  // may throw, so before any move
  for (const Entry& entry : *this) {
    Value value = isOwn ? std::move(const_cast<Value&>(entry.value)) : Value(entry.value);
    own->push(entry.keyValue, std::move(value));
  }
  *this = Dictionary();
  node_ = own.release();
}

void Dictionary::reserve(std::size_t capacity) {
  if (capacity > size()) detach(capacity);
}

void Dictionary::set(const Value& key, Value value) {
  if (value.isNil()) return remove(*key.string());
  const Entry* entry = node_ == nullptr ? nullptr : node_->find(key);
  if (entry != nullptr) {
    const auto position = entry - begin();
    detach(size());  // may replace the node that `entry` points into
    const_cast<DictionaryNode*>(node_)->entries()[position].value = std::move(value);
    return;
  }
  append(key, std::move(value));
}

void Dictionary::appendWithRoom(Value key, Value&& value) {
  const bool full = node_ == nullptr || size() == node_->capacity();
  detach(full ? std::max<std::size_t>(4, 2 * size()) : size() + 1);
  const_cast<DictionaryNode*>(node_)->push(std::move(key), std::move(value));
}

void Dictionary::remove(std::string_view key) {
  const Entry* entry = node_ == nullptr ? nullptr : node_->find(Value(key));
  if (entry == nullptr) return;
  const auto position = entry - begin();
  detach(size());
  auto* node = const_cast<DictionaryNode*>(node_);
  node->erase(node->entries() + position);
}

void Dictionary::addEntries(const Dictionary& other) {
  // `other` may be a value in this dictionary.
  const Dictionary added = other;  // NOLINT(performance-unnecessary-copy-initialization)
  reserve(size() + added.size());
  for (const Entry& entry : added) set(entry.keyValue, entry.value);
}

bool operator==(const Dictionary& a, const Dictionary& b) {
  if (a.node_ == b.node_) return true;
  return a.size() == b.size() &&
         std::all_of(a.begin(), a.end(), [&b](const Dictionary::Entry& entry) {
           return b.valueForKey(entry.keyValue) == entry.value;
         });
}

std::size_t Dictionary::hash() const {
  std::size_t sum = size();  // a sum, since equality ignores the order
  for (const Entry& entry : *this) sum += entry.keyValue.hash() * 31 ^ entry.value.hash();
  return sum;
}

// ---- Nodes ----------------------------------------------------------------

DictionaryNode* DictionaryNode::create(std::size_t capacity, Arena* arena) {
  if (capacity >= std::numeric_limits<std::uint32_t>::max()) throw std::bad_alloc();
  const std::size_t bytes = sizeof(DictionaryNode) + capacity * sizeof(Entry);
  void* memory = arena != nullptr ? arena->allocate(bytes) : ::operator new(bytes);
  return new (memory) DictionaryNode(capacity, arena);
}

void DictionaryNode::destroy() const noexcept {
  auto* self = const_cast<DictionaryNode*>(this);
  std::destroy_n(self->entries(), size_);
  delete[] index_.data();
  ::operator delete(self);
}

std::uint64_t DictionaryNode::keyHash(const Value& key) noexcept {
  return KeyedHash::of(key.text());
}

const DictionaryNode::Entry* DictionaryNode::find(const Value& key) const noexcept {
  if (!index_.empty()) return findIndexed(key);
  if (key.isShared()) return findLong(key);
  // Equal inline strings have equal bits, so two words decide.
  const Value::Bits wanted = key.bits();
  const Entry* const last = entries() + size_;
  for (const Entry* entry = entries(); entry != last; ++entry) {
    if (entry->keyValue.word(0) == wanted.words[0] && entry->keyValue.word(1) == wanted.words[1]) {
      return entry;
    }
  }
  return nullptr;
}

const DictionaryNode::Entry* DictionaryNode::findLong(const Value& key) const noexcept {
  const std::string_view text = key.text();
  for (const Entry* entry = entries(); entry != entries() + size_; ++entry) {
    if (entry->keyValue.isShared() && entry->keyValue.text() == text) return entry;
  }
  return nullptr;
}

const DictionaryNode::Entry* DictionaryNode::findIndexed(const Value& key) const noexcept {
  const std::size_t mask = index_.size() - 1;
  for (std::size_t slot = keyHash(key) & mask;; slot = (slot + 1) & mask) {
    const std::uint32_t position = index_[slot];
    if (position == 0) return nullptr;
    const Entry& entry = entries()[position - 1];
    if (entry.keyValue.text() == key.text()) return &entry;
  }
}

void DictionaryNode::indexNewest() {
  if (index_.empty() || size_ == kIndexedSize) {
    buildIndex();
  } else {
    addToIndex(size_);
  }
}

void DictionaryNode::buildIndex() {
  if (index_.empty()) {
    const std::size_t slots = std::bit_ceil(2 * capacity_);
    void* memory = arena() != nullptr ? arena()->allocate(slots * sizeof(std::uint32_t))
                                      : new std::uint32_t[slots];
    index_ = {static_cast<std::uint32_t*>(memory), slots};
  }
  std::fill(index_.begin(), index_.end(), 0);
  for (std::size_t position = 1; position <= size_; ++position) addToIndex(position);
}

void DictionaryNode::addToIndex(std::size_t position) noexcept {
  const std::size_t mask = index_.size() - 1;
  std::size_t slot = keyHash(entries()[position - 1].keyValue) & mask;
  while (index_[slot] != 0) slot = (slot + 1) & mask;
  index_[slot] = static_cast<std::uint32_t>(position);
}

void DictionaryNode::erase(Entry* entry) noexcept {
  std::move(entry + 1, entries() + size_, entry);
  --size_;
  std::destroy_at(entries() + size_);
  if (index_.empty()) return;
  if (size_ >= kIndexedSize) return buildIndex();
  delete[] index_.data();
  index_ = {};
}

}  // namespace orvanta
