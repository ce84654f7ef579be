// RapidJSON: reads into and writes from a document; structs are filled from it directly. An
// object's free-form values are copied to a pool of its own, which outlives the document.
#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include "peers/DocumentPeer.h"

namespace orvanta::benchmarks {

namespace {

using Tree = rapidjson::Value;
using Pool = rapidjson::Document::AllocatorType;

std::string_view textOf(const Tree& tree) { return {tree.GetString(), tree.GetStringLength()}; }
std::string_view textOf(const rapidjson::StringBuffer& text) {
  return {text.GetString(), text.GetSize()};
}

}  // namespace

template <>
Value valueOf(const Tree& tree) {
  rapidjson::StringBuffer text;
  rapidjson::Writer<rapidjson::StringBuffer> writer(text);
  tree.Accept(writer);
  return parseJSON(textOf(text));
}

namespace {

// ---- Reading --------------------------------------------------------------

struct Reader {
  Pool& pool;

  void read(bool& to, const Tree& from) { to = from.GetBool(); }
  void read(std::uint64_t& to, const Tree& from) { to = from.GetUint64(); }
  void read(double& to, const Tree& from) { to = from.GetDouble(); }
  void read(std::string& to, const Tree& from) { to = textOf(from); }
  void read(Date& to, const Tree& from) { to = Date::ofMilliseconds(from.GetInt64()); }
  void read(Tree& to, const Tree& from) { to.CopyFrom(from, pool); }
  void read(std::optional<Url>& to, const Tree& from) { to = Url::parse(textOf(from)); }
  template <class T>
  void read(std::optional<T>& to, const Tree& from) {
    read(to.emplace(), from);
  }
  template <class T>
  void read(std::vector<T>& to, const Tree& from) {
    to.reserve(from.Size());
    for (const Tree& element : from.GetArray()) read(to.emplace_back(), element);
  }
  template <class T>
  requires requires { Fields<T>::kAll; }
  void read(T& to, const Tree& from) { readFields(to, from, Fields<T>::kAll); }
  void read(Alert& to, const Tree& from) {
    if (from.IsString()) return read(to.body, from);
    readFields(to, from, Fields<Alert>::kAll);
  }
  void read(Push<Tree>& to, const Tree& from) {
    to.alert.emplace();
    to.action.emplace();
    if (const auto system = from.FindMember("aps"); system != from.MemberEnd()) {
      readFields(to, system->value, Fields<Push<Tree>>::kSystem);
    }
    if (const auto own = from.FindMember("_ov"); own != from.MemberEnd()) {
      readFields(to, own->value, Fields<Push<Tree>>::kOwn);
    }
    if (!to.defaultActionDictionary) return;
    const auto uri = to.defaultActionDictionary->FindMember("uri");
    if (uri != to.defaultActionDictionary->MemberEnd()) {
      to.action = ClickAction::of(textOf(uri->value));
    }
  }

 private:
  template <class T, class... F>
  void readFields(T& to, const Tree& from, const std::tuple<F...>& fields) {
    const auto readOne = [&](const auto& field) {
      if (field.key.empty()) return;
      const Tree key(rapidjson::StringRef(field.key.data(), field.key.size()));
      const auto entry = from.FindMember(key);
      if (entry != from.MemberEnd()) read(to.*field.member, entry->value);
    };
    std::apply([&](const auto&... field) { (readOne(field), ...); }, fields);
  }
};

// ---- Writing --------------------------------------------------------------

/// Builds a document that refers to the strings of a batch without copying them.
struct Builder {
  Pool& pool;

  static auto reference(std::string_view text) {
    return rapidjson::StringRef(text.data(), text.size());
  }
  Tree tree(std::string_view text) { return Tree(reference(text)); }
  Tree tree(const Date& date) { return Tree(date.milliseconds()); }
  template <class T>
  requires std::is_arithmetic_v<T> Tree tree(T number) { return Tree(number); }
  template <class T>
  Tree tree(const std::vector<T>& all) {
    Tree array(rapidjson::kArrayType);
    array.Reserve(static_cast<rapidjson::SizeType>(all.size()), pool);
    for (const T& element : all) array.PushBack(tree(element), pool);
    return array;
  }
  Tree tree(const std::vector<std::pair<std::string, std::string>>& pairs) {
    Tree object(rapidjson::kObjectType);
    for (const auto& [key, text] : pairs) object.AddMember(reference(key), tree(text), pool);
    return object;
  }
  template <class... T>
  Tree tree(const std::variant<T...>& event) {
    return std::visit([&](const auto& one) { return tree(one); }, event);
  }
  template <class T>
  requires requires { Fields<T>::kAll; }
  Tree tree(const T& source) {
    Tree object(rapidjson::kObjectType);
    putFields(source, object);
    if constexpr (requires { T::kCode; }) object.AddMember("code", tree(T::kCode), pool);
    return object;
  }

 private:
  template <class T>
  void putFields(const T& source, Tree& object) {
    eachField<T>([&](const auto& field) {
      const auto& value = source.*field.member;
      if constexpr (requires { *value; }) {
        if (value) object.AddMember(reference(field.key), tree(*value), pool);
      } else if constexpr (std::same_as<T, ProductView> &&
                           requires { static_cast<const Product&>(value); }) {
        putFields(value, object);
      } else {
        object.AddMember(reference(field.key), tree(value), pool);
      }
    });
  }
};

struct RapidJSONPeer {
  using Tree = rapidjson::Value;
  using Text = rapidjson::StringBuffer;

  template <class T>
  struct Reading {
    explicit Reading(const std::string& text) : pool(text.size() < 65536 ? 4096 : 65536) {
      rapidjson::Document document;
      document.Parse(text.data(), text.size());
      Reader{pool}.read(object, document);
    }
    Pool pool;
    T object;
  };
  static std::string_view write(Batch& batch, Text& out) {
    strip(batch);
    rapidjson::Document body(rapidjson::kObjectType);
    Builder builder{body.GetAllocator()};
    body.AddMember("ids", builder.tree(batch.identifiers), builder.pool);
    body.AddMember("events", builder.tree(batch.events), builder.pool);
    out.Clear();
    rapidjson::Writer<Text> writer(out);
    body.Accept(writer);
    return textOf(out);
  }
};

const Registration kPeer{{"rapidjson", documentOperations<RapidJSONPeer>}};

}  // namespace

}  // namespace orvanta::benchmarks
