#include "Foundation/Url.h"

#include "Foundation/CharacterSet.h"

namespace orvanta {

namespace {
// The characters of RFC 3986 but "%" and "#", which have rules of their own.
constexpr CharacterSet kUrlCharacters = CharacterSet::alphanumerics().with("-._~:/?[]@!$&'()*+,;=");

constexpr CharacterSet kHexDigits = CharacterSet("0123456789ABCDEFabcdef");
}  // namespace

std::optional<Url> Url::parse(const Value& value) {
  if (!value.isString()) return std::nullopt;
  const std::string_view text = value.text();
  bool fragment = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (kUrlCharacters.contains(text[i])) continue;
    if (text[i] == '%') {
      if (text.size() - i < 3 || !kHexDigits.contains(text[i + 1]) ||
          !kHexDigits.contains(text[i + 2])) {
        return std::nullopt;
      }
      i += 2;
    } else if (text[i] == '#' && !fragment) {
      fragment = true;
    } else {
      return std::nullopt;
    }
  }
  if (!value.isShared()) return Url(StringNode::create(text, nullptr));
  value.node()->retain();
  return Url(static_cast<const StringNode*>(value.node()));
}

Value Url::stringValue() const {
  if (absoluteString().size() <= Value::kInlineCapacity) return absoluteString();
  node_->retain();
  return {Kind::string, node_};
}

Url::~Url() {
  if (node_ != nullptr && node_->release()) node_->destroy();
}

}  // namespace orvanta
