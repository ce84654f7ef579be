#pragma once

#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "orvanta/Foundation/Dictionary.h"

namespace orvanta {

/// An error in a dictionary that a person wrote; the message names the key and its value.
class ConfigError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

namespace config {

/// What to do with the value of each key that a dictionary may have.
using Readers = std::map<std::string_view, std::function<void(const Value&)>>;

/// Passes each value to its key's reader. Throws ConfigError for an unknown key and for a value
/// that a reader rejects. `prefix` is the dictionary's own key path, such as "media.".
void read(const Dictionary& dictionary, const std::string& prefix, const Readers& readers);

/// Rejects the value that is being read; `expectation` is a phrase such as "a string".
[[noreturn]] void fail(const std::string& expectation);

// Convert a value for a reader; reject one of another kind.
std::string string(const Value& value);
std::optional<std::string> stringOrNull(const Value& value);
std::vector<std::string> strings(const Value& value);
bool flag(const Value& value);
const Dictionary& dictionary(const Value& value);

/// Rejects booleans and what is not from lowest to highest; `expectation` is a phrase such as "a
/// number of seconds from 0 to 1e9".
double number(const Value& value, double lowest, double highest, const std::string& expectation);
std::int64_t wholeNumber(const Value& value, std::int64_t lowest, std::int64_t highest);

}  // namespace config

}  // namespace orvanta
