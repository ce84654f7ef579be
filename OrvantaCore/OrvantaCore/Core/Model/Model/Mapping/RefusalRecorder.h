#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "orvanta/Foundation/Value.h"

namespace orvanta {

struct Class;
struct MappingEntry;

/// Why an update failed.
struct Refusal {
  struct Step {
    const Class* cls;
    std::string keyPath;
    std::string property;
  };
  /// From the updated model inwards to the one that rejected a value.
  std::vector<Step> steps;
  /// Kind of the rejected value, such as "a string".
  std::string kind;
  std::string reason;

  /// One line with classes, key paths, the kind and the reason.
  std::string description() const;
};

/// Records why an update on this thread failed: the first value that made it return NO or throw. A
/// nested failure that the owner tolerates is not recorded. Without a recorder nothing is recorded
/// and nothing is paid. Recorders nest; the innermost one records.
///
///     RefusalRecorder recorder;
///     auto push = make<OrvantaPushObject>(payload);
///     if (push == nullptr && recorder.refusal()) report(recorder.refusal()->description());
class RefusalRecorder {
 public:
  RefusalRecorder() noexcept : previous_(current_) { current_ = this; }
  RefusalRecorder(const RefusalRecorder&) = delete;
  RefusalRecorder& operator=(const RefusalRecorder&) = delete;
  ~RefusalRecorder() { current_ = previous_; }

  /// The recorded failure, none if the update succeeded. Call reset() before recording another
  /// update.
  const std::optional<Refusal>& refusal() const { return refusal_; }
  void reset() { refusal_.reset(); }

  // ---- For the mapping ----

  /// The calling thread's recorder, or nullptr.
  static RefusalRecorder* current() { return current_; }
  /// Records a failure. If one is recorded already, it happened inside this place, which becomes
  /// its outer step; its kind and reason stay.
  void record(const Class& cls, std::string_view keyPath, std::string_view property,
              std::string_view kind, std::string_view reason);
  /// Records that the value for an entry of the mapping was rejected.
  [[gnu::cold]] void record(const Class& cls, const MappingEntry& entry,
                            const Dictionary& dictionary);
  /// Records that a key path goes through a value without keys, in place of earlier failures.
  void recordUndefinedKey(const Class& cls, std::span<const Value> keyPath,
                          std::string_view property, const Dictionary& dictionary);
  /// Drops a failure that the owner tolerates.
  static void forget() {
    if (current_ != nullptr) current_->reset();
  }

 private:
  inline static thread_local RefusalRecorder* current_ = nullptr;
  RefusalRecorder* previous_;
  std::optional<Refusal> refusal_;
};

}  // namespace orvanta
