#include "orvanta/Inspection/Models.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Model/Mapping/OrvantaBaseModel.h"
#include "orvanta/Model/Requests/OrvantaBaseRequest.h"

namespace orvanta::inspection {

std::size_t editDistance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i + 1);
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t replaced = diagonal + (a[i] == b[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
    }
  }
  return row.back();
}

const Class& classNamed(const std::string& name) {
  if (const Class* cls = modelClassNamed(name)) return *cls;
  const auto nearest = std::min_element(
      modelClasses().begin(), modelClasses().end(), [&](const Class* a, const Class* b) {
        return editDistance(a->name, name) < editDistance(b->name, name);
      });
  throw Error(Error::Kind::usage, "there is no class \"" + name + "\"; the nearest is " +
                                      std::string((*nearest)->name));
}

std::string rejectionReason(const RefusalRecorder& recorder, const Class& cls) {
  return recorder.refusal() ? recorder.refusal()->description()
                            : std::string(cls.name) + " refused without a reason";
}

void checkWritable(const Dictionary& dictionary, const Class& cls) {
  for (const Dictionary::Entry& entry : dictionary) {
    if (!isValidJSONObject(Array{entry.value})) {
      throw Error(Error::Kind::rejected, std::string(cls.name) + " \"" + std::string(entry.key()) +
                                             "\": " + std::string(entry.value.kindName()) +
                                             " without a JSON text, such as an infinite number");
    }
  }
}

Dictionary modelDictionary(const Class& cls, const Dictionary* dictionary, bool classInfo) {
  const RefusalRecorder recorder;
  const auto model = Ref<OrvantaBaseModel>::adopt(cls.alloc());
  bool isInitialized = false;
  try {
    isInitialized = dictionary != nullptr ? model->initWithDictionary(dictionary) : model->init();
  } catch (const Exception&) {
    isInitialized = false;  // the recorder knows why
  }
  if (!isInitialized) throw Error(Error::Kind::rejected, rejectionReason(recorder, cls));
  Dictionary result = model->dictionaryValueWithPolicy(classInfo);
  checkWritable(result, cls);
  return result;
}

void checkIsRequest(const Class& cls) {
  if (!cls.isSubclassOf(OrvantaBaseRequest::classObject())) {
    throw Error(Error::Kind::usage, std::string(cls.name) + " is no request class");
  }
}

Ref<OrvantaBaseRequest> restoredRequest(const Class& cls, const Dictionary& dictionary) {
  checkIsRequest(cls);
  const RefusalRecorder recorder;
  const Ref<OrvantaBaseModel> model = makeModel(cls, &dictionary);
  if (!model) throw Error(Error::Kind::rejected, rejectionReason(recorder, cls));
  return Ref<OrvantaBaseRequest>(static_cast<OrvantaBaseRequest*>(model.get()));
}

Dictionary requestCall(const Class& cls, const Dictionary& dictionary) {
  const Ref<OrvantaBaseRequest> request = restoredRequest(cls, dictionary);
  const auto spec = request->requestSpec();
  checkWritable(spec->HTTPBody, cls);
  Dictionary call = specDictionary(*spec);
  const auto priority = request->priority();
  call.set("priority", priority ? Value(*priority) : Value::null());
  return call;
}

Dictionary specDictionary(const OrvantaRequestSpec& spec) {
  const auto orNull = [](const PropertyValue<String>& text) {
    return text.isPresent() ? text.raw() : Value::null();
  };
  return {{"baseURL", orNull(spec.baseURL)},
          {"path", orNull(spec.path)},
          {"HTTPMethod", orNull(spec.HTTPMethod)},
          {"HTTPHeaders", spec.HTTPHeaders},
          {"HTTPBody", spec.HTTPBody},
          {"timeoutInterval", spec.timeoutInterval},
          {"queuePriority", spec.queuePriority}};
}

}  // namespace orvanta::inspection
