// The extension and all classes in an otherwise empty program:
//
//     whole_library               does nothing
//     whole_library all           creates the extension and an object of every class, so that the
//                                 linker keeps the classes and what they reach
//     whole_library resident      prints the peak resident size of doing nothing, in KiB
//     whole_library push FILE     prints the CPU time of a process's first push, in nanoseconds
//     whole_library inbox FILE    prints what an inbox reply adds to the resident size, in KiB, not
//                                 counting the JSON text itself
#include <ctime>
#include <string>

#include "ProcessFigures.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Model/Push/OrvantaPushObject.h"
#include "orvanta/Model/Responses/OrvantaInboxResponse.h"
#include "orvanta/NotificationService/OrvantaNotificationServiceExtension.h"

namespace {

std::string contentsOf(const char* path) {
  std::string text;
  std::FILE* file = std::fopen(path, "rb");
  if (file == nullptr) return text;
  std::fseek(file, 0, SEEK_END);
  text.reserve(static_cast<std::size_t>(std::ftell(file)));
  std::rewind(file);
  char part[65536];
  while (const std::size_t bytes = std::fread(part, 1, sizeof part, file)) text.append(part, bytes);
  std::fclose(file);
  return text;
}

double nanoseconds() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return 1e9 * static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec);
}

template <class M>
bool read(const std::string& text) {
  const orvanta::Value parsed = orvanta::parseJSON(text);
  return parsed.dictionary() != nullptr && orvanta::make<M>(*parsed.dictionary());
}

bool createAll() {
  bool succeeded = true;
  for (const orvanta::Class* cls : orvanta::modelClasses()) {
    const auto model = orvanta::makeModel(*cls, nullptr);
    std::string text;
    succeeded = model && orvanta::writeJSON(model->dictionaryValue(), text) && succeeded;
  }
  orvanta::OrvantaNotificationServiceExtension extension;
  extension.serviceExtensionTimeWillExpire();
  return succeeded;
}

}  // namespace

int main(int argc, char** argv) {
  using orvanta::benchmarks::statusKiB;
  if (argc == 2 && std::strcmp(argv[1], "all") == 0) return createAll() ? 0 : 1;
  if (argc == 2) std::printf("%ld\n", statusKiB("VmHWM:"));
  if (argc != 3) return 0;
  const std::string text = contentsOf(argv[2]);
  const long residentBefore = statusKiB("VmRSS:");
  const double begin = nanoseconds();
  if (std::strcmp(argv[1], "push") == 0) {
    if (!read<orvanta::OrvantaPushObject>(text)) return 1;
    std::printf("%.0f\n", nanoseconds() - begin);
  } else {
    if (!read<orvanta::OrvantaInboxResponse>(text)) return 1;
    std::printf("%ld\n", statusKiB("VmHWM:") - residentBefore);
  }
}
