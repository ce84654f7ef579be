// nlohmann's library: reads into and writes from a document; structs are filled from it directly.
#include <nlohmann/json.hpp>

#include "peers/DocumentPeer.h"

namespace orvanta::benchmarks {

namespace {
using Tree = nlohmann::json;
}

template <>
Value valueOf(const Tree& tree) {
  return parseJSON(tree.dump());
}

namespace {

// ---- Reading --------------------------------------------------------------

template <class T>
requires std::is_arithmetic_v<T>
void read(T& to, const Tree& from) { from.get_to(to); }
void read(std::string& to, const Tree& from) { from.get_to(to); }
void read(Tree& to, const Tree& from) { to = from; }
void read(Date& to, const Tree& from) { to = Date::ofMilliseconds(from.get<std::int64_t>()); }
template <class T>
void read(std::vector<T>& to, const Tree& from);
template <class T>
void read(std::optional<T>& to, const Tree& from);
void read(std::optional<Url>& to, const Tree& from) {
  to = Url::parse(from.get_ref<const std::string&>());
}

template <class T, class... F>
void readFields(T& to, const Tree& from, const std::tuple<F...>& fields) {
  const auto readOne = [&](const auto& field) {
    if (field.key.empty()) return;
    const auto entry = from.find(field.key);
    if (entry != from.end()) read(to.*field.member, *entry);
  };
  std::apply([&](const auto&... field) { (readOne(field), ...); }, fields);
}
template <class T>
requires requires { Fields<T>::kAll; }
void read(T& to, const Tree& from) { readFields(to, from, Fields<T>::kAll); }
void read(Alert& to, const Tree& from) {
  if (from.is_string()) return read(to.body, from);
  readFields(to, from, Fields<Alert>::kAll);
}
void read(Push<Tree>& to, const Tree& from) {
  to.alert.emplace();
  to.action.emplace();
  if (const auto system = from.find("aps"); system != from.end()) {
    readFields(to, *system, Fields<Push<Tree>>::kSystem);
  }
  if (const auto own = from.find("_ov"); own != from.end()) {
    readFields(to, *own, Fields<Push<Tree>>::kOwn);
  }
  if (!to.defaultActionDictionary) return;
  const auto uri = to.defaultActionDictionary->find("uri");
  if (uri != to.defaultActionDictionary->end()) {
    to.action = ClickAction::of(uri->get_ref<const std::string&>());
  }
}
template <class T>
void read(std::vector<T>& to, const Tree& from) {
  to.reserve(from.size());
  for (const Tree& element : from) read(to.emplace_back(), element);
}
template <class T>
void read(std::optional<T>& to, const Tree& from) {
  read(to.emplace(), from);
}

// ---- Writing --------------------------------------------------------------

Tree treeOf(const std::string& text) { return text; }
Tree treeOf(const std::vector<std::string>& texts) { return texts; }
Tree treeOf(const Date& date) { return date.milliseconds(); }
template <class T>
requires std::is_arithmetic_v<T> Tree treeOf(T number) { return number; }
Tree treeOf(const std::vector<std::pair<std::string, std::string>>& pairs) {
  Tree tree = Tree::object();
  for (const auto& [key, text] : pairs) tree[key] = text;
  return tree;
}
Tree treeOf(const std::vector<LineItem>& items);
template <class T>
requires requires { Fields<T>::kAll; }
Tree treeOf(const T& object);

template <class T>
void putFields(const T& object, Tree& tree) {
  eachField<T>([&](const auto& field) {
    const auto& value = object.*field.member;
    const std::string key(field.key);
    if constexpr (requires { *value; }) {
      if (value) tree[key] = treeOf(*value);
    } else if constexpr (std::same_as<T, ProductView> &&
                         requires { static_cast<const Product&>(value); }) {
      putFields(value, tree);
    } else {
      tree[key] = treeOf(value);
    }
  });
}
template <class T>
requires requires { Fields<T>::kAll; }
Tree treeOf(const T& object) {
  Tree tree = Tree::object();
  putFields(object, tree);
  if constexpr (requires { T::kCode; }) tree["code"] = T::kCode;
  return tree;
}
Tree treeOf(const std::vector<LineItem>& items) {
  Tree tree = Tree::array();
  for (const LineItem& item : items) tree.push_back(treeOf(item));
  return tree;
}

struct NlohmannPeer {
  using Tree = nlohmann::json;
  using Text = std::string;

  template <class T>
  struct Reading {
    explicit Reading(const std::string& text) { read(object, Tree::parse(text)); }
    T object;
  };
  static std::string_view write(Batch& batch, Text& out) {
    strip(batch);
    Tree body;
    body["ids"] = treeOf(batch.identifiers);
    Tree& events = body["events"] = Tree::array();
    for (const auto& event : batch.events) {
      events.push_back(std::visit([](const auto& one) { return treeOf(one); }, event));
    }
    return out = body.dump();
  }
};

const Registration kPeer{{"nlohmann", documentOperations<NlohmannPeer>}};

}  // namespace

}  // namespace orvanta::benchmarks
