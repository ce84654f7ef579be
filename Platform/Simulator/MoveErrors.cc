#include "orvanta/Simulator/MoveErrors.h"

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Description.h"

namespace orvanta {

namespace {

struct FailureRow {
  MoveFailure failure;
  int code;
  std::string_view format;  // of the file's name and the destination folder's
};
constexpr FailureRow kFailures[] = {
    {MoveFailure::alreadyExists, 516,
     "“%@” couldn’t be moved to “%@” because an item with the same name already exists."},
    {MoveFailure::notFound, 4,
     "“%@” couldn’t be moved to “%@” because either the former doesn’t exist, or the folder "
     "containing the latter doesn’t exist."},
    {MoveFailure::noPermission, 513,
     "“%@” couldn’t be moved because you don’t have permission to access “%@”."},
    {MoveFailure::nameTooLong, 514, "“%@” couldn’t be moved to “%@” because the name is too long."},
    {MoveFailure::noSpace, 640, "“%@” couldn’t be moved to “%@” because there isn’t enough space."},
    {MoveFailure::readOnlyVolume, 642,
     "“%@” couldn’t be moved to “%@” because the volume is read only."},
    {MoveFailure::other, 512, "“%@” couldn’t be moved to “%@”."},
};

constexpr std::string_view kCocoaDomain = "NSCocoaErrorDomain";

std::string_view lastComponent(std::string_view path) { return path.substr(path.rfind('/') + 1); }

/// Returns the name of the folder that a path is in, "/" for the root.
std::string_view folderName(std::string_view path) {
  path = path.substr(0, path.rfind('/') + 1);
  if (path.empty()) return {};
  const auto end = path.find_last_not_of('/');
  return end == std::string_view::npos ? "/" : lastComponent(path.substr(0, end + 1));
}

Ref<NSError> unsupportedScheme(int code, std::string_view verb, const Url& url) {
  return NSError::errorWithDomain(
      kCocoaDomain, code, Dictionary{{"NSURL", url}},
      formatted("The file couldn’t be %@ because the specified URL type isn’t supported.", {verb}));
}

}  // namespace

Ref<NSError> moveError(MoveFailure failure, const POSIXError& underlying, const std::string& source,
                       const std::string& destination) {
  const FailureRow& row = kFailures[static_cast<std::size_t>(failure)];
  const Value cause = NSError::errorWithDomain("NSPOSIXErrorDomain", underlying.code, Dictionary(),
                                               underlying.message);
  return NSError::errorWithDomain(
      kCocoaDomain, row.code,
      Dictionary{{"NSSourceFilePathErrorKey", source},
                 {"NSUserStringVariant", Array{"Move"}},
                 {"NSDestinationFilePath", destination},
                 {"NSFilePath", source},
                 {NSError::kUnderlyingError, cause}},
      formatted(row.format, {lastComponent(source), folderName(destination)}));
}

Ref<NSError> schemeError(const Url& source, const Url& destination) {
  if (!source.isFileURL()) return unsupportedScheme(262, "opened", source);
  if (!destination.isFileURL()) return unsupportedScheme(518, "saved", destination);
  return nullptr;
}

}  // namespace orvanta
