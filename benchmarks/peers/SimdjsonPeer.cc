// The reference: simdjson's on-demand reader filling hand-written structs, and a writer of our own
// that goes straight from the structs to JSON.
#include <simdjson.h>

#include <bit>
#include <charconv>
#include <cstring>

#include "Implementation.h"
#include "Snapshot.h"
#include "orvanta/Foundation/JSON.h"

namespace orvanta::benchmarks {

namespace {

namespace od = simdjson::ondemand;

struct Entry;
struct Tree {
  using List = std::vector<Tree>;
  using Map = std::vector<Entry>;
  std::variant<std::monostate, bool, std::int64_t, double, std::string, List, Map> data;
};
struct Entry {
  std::string key;
  Tree value;
};

}  // namespace

template <>
Value valueOf(const Tree& tree) {
  return std::visit(
      []<class T>(const T& data) -> Value {
        if constexpr (std::same_as<T, std::monostate>) {
          return Value::null();
        } else if constexpr (std::same_as<T, Tree::List>) {
          Array array;
          for (const Tree& element : data) array.append(valueOf(element));
          return array;
        } else if constexpr (std::same_as<T, Tree::Map>) {
          Dictionary dictionary;
          for (const auto& [key, element] : data) dictionary.set(key, valueOf(element));
          return dictionary;
        } else {
          return data;
        }
      },
      tree.data);
}

namespace {

// ---- Reading --------------------------------------------------------------

/// Packs a key of up to eight characters into one integer.
constexpr std::uint64_t keyWord(std::string_view key) {
  std::uint64_t word = 0;
  for (std::size_t i = 0; i < key.size(); ++i) {
    word |= std::uint64_t{static_cast<unsigned char>(key[i])} << (8 * i);
  }
  return word;
}
std::uint64_t keyWord(od::raw_json_string key) {
  constexpr std::uint64_t kOnes = 0x0101010101010101U;
  std::uint64_t word;
  std::memcpy(&word, key.raw(), sizeof word);
  const std::uint64_t other = word ^ (kOnes * '"');
  const std::uint64_t quote = (other - kOnes) & ~other & (kOnes * 0x80);
  return quote == 0 ? word : word & (((quote & (0 - quote)) >> 7U) - 1);
}

template <class Visit>
void eachEntry(od::object object, Visit&& visit) {
  for (auto entry : object) {
    od::field field = entry.value_unsafe();
    visit(keyWord(field.key()), field.value());
  }
}

Tree treeOf(od::value value) {
  switch (value.type().value_unsafe()) {
    case od::json_type::object: {
      Tree::Map map;
      for (auto entry : value.get_object().value_unsafe()) {
        std::string key(entry.unescaped_key().value_unsafe());
        map.push_back({std::move(key), treeOf(entry.value().value_unsafe())});
      }
      return {std::move(map)};
    }
    case od::json_type::array: {
      Tree::List list;
      for (auto element : value.get_array().value_unsafe()) {
        list.push_back(treeOf(element.value_unsafe()));
      }
      return {std::move(list)};
    }
    case od::json_type::string:
      return {std::string(value.get_string().value_unsafe())};
    case od::json_type::boolean:
      return {value.get_bool().value_unsafe()};
    case od::json_type::number: {
      od::number number = value.get_number().value_unsafe();
      if (number.is_int64()) return {number.get_int64()};
      return {number.as_double()};
    }
    default:
      return {};
  }
}

void read(bool& to, od::value value) { to = value.get_bool().value_unsafe(); }
void read(std::uint64_t& to, od::value value) { to = value.get_uint64().value_unsafe(); }
void read(double& to, od::value value) { to = value.get_double().value_unsafe(); }
void read(std::optional<double>& to, od::value value) { to = value.get_double().value_unsafe(); }
void read(Text& to, od::value value) { to.emplace(value.get_string().value_unsafe()); }
void read(std::optional<Url>& to, od::value value) {
  to = Url::parse(value.get_string().value_unsafe());
}
void read(std::optional<Date>& to, od::value value) {
  to = Date::ofMilliseconds(value.get_int64().value_unsafe());
}
void read(std::optional<Tree>& to, od::value value) { to.emplace(treeOf(value)); }
template <class T>
void read(std::optional<T>& to, od::value value);
template <class T>
void read(std::optional<std::vector<T>>& to, od::value value);

template <class T, class... F>
void readField(T& to, std::uint64_t key, od::value value, const std::tuple<F...>& fields) {
  const auto readOne = [&](const auto& field) {
    if constexpr (requires { read(to.*field.member, value); }) {
      if (field.key.empty() || key != keyWord(field.key)) return false;
      read(to.*field.member, value);
      return true;
    }
    return false;
  };
  std::apply([&](const auto&... field) { (readOne(field) || ...); }, fields);
}

template <class T>
void readAll(T& to, od::object object) {
  eachEntry(object, [&](std::uint64_t key, od::value value) {
    readField(to, key, value, Fields<T>::kAll);
  });
}
void readAll(Push<Tree>& to, od::object object) {
  eachEntry(object, [&](std::uint64_t key, od::value branch) {
    const bool system = key == keyWord("aps");
    if (!system && key != keyWord("_ov")) return;
    eachEntry(branch.get_object().value_unsafe(), [&](std::uint64_t inner, od::value value) {
      if (system) {
        readField(to, inner, value, Fields<Push<Tree>>::kSystem);
      } else {
        readField(to, inner, value, Fields<Push<Tree>>::kOwn);
      }
    });
  });
  if (!to.alert) to.alert.emplace();
  to.action.emplace();
  if (!to.defaultActionDictionary) return;
  if (const auto* map = std::get_if<Tree::Map>(&to.defaultActionDictionary->data)) {
    for (const auto& [name, uri] : *map) {
      if (name == "uri") to.action = ClickAction::of(std::get<std::string>(uri.data));
    }
  }
}

template <class T>
void read(std::optional<T>& to, od::value value) {
  if constexpr (std::same_as<T, Alert>) {
    if (value.type().value_unsafe() == od::json_type::string) {
      return read(to.emplace().body, value);
    }
  }
  readAll(to.emplace(), value.get_object().value_unsafe());
}
template <class T>
void read(std::optional<std::vector<T>>& to, od::value value) {
  auto& all = to.emplace();
  for (auto element : value.get_array().value_unsafe()) {
    if constexpr (std::same_as<T, Tree>) {
      all.push_back(treeOf(element.value_unsafe()));
    } else {
      readAll(all.emplace_back(), element.get_object().value_unsafe());
    }
  }
}

template <class T>
T readText(const simdjson::padded_string& text) {
  static od::parser parser;
  auto document = parser.iterate(text);
  T to;
  readAll(to, document.get_object().value_unsafe());
  return to;
}

// ---- Writing --------------------------------------------------------------

/// An output buffer that keeps room for the next item.
class Writer {
 public:
  std::string_view text() const { return {text_.data(), used_}; }
  void clear() { used_ = 0, first_ = true; }

