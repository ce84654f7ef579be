#pragma once

#include <memory>

#include "Implementation.h"
#include "Snapshot.h"
#include "orvanta/Foundation/JSON.h"

namespace orvanta::benchmarks {

/// The operations of a peer that reads into, and writes from, a document. It defines:
///
///     Peer::Tree                          its free-form value
///     Peer::Reading<T>(text)              parses JSON into `object`, a T
///     Peer::write(batch, out)             strips the batch and writes its body
template <class Peer, class T>
Operation documentReading(std::string_view workload, const std::string& text) {
  using Reading = typename Peer::template Reading<T>;
  return {workload,
          [&text] {
            const Reading reading(text);
            return (reading.object.*std::get<0>(Fields<T>::kAll).member).has_value();
          },
          [&text] { return snapshotOf(Reading(text).object); }};
}

template <class Peer>
std::vector<Operation> documentOperations(const Workloads& workloads) {
  using Tree = typename Peer::Tree;
  const auto batch = std::make_shared<Batch>(workloads.batch);
  const auto out = std::make_shared<typename Peer::Text>();
  return {documentReading<Peer, Push<Tree>>("push", workloads.push),
          documentReading<Peer, Inbox<Tree>>("inbox", workloads.inbox),
          {"events", [batch, out] { return !Peer::write(*batch, *out).empty(); },
           [batch, out] { return parseJSON(Peer::write(*batch, *out)); }}};
}

}  // namespace orvanta::benchmarks
