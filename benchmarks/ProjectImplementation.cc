#include <stdexcept>

#include "Implementation.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Model/Commerce/OrvantaLineItem.h"
#include "orvanta/Model/Commerce/OrvantaProductViewEvent.h"
#include "orvanta/Model/Commerce/OrvantaPurchaseEvent.h"
#include "orvanta/Model/Events/OrvantaScreenViewEvent.h"
#include "orvanta/Model/Push/OrvantaPushObject.h"
#include "orvanta/Model/Requests/OrvantaEventRequest.h"
#include "orvanta/Model/Responses/OrvantaInboxResponse.h"

namespace orvanta::benchmarks {

namespace {

// ---- Reading --------------------------------------------------------------

template <class M>
Ref<M> read(std::string_view text) {
  const Value parsed = parseJSON(text);
  const Dictionary* dictionary = parsed.dictionary();
  return dictionary != nullptr ? make<M>(*dictionary) : nullptr;
}

template <class T>
struct Unwrapped {
  using Type = T;
};
template <class T>
struct Unwrapped<std::optional<T>> : Unwrapped<T> {};
template <class T>
struct Unwrapped<std::vector<T>> : Unwrapped<T> {};

/// Converts a model to a dictionary of the properties that the peers' struct has.
template <class T>
Value snapshotOf(const Value& value) {
  if constexpr (requires { Fields<T>::kAll; }) {
    if (const auto* model = value.as<OrvantaBaseModel>()) {
      Dictionary snapshot;
      eachField<T>([&]<class Owner, class Member>(const Field<Owner, Member>& field) {
        snapshot.set(field.property, snapshotOf<typename Unwrapped<Member>::Type>(
                                         model->valueForKey(field.property)));
      });
      return snapshot;
    }
    if (const Array* array = value.array()) {
      Array all;
      for (const Value& element : *array) all.append(snapshotOf<T>(element));
      return all;
    }
  }
  if (const orvanta::Url* url = value.url()) return url->stringValue();
  if (const auto date = value.date()) return date->secondsSince1970;
  return value;
}

// ---- Writing --------------------------------------------------------------

Value valueOf(const std::string& text) { return text; }
Value valueOf(const Date& date) { return orvanta::Date{date.secondsSince1970}; }
template <class T>
requires std::is_arithmetic_v<T> Value valueOf(T number) { return number; }
Value valueOf(const std::vector<std::pair<std::string, std::string>>& pairs) {
  Dictionary dictionary;
  for (const auto& [key, text] : pairs) dictionary.set(key, text);
  return dictionary;
}
Value valueOf(const std::vector<std::string>& texts) {
  Array array;
  for (const std::string& text : texts) array.append(text);
  return array;
}
Value valueOf(const Identifiers& identifiers);
Value valueOf(const Product& product);
Value valueOf(const std::vector<LineItem>& items);
template <class T>
Value valueOf(const std::optional<T>& optional) {
  return optional ? valueOf(*optional) : Value();
}

/// Creates a model with the struct's values.
template <class M, class T>
Ref<M> modelOf(const T& source) {
  auto model = make<M>();
  eachField<T>([&](const auto& field) {
    model->setValueForKey(valueOf(source.*field.member), field.property);
  });
  return model;
}
Value valueOf(const Identifiers& identifiers) { return modelOf<OrvantaIdentifiers>(identifiers); }
Value valueOf(const Product& product) { return modelOf<OrvantaProduct>(product); }
Value valueOf(const std::vector<LineItem>& items) {
  Array array;
  for (const LineItem& item : items) array.append(modelOf<OrvantaLineItem>(item));
  return array;
}

Value eventOf(const Purchase& event) { return modelOf<OrvantaPurchaseEvent>(event); }
Value eventOf(const ProductView& event) { return modelOf<OrvantaProductViewEvent>(event); }
Value eventOf(const ScreenView& event) { return modelOf<OrvantaScreenViewEvent>(event); }

Ref<OrvantaEventRequest> requestOf(const Batch& batch) {
  auto request = make<OrvantaEventRequest>();
  request->setValueForKey(valueOf(batch.identifiers), "identifiers");
  for (const auto& event : batch.events) {
    request->editEvents().append(std::visit([](const auto& one) { return eventOf(one); }, event));
  }
  return request;
}

// ---- Operations -----------------------------------------------------------

template <class M, class T>
Operation reading(std::string_view workload, const std::string& text) {
  return {workload, [&text] { return static_cast<bool>(read<M>(text)); },
          [&text] { return snapshotOf<T>(read<M>(text)); }};
}

std::vector<Operation> operations(const Workloads& workloads) {
  const std::string& text = workloads.push;
  const Value payload = parseJSON(text);
  const Ref<OrvantaPushObject> push = read<OrvantaPushObject>(text);
  if (!push) throw std::runtime_error("the payload makes no push object");
  const Ref<OrvantaEventRequest> request = requestOf(workloads.batch);
  const auto write = [request](std::string& out) {
    out.clear();
    return writeJSON(request->requestSpec()->HTTPBody, out);
  };

  std::vector<Operation> all{
      reading<OrvantaPushObject, Push<Value>>("push", text),
      reading<OrvantaInboxResponse, Inbox<Value>>("inbox", workloads.inbox),
      {"events", [write, out = std::string()]() mutable { return write(out); },
       [write] {
         std::string out;
         return write(out) ? parseJSON(out) : Value();
       }},
      {"text to dictionary", [&text] { return parseJSON(text).dictionary() != nullptr; }, {}},
      {"dictionary to push",
       [payload] { return static_cast<bool>(make<OrvantaPushObject>(*payload.dictionary())); },
       {}},
      {"events to dictionary", [request] { return !request->requestSpec()->HTTPBody.empty(); }, {}},
      {"push to dictionary", [push] { return !push->dictionaryValue().empty(); }, {}},
      {"push to text",
       [push] {
         std::string out;
         return writeJSON(push->dictionaryValue(), out);
       },
       {}},
  };
  for (const int messages : {10, 500}) {
    all.push_back({messages == 10 ? "inbox of 10" : "inbox of 500",
                   [inbox = inboxOf(text, messages)] {
                     return static_cast<bool>(read<OrvantaInboxResponse>(inbox));
                   },
                   {}});
  }
  for (const auto& [name, hostile] : workloads.hostile) {
    all.push_back(
        {name,
         [&hostile = hostile] { return static_cast<bool>(read<OrvantaPushObject>(hostile)); },
         {}});
  }
  return all;
}

const Registration kProject{{"orvanta", operations}};

}  // namespace

}  // namespace orvanta::benchmarks
