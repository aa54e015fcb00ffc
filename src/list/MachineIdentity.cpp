#include "list/MachineIdentity.h"

#include <optional>
#include <stdexcept>
#include <string>

#include "list/DataFile.h"
#include "text/Numbers.h"

namespace vantor::list {
namespace {

using Field = text::SequentialReader::Field;

Field Required(std::optional<Field> field) {
  if (!field) throw std::runtime_error("the identity file is cut short");
  return *field;
}

/// In the file, texts are in quotes and numbers are not; a text never equals a number.
bool Equals(const Field& field, double number) { return !field.Quoted && text::ParseDouble(field.Text) == number; }

bool Equals(const Field& field, const std::wstring& text) {
  return field.Text == text && (field.Quoted || !text::ParseDouble(field.Text));
}

bool IsThisMachine(const service::Services& services, std::wstring_view path) {
  const service::FileRead file = list::ReadPatiently(services.DataFiles, path);
  if (!file.Bytes) throw std::runtime_error("the identity file can't be read");
  const std::wstring text = list::DecodeText(*file.Bytes, services.Language);
  text::SequentialReader reader(text);
  const Field driveType = Required(reader.Read());
  const Field serialNumber = Required(reader.Read());
  const Field size = Required(reader.Read());
  const auto identity = services.Management.ReadDiskIdentity();
  return identity && Equals(driveType, identity->DriveType) && Equals(serialNumber, identity->VolumeSerialNumber) &&
         Equals(size, identity->Size);
}

/// Returns false if there is nothing to save.
bool SaveIdentity(const service::Services& services, std::wstring_view path) {
  const auto identity = services.Management.ReadDiskIdentity();
  if (!identity) return false;
  text::SequentialWriter writer;
  writer.Write(identity->DriveType);
  writer.Write(identity->VolumeSerialNumber);
  writer.Write(identity->Size);
  if (!services.DataFiles.Write(path, list::EncodeText(writer, services.Language))) {
    throw std::runtime_error("the identity file can't be written");
  }
  return true;
}

}  // namespace

bool MachineMatches(const service::Services& services, message::Messages& messages, std::wstring_view path) {
  bool matches = false;
  messages.Trap(L"DeclareOwnerOnMedia", [&] { matches = IsThisMachine(services, path); });
  return matches;
}

void IdentifyMachine(const service::Services& services, message::Messages& messages, state::Environment& environment) {
  environment.MachineUnknown = services.DataFiles.Read(environment.Files.MachineIdentityFile).Missing;
  environment.MachineRemembered =
      !environment.MachineUnknown && MachineMatches(services, messages, environment.Files.MachineIdentityFile);
}

bool RememberMyComputer(const service::Services& services, message::Messages& messages,
                        state::Environment& environment) {
  bool failed = false;
  try {
    if (!SaveIdentity(services, environment.Files.MachineIdentityFile)) return false;
  } catch (...) {
    failed = true;
  }
  if (failed) {
    messages.ShowTextMessage(L"Could not save data for identifying this machine. Reason undetermined");
    return false;
  }
  environment.MachineUnknown = false;
  environment.MachineRemembered = true;
  return true;
}

}  // namespace vantor::list
