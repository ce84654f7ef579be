#pragma once

#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "orvanta/Foundation/Dictionary.h"

// How a dictionary that a person wrote is read: each of its keys by a reader that knows the key.

namespace orvanta {

/// What is wrong with the dictionary, naming the key and its value.
class InputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

namespace reading {

/// Readers of one dictionary's keys; every key that stands in it must have one.
using Readers = std::map<std::string_view, std::function<void(const Value&)>>;

/// Hands each value to its key's reader. Throws InputError for an unknown key and for a value that
/// a reader refuses; the prefix tells where the dictionary stands ("media.").
void readAll(const Dictionary& dictionary, const std::string& prefix, const Readers& readers);

// For readers: the value as what the key needs; otherwise they refuse.

/// Refuses the value; the text tells what is needed instead.
[[noreturn]] void refuse(const std::string& needed);

std::string text(const Value& value);
std::optional<std::string> textOrNull(const Value& value);
std::vector<std::string> texts(const Value& value);
bool flag(const Value& value);
const Dictionary& dictionary(const Value& value);

/// A number that is no boolean and from lowest to highest; `what` stands in the refusal, such as
/// "a number of seconds from 0 to 1e9".
double number(const Value& value, double lowest, double highest, const std::string& what);
std::int64_t wholeNumber(const Value& value, std::int64_t lowest, std::int64_t highest);

}  // namespace reading

}  // namespace orvanta
