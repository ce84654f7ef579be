#include "orvanta/Foundation/Url.h"

#include <algorithm>

#include "orvanta/Foundation/CharacterSet.h"

namespace orvanta {

namespace {
// The characters of RFC 3986 except "%" and "#", which parse() checks separately.
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

namespace {
constexpr CharacterSet kPathCharacters = CharacterSet::alphanumerics().with("-._~/!$&'()*+,;=:@");
}

Url Url::fileURLWithPath(std::string_view path) {
  return Url(StringNode::create("file://" + percentEncoded(path, kPathCharacters), nullptr));
}

Url Url::fileURLWithPath(std::string_view name, const Url& folder) {
  const std::string_view base = folder.absoluteString();
  return Url(StringNode::create(std::string(base) + percentEncoded(name, kPathCharacters), nullptr,
                                static_cast<std::uint32_t>(base.size())));
}

std::string_view Url::scheme() const noexcept {
  const std::string_view text = absoluteString();
  const auto colon = text.find(':');
  constexpr CharacterSet kSchemeCharacters = CharacterSet::alphanumerics().with("+-.");
  if (colon == std::string_view::npos) return {};
  const std::string_view scheme = text.substr(0, colon);
  return std::all_of(scheme.begin(), scheme.end(),
                     [&](char c) { return kSchemeCharacters.contains(c); })
             ? scheme
             : std::string_view();
}

std::string Url::path() const {
  std::string_view text = absoluteString();
  if (const auto length = scheme().size(); length != 0) text.remove_prefix(length + 1);
  if (text.starts_with("//")) {
    const auto slash = text.find_first_of("/?#", 2);
    text = slash == std::string_view::npos ? std::string_view() : text.substr(slash);
  }
  return percentDecoded(text.substr(0, text.find_first_of("?#")));
}

std::string Url::lastPathComponent() const {
  std::string path = this->path();
  if (path.size() > 1 && path.ends_with('/')) path.pop_back();
  const auto slash = path.rfind('/');
  return slash == std::string::npos || path.size() == 1 ? path : path.substr(slash + 1);
}

std::string Url::description() const {
  const std::string_view text = absoluteString();
  const std::size_t base = node_->baseSize();
  if (base == 0) return std::string(text);
  return std::string(text.substr(base)).append(" -- ").append(text.substr(0, base));
}

Url::~Url() {
  if (node_ != nullptr && node_->release()) node_->destroy();
}

}  // namespace orvanta
