#include "orvanta/Foundation/KeyPath.h"

#include <algorithm>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Foundation/Exception.h"

namespace orvanta {

std::vector<Value> splitKeyPath(std::string_view path) {
  std::vector<Value> names;
  names.reserve(1 + static_cast<std::size_t>(std::count(path.begin(), path.end(), '.')));
  for (;;) {
    const auto dot = path.find('.');
    names.emplace_back(path.substr(0, dot));
    if (dot == std::string_view::npos) return names;
    path.remove_prefix(dot + 1);
  }
}

std::string joinedKeyPath(std::span<const Value> path) {
  std::string joined;
  for (const Value& name : path) {
    if (&name != path.data()) joined += '.';
    joined += *name.string();
  }
  return joined;
}

Value valueForKeyPath(const Value& receiver, std::span<const Value> path) {
  if (path.empty() || receiver.isNil()) return receiver;
  if (const Dictionary* dictionary = receiver.dictionary()) {
    return valueForKeyPath(*dictionary, path);
  }
  if (const Array* array = receiver.array()) {
    Array results;
    results.reserve(array->size());
    for (const Value& element : *array) {
      const Value result = valueForKeyPath(element, path);
      results.append(result.isNil() ? Value::null() : result);
    }
    return results;
  }
  const std::string_view key = *path.front().string();
  if (const Object* object = receiver.object()) {
    return valueForKeyPath(object->valueForKey(key), path.subspan(1));
  }
  throw Exception::undefinedKey(receiver.className(), key, /*writing=*/false);
}

Value valueForKeyPath(const Dictionary& receiver, std::span<const Value> path) {
  if (path.empty()) return receiver;
  // Nested dictionaries are walked by reference; a copy would count references at every step.
  const Value* value = &receiver.valueForKey(path.front());
  for (path = path.subspan(1); !path.empty() && value->dictionary() != nullptr;
       path = path.subspan(1)) {
    value = &value->dictionary()->valueForKey(path.front());
  }
  return path.empty() ? *value : valueForKeyPath(*value, path);
}

Value valueForKeyPath(const Value& receiver, std::string_view path) {
  return valueForKeyPath(receiver, splitKeyPath(path));
}

Value valueForKeyPath(const Dictionary& receiver, std::string_view path) {
  return valueForKeyPath(receiver, splitKeyPath(path));
}

}  // namespace orvanta