  void open(char bracket) { put(bracket), first_ = true; }
  void close(char bracket) { put(bracket), first_ = false; }
  void next() {
    if (!first_) put(',');
    first_ = false;
  }
  void key(std::string_view name) {
    room(name.size() + 8);
    char* at = text_.data() + used_;
    *at = ',';
    at += first_ ? 0 : 1;
    first_ = false;
    *at++ = '"';
    std::memcpy(at, name.data(), name.size());
    at += name.size();
    *at++ = '"';
    *at++ = ':';
    used_ = static_cast<std::size_t>(at - text_.data());
  }

  void value(std::string_view text) {
    room(6 * text.size() + 16);
    char* to = text_.data() + used_;
    *to++ = '"';
    const char* from = text.data();
    const char* const end = from + text.size();
    while (end - from >= 8 && isPlain(from)) {
      std::memcpy(to, from, 8);
      from += 8;
      to += 8;
    }
    for (; from != end; ++from) {
      const auto byte = static_cast<unsigned char>(*from);
      if (byte >= 0x20 && byte != '"' && byte != '\\') {
        *to++ = *from;
      } else if (byte >= 0x20) {
        *to++ = '\\';
        *to++ = *from;
      } else {
        to += std::snprintf(to, 8, "\\u%04x", byte);
      }
    }
    *to++ = '"';
    used_ = static_cast<std::size_t>(to - text_.data());
  }
  template <class T>
  requires std::is_integral_v<T>
  void value(T number) { digits(number); }
  void value(double number) {
    room(32);
    // Most amounts are unset or have at most three decimals.
    if (number == kNoAmount) return raw("9223372036854775808");
    if (number >= 0 && number < 1e12) {
      // NOLINTNEXTLINE(bugprone-incorrect-roundings): a wrong result is detected below
      const auto thousandths = static_cast<std::uint64_t>(number * 1000 + 0.5);
      if (static_cast<double>(thousandths) / 1000 == number) {
        digits(thousandths / 1000);
        const std::uint64_t rest = thousandths % 1000;
        if (rest == 0) return;
        char* to = text_.data() + used_;
        to[0] = '.';
        to[1] = static_cast<char>('0' + rest / 100);
        to[2] = static_cast<char>('0' + rest / 10 % 10);
        to[3] = static_cast<char>('0' + rest % 10);
        used_ += rest % 10 != 0 ? 4 : rest % 100 != 0 ? 3 : 2;
        return;
      }
    }
    digits(number);
  }
  void value(const Date& date) { value(date.milliseconds()); }
  void value(const std::vector<std::string>& texts) {
    open('[');
    for (const std::string& text : texts) next(), value(text);
    close(']');
  }
  void value(const std::vector<std::pair<std::string, std::string>>& pairs) {
    open('{');
    for (const auto& [name, text] : pairs) key(name), value(text);
    close('}');
  }
  void value(const std::vector<LineItem>& items) {
    open('[');
    for (const LineItem& item : items) next(), value(item);
    close(']');
  }
  template <class T>
  requires requires { Fields<T>::kAll; }
  void value(const T& object) {
    open('{');
    fields(object);
    if constexpr (requires { T::kCode; }) key("code"), value(T::kCode);
    close('}');
  }

