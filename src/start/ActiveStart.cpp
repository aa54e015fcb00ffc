#include "start/ActiveStart.h"

#include <cmath>
#include <optional>
#include <string>
#include <utility>

#include "command/CodeTables.h"
#include "list/MachineIdentity.h"
#include "start/Companions.h"
#include "start/DataFolder.h"
#include "start/Places.h"
#include "start/Program.h"

namespace vantor::start {

void ActiveStart::Run() {
  files_.emplace(program_.Services.FileSystem);
  using Step = void (ActiveStart::*)();
  for (const Step step : {&ActiveStart::CheckScreen, &ActiveStart::FindPreviousInstance, &ActiveStart::FindPlaces,
                          &ActiveStart::ChooseRunMode, &ActiveStart::PrepareData, &ActiveStart::AskForName,
                          &ActiveStart::LoadState, &ActiveStart::LookForCompanions, &ActiveStart::LoadForms,
                          &ActiveStart::ShowBar, &ActiveStart::TellWhereSaved}) {
    (this->*step)();
    if (program_.Ui.Ended()) return;
  }
  program_.Environment.FirstStart = false;
  program_.Environment.Starting = false;
}

void ActiveStart::CheckScreen() {
  // 800 by 600 pixels, at any scale. The message names another size; both are intended.
  constexpr long MinWidth = 800;
  constexpr long MinHeight = 600;
  const form::Screen screen = program_.Ui.PrimaryScreen();
  if (std::lround(screen.Bounds.Width / screen.TwipsPerPixelX) < MinWidth ||
      std::lround(screen.Bounds.Height / screen.TwipsPerPixelY) < MinHeight) {
    Stop(message::MessageSmallScreen);
  }
}

void ActiveStart::FindPreviousInstance() {
  // So that the search for the other copy does not find this one.
  constexpr std::wstring_view TitleMeanwhile = L"BypassThisInstance";
  service::System& system = program_.Services.System;
  system.SetTitle(state::ApplicationTitle);
  if (!system.PreviousInstance()) return;
  system.SetTitle(TitleMeanwhile);
  if (system.ActivateInstance(state::ApplicationTitle))
    program_.Ui.End();
  else
    system.SetTitle(state::ApplicationTitle);
}

void ActiveStart::FindPlaces() {
  state::Environment& environment = program_.Environment;
  environment.Starting = true;
  program_.frmMove.Load();
  GetWindowsFolder(program_.Services.System, program_.Services.Language, environment);
  const bool windowsKnown = !environment.WindowsFolderUpper.empty();
  // There is no stop message with this key, so the start continues.
  if (windowsKnown && environment.ProgramFolderUpper.starts_with(environment.WindowsFolderUpper)) {
    Stop(message::MessageProgInSystem);
  }
}

void ActiveStart::ChooseRunMode() {
  state::Environment& environment = program_.Environment;
  if (!program_.Services.FileSystem.Available()) {
    Stop(message::MessageNeedSriptRuntime);
    return;
  }
  environment.DriveTypeText = GetDriveTypeText(program_.Services.FileSystem, environment.DriveRoot);
  const std::wstring& type = environment.DriveTypeText;
  if (type == L"Unknown" || type == L"Remote") Stop(message::MessageMediaUnknown);
  if (type == L"CDRom") Stop(message::MessageMediaCDRom);
  environment.RunMode = type != L"Fixed";
}

void ActiveStart::PrepareData() {
  state::Environment& environment = program_.Environment;
  SetDataFiles(environment);
  program_.ListFiles.Restore();
  const auto prepare = environment.RunMode ? PrepareMedia : PrepareDataFolder;
  const DataFolderState folder = prepare(program_.Services, environment);
  if (!folder.Refusal.empty()) return Stop(folder.Refusal);
  canSave_ = folder.CanSave;
  LoadName();
  if (environment.RunMode) list::IdentifyMachine(program_.Services, program_.Messages, environment);
}

void ActiveStart::LoadName() {
  std::optional<std::wstring> stored;
  program_.Messages.Trap(L"LoadUserName", [&] { stored = LoadUserName(program_.Services, program_.Environment); });
  nameUnread_ = !stored;
  program_.MessageState.UserName = stored.value_or(L"");
}

void ActiveStart::AskForName() {
  if (nameUnread_ || !program_.MessageState.UserName.empty()) return;
  program_.Environment.FirstStart = true;  // also if the first start ended at this question
  files_.reset();                          // the user may take hours to answer
  program_.Messages.ShowUserMessage(message::MessageGetUserName);
}

void ActiveStart::LoadState() {
  // What can't be read keeps the values of a first start.
  program_.Messages.Trap(L"LoadSettings", [this] { program_.ListFiles.LoadSettings(); });
  command::InitCodeTables(program_.CommandState);
  program_.Options = options::DecodeOptionMask(program_.Settings.OptionMask);
}

void ActiveStart::LookForCompanions() {
  state::Environment& environment = program_.Environment;
  program_.Messages.Trap(L"FindCompanions",
                         [&] { environment.Companions = FindCompanions(program_.Services, environment); });
}

void ActiveStart::LoadForms() {
  program_.frmMain.Load();
  program_.frmBrowse.Load();
  program_.frmChoose.Load();
  files_.reset();
}

void ActiveStart::ShowBar() {
  program_.frmMain.Show();
  if (program_.Environment.FirstStart) program_.Messages.ShowListMessage(message::MessageFisrtStart);
}

void ActiveStart::TellWhereSaved() {
  const state::Environment& environment = program_.Environment;
  if (!canSave_)
    program_.Messages.ShowTextMessage(L"The list and settings cannot be saved in " + environment.DataFolder);
  const std::wstring elsewhere = program_.ListFiles.SavedElsewhere();
  if (elsewhere.empty()) return;
  program_.Messages.ShowTextMessage(
      L"The list and settings of the last run were not saved in their place, because something there could not be "
      L"read or written. They are in " +
      elsewhere);
  if (!program_.Ui.Ended()) program_.ListFiles.ForgetSavedElsewhere();
}

void ActiveStart::Stop(message::MessageKey key) {
  files_.reset();  // the user may take hours to answer
  program_.Messages.ShowStopMessage(key);
}

}  // namespace vantor::start
