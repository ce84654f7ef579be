#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "orvanta/Foundation/Value.h"

namespace orvanta {

struct Class;

/// Why an update answered NO.
struct Refusal {
  struct Step {
    const Class* cls;
    std::string keyPath;
    std::string property;
  };
  /// From the model that was updated inwards to the one that refused a value.
  std::vector<Step> steps;
  /// The kind of the refused value, "a string" and the like.
  std::string kind;
  std::string reason;

  /// One line: classes and key paths, the kind of value and the reason.
  std::string description() const;
};

/// While it lives, the calling thread's updates tell it the first value that made them answer NO,
/// or throw. A nested model that failed and whose owner went on without it is no refusal of the
/// owner's. Nobody asking costs nothing. Recorders nest; the innermost is told.
class RefusalRecorder {
 public:
  RefusalRecorder() noexcept : previous_(current_) { current_ = this; }
  RefusalRecorder(const RefusalRecorder&) = delete;
  RefusalRecorder& operator=(const RefusalRecorder&) = delete;
  ~RefusalRecorder() { current_ = previous_; }

  /// The refusal of the update, none when that succeeded. A recorder that is to tell about a
  /// further update is reset before it.
  const std::optional<Refusal>& refusal() const { return refusal_; }
  void reset() { refusal_.reset(); }

  // For the mapping: the calling thread's recorder or nullptr, a refusal at a place, and the end
  // of one that did not matter to the owner. A refusal that stands already happened inside the
  // place that is now told, which becomes its outer step.
  static RefusalRecorder* current() { return current_; }
  void record(const Class& cls, std::string_view keyPath, std::string_view property,
              std::string_view kind, std::string_view reason);
  static void forget() {
    if (current_ != nullptr) current_->reset();
  }

 private:
  inline static thread_local RefusalRecorder* current_ = nullptr;
  RefusalRecorder* previous_;
  std::optional<Refusal> refusal_;
};

}  // namespace orvanta
