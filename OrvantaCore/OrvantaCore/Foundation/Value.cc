#include "orvanta/Foundation/Value.h"

#include <cstdlib>
#include <functional>
#include <utility>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Foundation/Exception.h"
#include "orvanta/Foundation/Number.h"
#include "orvanta/Foundation/Url.h"

namespace orvanta {

Value::Value(std::string_view string)
    : Value(string.size() <= kInlineCapacity
                ? inlineString(string)
                : Value(Kind::string, StringNode::create(string, nullptr))) {}

Value::Value(const Array& array) noexcept : Value(Kind::array, array.node_) {
  if (array.node_ != nullptr) array.node_->retain();
}

Value::Value(const Dictionary& dictionary) noexcept : Value(Kind::dictionary, dictionary.node_) {
  if (dictionary.node_ != nullptr) dictionary.node_->retain();
}

Value::Value(const Url& url) noexcept : Value(Kind::url, url.node_) { url.node_->retain(); }

Value::Value(Array&& array) noexcept : Value(Kind::array, std::exchange(array.node_, nullptr)) {}

Value::Value(Dictionary&& dictionary) noexcept
    : Value(Kind::dictionary, std::exchange(dictionary.node_, nullptr)) {}

Value::Value(Url&& url) noexcept : Value(Kind::url, std::exchange(url.node_, nullptr)) {}

Value::Value(const Object* object) noexcept {
  if (object == nullptr) return;
  object->retain();
  Value shared(Kind::object, static_cast<const Node*>(object));
  copyBits(shared);
  shared.forget();
}

Value::Value(const ClassObject* cls) noexcept {
  if (cls == nullptr) return;
  bytes_[0] = static_cast<unsigned char>(Kind::classObject);
  setWord(1, addressBits(cls));
}

void Value::releaseNode() const noexcept {
  if (!node()->release()) return;
  switch (kind()) {
    case Kind::array:
      static_cast<const ArrayNode*>(node())->destroy();
      break;
    case Kind::dictionary:
      static_cast<const DictionaryNode*>(node())->destroy();
      break;
    case Kind::object:
      delete static_cast<const Object*>(node());
      break;
    default:  // strings and URLs
      static_cast<const StringNode*>(node())->destroy();
  }
}

const Url* Value::url() const noexcept { return payloadIf<Url>(Kind::url); }

const ClassObject* Value::classObject() const noexcept {
  return kind() == Kind::classObject ? pointerAs<ClassObject>() : nullptr;
}

Array& Value::editArray() {
  if (kind() != Kind::array) *this = Array();
  return const_cast<Array&>(*payloadAs<Array>());
}

Dictionary& Value::editDictionary() {
  if (kind() != Kind::dictionary) *this = Dictionary();
  return const_cast<Dictionary&>(*payloadAs<Dictionary>());
}

bool operator==(const Value& a, const Value& b) {
  if (a.isNumber() && b.isNumber()) return *a.number() == *b.number();
  if (a.kind() == Kind::object) return a.object()->isEqual(b);
  if (a.kind() != b.kind()) return false;
  if (a.hasSameBits(b)) return true;
  switch (a.kind()) {
    case Kind::date:
      return *a.date() == *b.date();
    case Kind::string:
    case Kind::url:
      return a.text() == b.text();
    case Kind::array:
      return *a.array() == *b.array();
    case Kind::dictionary:
      return *a.dictionary() == *b.dictionary();
    default:
      return false;
  }
}

std::size_t Value::hash() const {
  switch (kind()) {
    case Kind::boolean:
    case Kind::integer:
    case Kind::unsignedInteger:
    case Kind::real:
    case Kind::real32:
      return Number(*this).hash();
    case Kind::date:
      return std::hash<double>{}(date()->secondsSince1970);
    case Kind::string:
    case Kind::url:
      return std::hash<std::string_view>{}(text());
    case Kind::array:
      return array()->hash();
    case Kind::dictionary:
      return dictionary()->hash();
    case Kind::object:
      return object()->hash();
    default:
      return static_cast<std::size_t>(word(1));
  }
}

namespace {
struct KindNames {
  std::string_view displayName;
  std::string_view className;
};
constexpr KindNames kKindNames[] = {
    {"nil", ""},
    {"null", "NSNull"},
    {"a boolean", "NSNumber"},
    {"an integer", "NSNumber"},
    {"an integer", "NSNumber"},
    {"a fraction", "NSNumber"},
    {"a fraction", "NSNumber"},
    {"a date", "NSDate"},
    {"a string", "NSString"},
    {"a URL", "NSURL"},
    {"an array", "NSArray"},
    {"a dictionary", "NSDictionary"},
    {"an object", ""},
    {"a class", ""},
};
}  // namespace

std::string_view Value::kindName() const noexcept {
  return kKindNames[static_cast<std::size_t>(kind())].displayName;
}

std::string_view Value::className() const noexcept {
  if (const Object* object = this->object()) return object->isa().name;
  if (const ClassObject* cls = classObject()) return cls->name;
  return kKindNames[static_cast<std::size_t>(kind())].className;
}

// ---- Strings --------------------------------------------------------------

StringNode::StringNode(std::string_view text, Arena* arena, std::uint32_t baseSize) noexcept
    : Node(arena), baseSize_(baseSize), size_(text.size()) {
  if (!text.empty()) std::memcpy(static_cast<void*>(this + 1), text.data(), text.size());
}

StringNode* StringNode::create(std::string_view text, Arena* arena, std::uint32_t baseSize) {
  const std::size_t bytes = sizeof(StringNode) + text.size();
  void* memory = arena != nullptr ? arena->allocate(bytes) : ::operator new(bytes);
  return new (memory) StringNode(text, arena, baseSize);
}

void StringNode::destroy() const noexcept { ::operator delete(const_cast<StringNode*>(this)); }

// ---- Objects --------------------------------------------------------------

bool Object::isEqual(const Value& other) const { return other.object() == this; }

std::size_t Object::hash() const { return std::hash<const Object*>{}(this); }

std::string Object::description() const { return std::string("<").append(isa().name).append(">"); }

Value Object::valueForKey(std::string_view key) const {
  throw Exception::undefinedKey(isa().name, key, /*writing=*/false);
}

void Object::setValueForKey(const Value& /*value*/, std::string_view key) {
  throw Exception::undefinedKey(isa().name, key, /*writing=*/true);
}

}  // namespace orvanta
