#pragma once

#include <algorithm>
#include <string>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Description.h"
#include "orvanta/Foundation/Exception.h"
#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// What an outermost update has led to so far.
struct UpdateTotals {
  std::size_t models = 0;
  std::size_t namedModels = 0;
  std::size_t elements = 0;
  std::size_t logBytesLeft = 65536;
};

/// Limits what one outermost update may cost. An instance counts one update of the current thread;
/// nested updates share the totals of the outermost one. The "klazz" entries of a payload nest and
/// multiply models at will, so without limits the payload would decide how much time, stack and log
/// space it takes. The limits are those of OrvantaBaseModel.
class UpdateBudget {
 public:
  UpdateBudget() noexcept {
    if (depth_ == 0) spent_ = {};
    ++depth_;
    ++spent_.models;
  }
  UpdateBudget(const UpdateBudget&) = delete;
  UpdateBudget& operator=(const UpdateBudget&) = delete;
  ~UpdateBudget() { --depth_; }

  /// Counts a model whose class the payload names.
  static void countNamedModel() {
    if (depth_ != 0) ++spent_.namedModels;
  }
  /// Counts elements of an array before they are walked.
  static void countElements(std::size_t number) {
    if (depth_ != 0) spent_.elements += number;
  }
  /// Counts the elements of an array and of the arrays in it.
  static void countElements(const Array& array) {
    countElements(array.size());
    for (const Value& element : array) {
      if (isExhausted()) return;
      if (const Array* inner = element.array()) countElements(*inner);
    }
  }
  static bool isExhausted() {
    return depth_ > OrvantaBaseModel::kMaxNestedModels ||
           (depth_ != 0 && (spent_.models > OrvantaBaseModel::kMaxModels ||
                            spent_.namedModels > OrvantaBaseModel::kMaxModelsNamedByPayload ||
                            spent_.elements > OrvantaBaseModel::kMaxArrayElements));
  }
  /// Throws the invalid-argument exception if a limit is exceeded.
  static void check() {
    if (isExhausted()) {
      throw Exception(Exception::kInvalidArgument, "too many models in one dictionary");
    }
  }
  /// Describes a dictionary for the log. Every nested model that fails logs its whole dictionary,
  /// so all lines of one outermost update share a number of bytes.
  static std::string describeForLog(const Dictionary& dictionary) {
    std::string description = describe(dictionary, spent_.logBytesLeft);
    spent_.logBytesLeft -= std::min(spent_.logBytesLeft, description.size());
    return description;
  }

 private:
  inline static thread_local std::size_t depth_ = 0;
  inline static thread_local UpdateTotals spent_;
};

}  // namespace orvanta