 private:
  template <class T>
  void fields(const T& object) {
    eachField<T>([&](const auto& field) {
      const auto& property = object.*field.member;
      if constexpr (requires { *property; }) {
        if (property) key(field.key), value(*property);
      } else if constexpr (std::same_as<T, ProductView> &&
                           requires { static_cast<const Product&>(property); }) {
        fields(property);
      } else {
        key(field.key), value(property);
      }
    });
  }
  static bool isPlain(const char* eight) {
    constexpr std::uint64_t kOnes = 0x0101010101010101U;
    std::uint64_t word;
    std::memcpy(&word, eight, sizeof word);
    const std::uint64_t quote = word ^ (kOnes * '"');
    const std::uint64_t backslash = word ^ (kOnes * '\\');
    return (((word - kOnes * 0x20) | (quote - kOnes) | (backslash - kOnes)) & ~word &
            (kOnes * 0x80)) == 0;
  }
  template <class T>
  void digits(T number) {
    room(40);
    char* at = text_.data() + used_;
    used_ = static_cast<std::size_t>(std::to_chars(at, at + 32, number).ptr - text_.data());
  }
  void raw(std::string_view text) {
    std::memcpy(text_.data() + used_, text.data(), text.size());
    used_ += text.size();
  }
  void put(char c) {
    room(8);
    text_[used_++] = c;
  }
  void room(std::size_t bytes) {
    if (text_.size() - used_ < bytes) text_.resize(2 * (text_.size() + bytes));
  }

  std::vector<char> text_;
  std::size_t used_ = 0;
  bool first_ = true;
};

bool write(Batch& batch, Writer& writer) {
  strip(batch);
  writer.clear();
  writer.open('{');
  writer.key("ids"), writer.value(batch.identifiers);
  writer.key("events"), writer.open('[');
  for (const auto& event : batch.events) {
    writer.next();
    std::visit([&](const auto& one) { writer.value(one); }, event);
  }
  writer.close(']');
  writer.close('}');
  return !writer.text().empty();
}

// ---- Operations -----------------------------------------------------------

template <class T>
Operation reading(std::string_view workload, const std::string& text) {
  const auto padded = std::make_shared<simdjson::padded_string>(text);
  return {workload,
          [padded] {
            const T read = readText<T>(*padded);
            return (read.*std::get<0>(Fields<T>::kAll).member).has_value();
          },
          [padded] { return snapshotOf(readText<T>(*padded)); }};
}

std::vector<Operation> operations(const Workloads& workloads) {
  // The path that the instruction counter can run is timed too.
  if (const auto* path = simdjson::get_available_implementations()["haswell"];
      path != nullptr && path->supported_by_runtime_system()) {
    simdjson::get_active_implementation() = path;
  }
  const auto batch = std::make_shared<Batch>(workloads.batch);
  const auto writer = std::make_shared<Writer>();
  return {
      reading<Push<Tree>>("push", workloads.push),
      reading<Inbox<Tree>>("inbox", workloads.inbox),
      {"events", [batch, writer] { return write(*batch, *writer); },
       [batch, writer] { return write(*batch, *writer) ? parseJSON(writer->text()) : Value(); }}};
}

const Registration kPeer{{"simdjson", operations}};

}  // namespace

}  // namespace orvanta::benchmarks
