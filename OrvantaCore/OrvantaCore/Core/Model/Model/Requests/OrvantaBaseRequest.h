#pragma once

#include <optional>

#include "orvanta/Model/Identity/OrvantaIdentifiers.h"
#include "orvanta/Model/Mapping/Initialiser.h"
#include "orvanta/Model/Mapping/OrvantaPersistenceModel.h"
#include "orvanta/Model/Requests/OrvantaRequestPathType.h"
#include "orvanta/Model/Requests/OrvantaRequestSpec.h"
#include "orvanta/Model/Responses/OrvantaBaseResponseModel.h"

namespace orvanta {

/// Base of every request of the back end. A request may be stored as its dictionary and restored;
/// whenever it is sent it is turned into a spec.
class OrvantaBaseRequest : public OrvantaBaseModel, public OrvantaPersistenceModel {
  ORVANTA_MODEL(OrvantaBaseRequest, OrvantaBaseModel)

  ORVANTA_PROTOCOL_PROPERTY(kUnmapped, strong, Number, storageId, setStorageId)
  /// The storage ids of the records that were folded into this request; empty at first.
  ORVANTA_PROTOCOL_PROPERTY(kUnmapped, strong, MutableArray, idsContained, setIdsContained)
  /// OrvantaHTTPMethodType and OrvantaRequestPathType.
  ORVANTA_PROPERTY(kUnmapped, assign, std::uint64_t, HTTPMethod, setHTTPMethod)
  ORVANTA_PROPERTY(kUnmapped, assign, std::uint64_t, path, setPath)
  ORVANTA_PROPERTY(kUnmapped, assign, std::int64_t, queuePriority, setQueuePriority)
  /// The model of the reply's body.
  ORVANTA_PROPERTY(kUnmapped, strong, ClassReference, responseClass, setResponseClass)
  ORVANTA_PROPERTY("ids", strong, OrvantaIdentifiers, identifiers, setIdentifiers,
                   OrvantaIdentifiers)

  /// The update, and then `setUp`, once per object.
  bool initWithDictionary(const Dictionary* dictionary) override;
  /// What the class says of every request of it. An override calls the superclass's first.
  virtual void setUp();
  /// For the order in which stored requests are sent; none where a class does not rank its
  /// requests.
  virtual std::optional<std::int64_t> priority() const { return std::nullopt; }
  /// This request as one call: POST unless told otherwise, 20 seconds, its dictionary as the body.
  virtual Ref<OrvantaRequestSpec> requestSpec() const;
  /// The ids contained, for adding to them.
  Array& editIdsContained() { return idsContained_.editArray(); }

  /// The spec, storage id and ids contained.
  std::string description() const override;
};

/// Opens the body of a class of requests: its endpoint and the model of its reply.
#define ORVANTA_UNRANKED_REQUEST(Self_, path_, Response_) \
  ORVANTA_MODEL(Self_, OrvantaBaseRequest)                \
  void setUp() override {                                 \
    Super::setUp();                                       \
    setPath(path_);                                       \
    setResponseClass(Response_::classObject());           \
  }
/// The same for one whose requests have the priority 1.
#define ORVANTA_REQUEST(Self_, path_, Response_)    \
  ORVANTA_UNRANKED_REQUEST(Self_, path_, Response_) \
  std::optional<std::int64_t> priority() const override { return 1; }

/// A filter whose keys stand over the request's own in its dictionary, always without class info.
/// A request that is read makes its filter of the same dictionary first, and refuses with it.
#define ORVANTA_FILTER(Filter_)                                         \
  ORVANTA_PROPERTY(kUnmapped, strong, Filter_, filter, setFilter)       \
  ORVANTA_INITIALISER(initWithFilter, init, filter)                     \
  bool updateWithDictionary(const Dictionary* dictionary) override {    \
    return updateFlattened(filter_, "filter", dictionary) &&            \
           Super::updateWithDictionary(dictionary);                     \
  }                                                                     \
  Dictionary dictionaryValueWithPolicy(bool classInfo) const override { \
    Dictionary result = Super::dictionaryValueWithPolicy(classInfo);    \
    if (const auto* held = filter_.get())                               \
      result.addEntries(held->dictionaryValueWithPolicy(false));        \
    return result;                                                      \
  }

}  // namespace orvanta
