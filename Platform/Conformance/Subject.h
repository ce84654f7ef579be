#pragma once

#include <concepts>

namespace orvanta::conformance {

/// What every suite needs of its subject: each test creates one, and so starts anew.
///
/// `service()` returns the implementation under test, which the subject owns. Functions that set
/// the service up are called before the first `service()`.
template <class Subject, class Service>
concept SubjectOf = std::constructible_from<Subject> && requires(Subject subject) {
  { subject.service() } -> std::convertible_to<Service&>;
};

/// The subject of a service that calls back.
///
/// `runAll()` runs the pending callbacks, and those that they lead to, and returns when none is
/// left. Callbacks must wait for it, so that a test sees what happened before: a subject with a
/// queue of its own keeps that queue suspended until `runAll()`.
template <class Subject, class Service>
concept QueueSubjectOf = SubjectOf<Subject, Service> && requires(Subject subject) {
  subject.runAll();
};

}  // namespace orvanta::conformance
