#include "start/DataFolder.h"

#include <algorithm>

#include "list/DataFile.h"
#include "list/Settings.h"

namespace vantor::start {
namespace {

constexpr std::wstring_view MediaMark = L"Vantor Media 1";
// A medium in this state was removed during its first run.
constexpr std::wstring_view MediaSetup = L"Setup";
constexpr std::wstring_view MediaReady = L"Ready";

struct MediaSet {
  std::wstring State;  // "" for a file that is not the program's
  std::wstring UserName;
};

text::SequentialWriter MediaText(std::wstring_view state, std::wstring_view userName) {
  text::SequentialWriter writer;
  writer.Write(MediaMark);
  writer.Write(state);
  writer.Write(userName);
  return writer;
}

/// Nothing if the file exists but can't be read.
std::optional<MediaSet> ReadMediaSet(const service::Services& services, const state::Environment& environment) {
  const service::FileRead file = list::ReadPatiently(services.DataFiles, environment.Files.MediaSet);
  if (file.Failed()) return std::nullopt;
  const std::wstring text = list::DecodeText(file.Bytes.value_or(""), services.Language);
  text::SequentialReader reader(text);
  const auto mark = reader.Read();
  const auto state = reader.Read();
  const auto name = reader.Read();
  if (!mark || mark->Text != MediaMark) return MediaSet{};
  if (!state || (state->Text != MediaSetup && state->Text != MediaReady)) return MediaSet{};
  return MediaSet{std::wstring(state->Text), std::wstring(name ? name->Text : L"")};
}

bool Write(const service::Services& services, std::wstring_view path, const text::SequentialWriter& text) {
  return services.DataFiles.Write(path, list::EncodeText(text, services.Language));
}

/// The settings file or, where that was lost or deleted, one of the lists; "" before the first start.
std::wstring_view FindData(const service::Services& services, const state::Environment& environment) {
  // An existing file that can't be read must not be mistaken for a first start and replaced.
  const auto isThere = [&](std::wstring_view path) { return !services.DataFiles.Read(path).Missing; };
  if (isThere(environment.Files.Set)) return environment.Files.Set;
  for (const std::wstring_view path : environment.Files.Lists()) {
    if (isThere(path)) return path;
  }
  return {};
}

bool WriteFirstSettings(const service::Services& services, const state::Environment& environment) {
  return Write(services, environment.Files.Set, list::WriteSettings(list::Settings{}));
}

/// Whether there is no data yet, or only what a first set-up leaves that was interrupted during its first write.
bool IsFresh(const service::Services& services, const state::Environment& environment) {
  const auto names = services.DataFiles.FolderEntries(environment.DataFolder);
  if (!names) return false;
  const std::wstring& path = environment.Files.MediaSet;
  const std::wstring first = services.Language.Lower(path.substr(path.rfind(L'\\') + 1));
  const bool onlyFirst = std::all_of(names->begin(), names->end(), [&](const std::wstring& name) {
    const std::wstring lower = services.Language.Lower(name);
    return lower == first || lower == first + service::UnfinishedEnding;
  });
  if (!onlyFirst || names->empty()) return onlyFirst;
  const service::FileRead file = list::ReadPatiently(services.DataFiles, path);
  if (!file.Bytes) return file.Missing;
  const text::SequentialWriter whole = MediaText(MediaSetup, L"");
  return *file.Bytes != whole.Bytes() && whole.Bytes().starts_with(*file.Bytes);
}

bool CreateMedia(const service::Services& services, const state::Environment& environment) {
  if (!services.DataFiles.MakeFolder(environment.DataFolder)) return false;
  const std::wstring& mediaSet = environment.Files.MediaSet;
  if (Write(services, mediaSet, MediaText(MediaSetup, L"")) && WriteFirstSettings(services, environment) &&
      Write(services, mediaSet, MediaText(MediaReady, L"")))
    return true;
  // A half-finished set-up would prevent the program from ever running here.
  for (const std::wstring& path : {environment.Files.Set, mediaSet}) static_cast<void>(services.DataFiles.Remove(path));
  return false;
}

}  // namespace

DataFolderState PrepareDataFolder(const service::Services& services, state::Environment& environment) {
  const std::wstring_view found = FindData(services, environment);
  if (!found.empty()) return {{}, services.DataFiles.CanWrite(found)};
  environment.FirstStart = true;
  return {{}, services.DataFiles.MakeFolder(environment.DataFolder) && WriteFirstSettings(services, environment)};
}

DataFolderState PrepareMedia(const service::Services& services, state::Environment& environment) {
  if (IsFresh(services, environment)) {
    environment.FirstStart = true;
    return {CreateMedia(services, environment) ? message::MessageKey() : message::MessageMediaCreateError};
  }
  // If it can't be read just now, the medium has been used before.
  const auto media = ReadMediaSet(services, environment);
  if (media && media->State.empty()) return {message::MessageRecreateMedia};
  if (media && media->State == MediaSetup) return {message::MessageMediaRunCancel};
  if (const std::wstring_view found = FindData(services, environment); !found.empty())
    return {{}, services.DataFiles.CanWrite(found)};
  environment.FirstStart = true;
  return {WriteFirstSettings(services, environment) ? message::MessageKey() : message::MessageMediaCreateError};
}

std::optional<std::wstring> LoadUserName(const service::Services& services, const state::Environment& environment) {
  if (environment.RunMode) {
    auto media = ReadMediaSet(services, environment);
    return media ? std::optional(std::move(media->UserName)) : std::nullopt;
  }
  const service::FileRead file = list::ReadPatiently(services.DataFiles, environment.Files.User);
  if (file.Failed()) return std::nullopt;
  const std::wstring text = list::DecodeText(file.Bytes.value_or(""), services.Language);
  const auto name = text::SequentialReader(text).Read();
  return std::wstring(name ? name->Text : L"");
}

void SaveUserName(const service::Services& services, const state::Environment& environment, std::wstring_view name) {
  if (environment.RunMode) {
    static_cast<void>(Write(services, environment.Files.MediaSet, MediaText(MediaReady, name)));
    return;
  }
  text::SequentialWriter writer;
  writer.Write(name);
  static_cast<void>(Write(services, environment.Files.User, writer));
}

}  // namespace vantor::start
