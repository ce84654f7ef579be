#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "fuzzer.h"
#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Foundation/KeyPath.h"
#include "orvanta/Model/Mapping/Class.h"

// libFuzzer's mutator for inputs of a line and a JSON text. It mostly changes the parsed tree, so
// that most inputs pass the JSON reader, and sometimes the bytes. Keys are taken from the class
// tables.

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace orvanta::fuzzing {

namespace {

std::vector<Value> wireKeys() {
  std::vector<Value> keys{"klazz", "alert"};
  for (const Class* cls : modelClasses()) {
    for (const KeyEntry& entry : cls->keyPathPropertySelectorMapping) {
      for (const Value& part : splitKeyPath(entry.keyPath)) keys.push_back(part);
    }
  }
  return keys;
}

class TreeMutator {
 public:
  explicit TreeMutator(unsigned seed) : random_(seed) {}

  std::size_t below(std::size_t limit) { return random_() % limit; }
  std::string_view className() { return modelClasses()[below(modelClasses().size())]->name; }

  Value mutated(const Value& value) {
    const Array* array = value.array();
    const Dictionary* dictionary = value.dictionary();
    const std::size_t size = array != nullptr        ? array->size()
                             : dictionary != nullptr ? dictionary->size()
                                                     : 0;
    Value result = value;
    if (size != 0 && below(4) != 0) {
      const std::size_t at = below(size);
      if (array != nullptr) {
        result.editArray().set(at, mutated((*array)[at]));
      } else {
        const Dictionary::Entry& entry = dictionary->begin()[at];
        result.editDictionary().set(entry.keyValue, mutated(entry.value));
      }
    } else if (dictionary != nullptr && below(8) != 0) {
      if (size != 0 && below(4) == 0) {
        result.editDictionary().remove(dictionary->begin()[below(size)].key());
      } else {
        result.editDictionary().set(key(), size != 0 && below(4) == 0 ? value : fresh());
      }
    } else if (array != nullptr && below(8) != 0) {
      if (size != 0 && below(4) == 0) {
        result.editArray().removeFirst(1 + below(size));
      } else {
        result.editArray().append(size != 0 && below(2) == 0 ? (*array)[below(size)] : fresh());
      }
    } else {
      result = below(8) == 0 ? Value(Array{value}) : fresh();
    }
    return result;
  }

 private:
  Value key() {
    static const std::vector<Value> kKeys = wireKeys();
    return kKeys[below(kKeys.size())];
  }
  Value fresh() {
    static const Value kValues = parseJSON(
        R"([null, true, false, 0, 1, -1, 1.5, 9223372036854775807, 9223372036854775808, -1e300, 1e19,
            1500000000123, "", "Y", "text", "star", "https://a.b/c?d#e", "9223372036854775807",
            "1e999", "%@ %1$@", [], {}, [{}], {"id": "a"}])");
    const Array& values = *kValues.array();
    const std::size_t at = below(values.size() + 1);
    return at < values.size() ? values[at]
                              : Dictionary{{"klazz", className()}, {*key().string(), fresh()}};
  }

  std::minstd_rand random_;
};

}  // namespace

static std::size_t mutate(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                          unsigned seed) {
  TreeMutator mutator(seed);
  const std::string input(reinterpret_cast<const char*>(data), size);
  const std::size_t line = input.find('\n');
  if (line == std::string::npos || mutator.below(8) == 0) {
    return LLVMFuzzerMutate(data, size, maxSize);
  }
  std::string head = input.substr(0, line);
  std::string text = input.substr(line + 1);
  std::string tail;
  if (const auto end = text.find('\x1E'); end != std::string::npos) {
    tail = text.substr(end);
    text.resize(end);
  }
  if (mutator.below(8) == 0 && modelClassNamed(head) != nullptr) {
    head = mutator.className();
  } else if (mutator.below(4) == 0 && modelClassNamed(head) == nullptr) {
    head.resize(line + 8);
    head.resize(LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(head.data()), line, head.size()));
    std::replace(head.begin(), head.end(), '\n', ' ');
  } else if (const Value tree = parseJSON(text); !tree.isNil()) {
    text.clear();
    writeJSON(mutator.mutated(tree), text);
  } else {
    return LLVMFuzzerMutate(data, size, maxSize);
  }
  const std::string result = head + '\n' + text + tail;
  if (result.size() > maxSize) return LLVMFuzzerMutate(data, size, maxSize);
  std::copy(result.begin(), result.end(), data);
  return result.size();
}

}  // namespace orvanta::fuzzing

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned int seed) {
  return orvanta::fuzzing::mutate(data, size, maxSize, seed);
}
