#include "add/MachineIdentity.h"

#include <optional>

#include "text/Numbers.h"
#include "text/SequentialFile.h"

namespace vantor::add {
namespace {

/// Nothing when one of the two can't be read.
std::optional<bool> CompareIdentity(const service::Services& services, std::wstring_view path) {
  const auto text = text::ReadTextFile(services.DataFiles, services.Language, path);
  if (!text) return std::nullopt;
  text::SequentialReader reader(*text);
  const auto driveType = reader.Read();
  const auto serialNumber = reader.Read();
  const auto size = reader.Read();
  if (!driveType || !serialNumber || !size) return std::nullopt;
  const auto identity = services.Management.ReadDiskIdentity();
  if (!identity) return std::nullopt;
  return text::ParseDouble(driveType->Text) == identity->DriveType &&
         serialNumber->Text == identity->VolumeSerialNumber && text::ParseDouble(size->Text) == identity->Size;
}

}  // namespace

bool MachineMatches(const service::Services& services, message::Messages& messages, std::wstring_view path) {
  const std::optional<bool> same = CompareIdentity(services, path);
  if (!same) messages.ReportBug(L"DeclareOwnerOnMedia");
  return same.value_or(false);
}

void IdentifyMachine(const service::Services& services, message::Messages& messages, start::Environment& environment) {
  environment.MachineUnknown = !services.FileSystem.FileExists(environment.Files.Machine);
  environment.MachineRemembered =
      !environment.MachineUnknown && MachineMatches(services, messages, environment.Files.Machine);
}

}  // namespace vantor::add
