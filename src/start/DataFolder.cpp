#include "start/DataFolder.h"

#include <optional>

#include "list/Settings.h"
#include "text/SequentialFile.h"

namespace vantor::start {
namespace {

constexpr std::wstring_view MediaMark = L"Vantor Media 1";
// A medium in this state was left in the midst of its first run.
constexpr std::wstring_view MediaSetup = L"Setup";
constexpr std::wstring_view MediaReady = L"Ready";

struct MediaSet {
  std::wstring State;
  std::wstring UserName;
};

std::optional<MediaSet> ReadMediaSet(const service::Services& services, const state::Environment& environment) {
  const auto text = text::ReadTextFile(services.DataFiles, services.Language, environment.Files.MediaSet);
  if (!text) return std::nullopt;
  text::SequentialReader reader(*text);
  const auto mark = reader.Read();
  const auto state = reader.Read();
  const auto name = reader.Read();
  if (!mark || mark->Text != MediaMark) return std::nullopt;
  if (!state || (state->Text != MediaSetup && state->Text != MediaReady)) return std::nullopt;
  return MediaSet{std::wstring(state->Text), std::wstring(name ? name->Text : L"")};
}

bool WriteMediaSet(const service::Services& services, const state::Environment& environment, std::wstring_view state,
                   std::wstring_view userName) {
  text::SequentialWriter writer;
  writer.Write(MediaMark);
  writer.Write(state);
  writer.Write(userName);
  return text::WriteTextFile(services.DataFiles, services.Language, environment.Files.MediaSet, writer);
}

bool WriteFirstSettings(const service::Services& services, const state::Environment& environment) {
  return list::SaveSettings(services.DataFiles, services.Language, environment.Files.Set, list::Settings{});
}

bool CreateMedia(const service::Services& services, const state::Environment& environment) {
  return services.DataFiles.MakeFolder(environment.DataFolder) &&
         WriteMediaSet(services, environment, MediaSetup, L"") && WriteFirstSettings(services, environment) &&
         WriteMediaSet(services, environment, MediaReady, L"");
}

}  // namespace

void PrepareDataFolder(const service::Services& services, state::Environment& environment) {
  // A settings file that is there but can't be read must not be taken for a first start, and be replaced.
  if (services.FileSystem.FileExists(environment.Files.Set)) return;
  environment.FirstStart = true;
  if (services.DataFiles.MakeFolder(environment.DataFolder)) {
    static_cast<void>(WriteFirstSettings(services, environment));
  }
}

message::MessageKey PrepareMedia(const service::Services& services, state::Environment& environment) {
  if (services.DataFiles.FolderIsEmpty(environment.DataFolder)) {
    environment.FirstStart = true;
    return CreateMedia(services, environment) ? L"" : L"MessageMediaCreateError";
  }
  const auto media = ReadMediaSet(services, environment);
  if (!media) return L"MessageRecreateMedia";
  if (media->State == MediaSetup) return L"MessageMediaRunCancel";
  if (services.FileSystem.FileExists(environment.Files.Set)) return L"";
  environment.FirstStart = true;
  return WriteFirstSettings(services, environment) ? L"" : L"MessageMediaCreateError";
}

std::wstring LoadUserName(const service::Services& services, const state::Environment& environment) {
  if (environment.RunMode) {
    const auto media = ReadMediaSet(services, environment);
    return media ? media->UserName : L"";
  }
  const auto text = text::ReadTextFile(services.DataFiles, services.Language, environment.Files.User);
  if (!text) return L"";
  const auto name = text::SequentialReader(*text).Read();
  return std::wstring(name ? name->Text : L"");
}

void SaveUserName(const service::Services& services, const state::Environment& environment, std::wstring_view name) {
  if (environment.RunMode) {
    static_cast<void>(WriteMediaSet(services, environment, MediaReady, name));
    return;
  }
  text::SequentialWriter writer;
  writer.Write(name);
  static_cast<void>(text::WriteTextFile(services.DataFiles, services.Language, environment.Files.User, writer));
}

}  // namespace vantor::start
