#pragma once

#include <optional>

#include "orvanta/Model/Identity/OrvantaIdentifiers.h"
#include "orvanta/Model/Mapping/Initializer.h"
#include "orvanta/Model/Mapping/OrvantaPersistenceModel.h"
#include "orvanta/Model/Requests/OrvantaRequestPathType.h"
#include "orvanta/Model/Requests/OrvantaRequestSpec.h"
#include "orvanta/Model/Responses/OrvantaBaseResponseModel.h"

namespace orvanta {

/// Base of the requests to the back end. The sending layer stores a request as its dictionary,
/// restores it, and sends it as an OrvantaRequestSpec.
class OrvantaBaseRequest : public OrvantaBaseModel, public OrvantaPersistenceModel {
  ORVANTA_MODEL(OrvantaBaseRequest, OrvantaBaseModel)

  ORVANTA_PROTOCOL_PROPERTY(kUnmapped, strong, Number, storageId, setStorageId)
  /// The storage ids of the requests that were merged into this one; initially empty.
  ORVANTA_PROTOCOL_PROPERTY(kUnmapped, strong, MutableArray, idsContained, setIdsContained)
  /// OrvantaHTTPMethodType; `path` is an OrvantaRequestPathType.
  ORVANTA_PROPERTY(kUnmapped, assign, std::uint64_t, HTTPMethod, setHTTPMethod)
  ORVANTA_PROPERTY(kUnmapped, assign, std::uint64_t, path, setPath)
  ORVANTA_PROPERTY(kUnmapped, assign, std::int64_t, queuePriority, setQueuePriority)
  /// The class of the reply's model.
  ORVANTA_PROPERTY(kUnmapped, strong, ClassReference, responseClass, setResponseClass)
  ORVANTA_PROPERTY("ids", strong, OrvantaIdentifiers, identifiers, setIdentifiers,
                   OrvantaIdentifiers)

  /// Updates from the dictionary, then calls `setUp`.
  bool initWithDictionary(const Dictionary* dictionary) override;
  /// Sets what all requests of the class share: endpoint, method, class of the reply. Called once
  /// per object. An override calls the superclass's first.
  virtual void setUp();
  /// Priority among the stored requests that wait to be sent; nullopt if the class has none.
  virtual std::optional<std::int64_t> priority() const { return std::nullopt; }
  /// Returns this request as an HTTP call: its method (default POST), a timeout of 20 seconds, its
  /// dictionary as the body.
  virtual Ref<OrvantaRequestSpec> requestSpec() const;
  /// Mutable access to `idsContained`.
  Array& editIdsContained() { return idsContained_.editArray(); }

  /// Describes the spec, the storage id and the contained ids. Calls requestSpec.
  std::string description() const override;
};

/// Starts the body of a request class: its endpoint and the model of its reply.
#define ORVANTA_UNRANKED_REQUEST(Self_, path_, Response_) \
  ORVANTA_MODEL(Self_, OrvantaBaseRequest)                \
  void setUp() override {                                 \
    Super::setUp();                                       \
    setPath(path_);                                       \
    setResponseClass(Response_::classObject());           \
  }
/// The same with priority 1.
#define ORVANTA_REQUEST(Self_, path_, Response_)    \
  ORVANTA_UNRANKED_REQUEST(Self_, path_, Response_) \
  std::optional<std::int64_t> priority() const override { return 1; }

/// Declares a filter whose keys are mixed with the request's own and win over them. The filter is
/// written without class info. Reading a request reads its filter from the same dictionary first,
/// and fails if that fails.
#define ORVANTA_FILTER(Filter_)                                         \
  ORVANTA_PROPERTY(kUnmapped, strong, Filter_, filter, setFilter)       \
  ORVANTA_INITIALIZER(initWithFilter, init, filter)                     \
  bool updateWithDictionary(const Dictionary* dictionary) override {    \
    return updateFlattened(filter_, "filter", dictionary) &&            \
           Super::updateWithDictionary(dictionary);                     \
  }                                                                     \
  Dictionary dictionaryValueWithPolicy(bool classInfo) const override { \
    Dictionary result = Super::dictionaryValueWithPolicy(classInfo);    \
    if (const auto* filter = filter_.get())                             \
      result.addEntries(filter->dictionaryValueWithPolicy(false));      \
    return result;                                                      \
  }

}  // namespace orvanta
