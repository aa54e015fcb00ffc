#include "add/frmBrowse.h"

#include <utility>

#include "add/ItemGroup.h"
#include "add/PlaceRules.h"
#include "list/AddToList.h"
#include "text/Path.h"

namespace vantor::add {
namespace {

constexpr std::wstring_view EveryFile = L"*.*";
constexpr std::wstring_view Programs = L"*.exe";

service::WindowId WindowOf(const form::Control& control) {
  return service::WindowId{control.Window() != nullptr ? control.Window()->Handle() : 0};
}

}  // namespace

frmBrowse::frmBrowse(form::UserInterface& ui, const panel::PanelContext& context, const list::LaunchList& list)
    : Form(ui, L"frmBrowse"),
      DriveWork(FrameBrowseBack, L"DriveWork", context.Services.FileSystem),
      DirWork(FrameBrowseBack, L"DirWork", context.Services.FileSystem),
      FileWork(FrameBrowseBack, L"FileWork", context.Services.FileSystem),
      context_(context),
      list_(list),
      finder_(context.Services) {
  Dress();
  EnableNameBox(false);
  CommandAddOK.SetEnabled(false);
  CommandSelectOK.SetEnabled(false);
  ConnectEvents();
}

void frmBrowse::ConnectEvents() {
  message::Messages& messages = context_.Messages;
  for (int index = 0; form::OptionButton & option : OptionBrowse) {
    messages.Connect(option, option.Click, L"Click", this, &frmBrowse::OptionBrowse_Click,
                     static_cast<AddKind>(index++));
  }
  messages.Connect(DriveWork, DriveWork.Change, L"Change", this, &frmBrowse::DriveWork_Change);
  messages.Connect(DirWork, DirWork.Change, L"Change", this, &frmBrowse::DirWork_Change);
  messages.Connect(DirWork, DirWork.Unreachable, L"Unreachable", this, &frmBrowse::DirWork_Unreachable);
  messages.Connect(FileWork, FileWork.Click, L"Click", this, &frmBrowse::FileWork_Click);
  messages.Connect(FileWork, FileWork.DblClick, L"DblClick", this, &frmBrowse::FileWork_DblClick);
  messages.Connect(TextAddPath, TextAddPath.Change, L"Change", this, &frmBrowse::TextAddPath_Change);
  messages.Connect(TextAddName, TextAddName.Change, L"Change", this, &frmBrowse::TextAddName_Change);
  messages.Connect(TextAddName, TextAddName.KeyPress, L"KeyPress", this, &frmBrowse::TextAddName_KeyPress);
  messages.Connect(CommandAddOK, CommandAddOK.Click, L"Click", this, &frmBrowse::CommandAddOK_Click);
  messages.Connect(CommandAddCancel, CommandAddCancel.Click, L"Click", this, &frmBrowse::CommandAddCancel_Click);
  messages.Connect(CommandSelectOK, CommandSelectOK.Click, L"Click", this, &frmBrowse::CommandSelectOK_Click);
  messages.Connect(CommandFindPath.MouseDown, L"FindExecutableDown", this, &frmBrowse::CommandFindPath_MouseDown);
  messages.Connect(CommandFindPath.MouseUp, L"FindExecutableUp", this, &frmBrowse::CommandFindPath_MouseUp);
  messages.Connect(TimerFindPath.Tick, L"FindExecutableTick", this, &frmBrowse::TimerFindPath_Timer);
  messages.Connect(FrameAddedInfo, FrameAddedInfo.Click, L"Click", this, &frmBrowse::FrameAddedInfo_Click);
}

// --- loading, opening and closing

void frmBrowse::Form_Load() {
  context_.Messages.Trap(L"Form_Load", [this] {
    LayOut();
    OptionBrowse[0].SetValue(true);
    const bool remembered =
        !context_.Environment.RunMode && OnFixedDrive(context_.Services, context_.Settings.RememberedBrowseFolder);
    if (!remembered || !DirWork.SetPath(context_.Settings.RememberedBrowseFolder))
      (void)DirWork.SetPath(context_.Environment.ProgramFolder);
    NoteFolder();
  });
}

void frmBrowse::Open(BrowseUse use) {
  context_.Messages.Trap(L"Open", [this, use] {
    Load();
    use_ = use;
    const BrowseUse before = std::exchange(lastUse_, use);
    if (before == BrowseUse::Add) addFolder_ = DirWork.Path();
    ReadLists();
    if (Opening()) {
      FrameAddedInfo.SetVisible(false);
      OfferFiles(EveryFile, true);
    } else {
      OfferKind();
      // The path may belong to a folder that is no longer shown, or may have been added.
      const bool moved = before == BrowseUse::Open && DirWork.Path() != addFolder_;
      if (moved || TextAddPath.Text().empty()) StartPath();
    }
    CommandSelectOK.SetEnabled(false);
    LayOut();
    context_.Host.PlaceByBar(*this);
    Show();
    FirstControl().SetFocus();
  });
}

form::Control& frmBrowse::FirstControl() {
  if (Opening()) return DriveWork;
  if (TextAddName.Enabled()) return TextAddName;
  return OptionBrowse[static_cast<std::size_t>(state_.WhatToAdd)];
}

void frmBrowse::Close() {
  use_ = BrowseUse::None;
  StopFinder();
  FileWork.SetListIndex(-1);
  Hide();
}

void frmBrowse::Form_KeyUp(form::Key key) {
  context_.Messages.Trap(L"Form_KeyUp", [&] {
    if (finder_.FinderActive()) {
      if (key == form::Key::Escape) StopFinder();
    } else if (key == form::Key::Escape) {
      CommandAddCancel.DoClick();
    } else {
      context_.Host.HotKey(key);
    }
  });
}

// --- what to add

void frmBrowse::OptionBrowse_Click(AddKind kind) {
  state_.WhatToAdd = kind;
  ShowChosenKind();
}

void frmBrowse::ShowChosenKind() {
  OfferKind();
  if (!Adding()) return;
  StartPath();
  TextAddName.SetFocus();
}

void frmBrowse::OfferKind() {
  const bool folder = ChoosesFolder();
  const bool program = state_.WhatToAdd == AddKind::Program;
  CommandFindPath.SetEnabled(program);
  LabelFindHow.SetEnabled(program);
  LabelFindResult.SetEnabled(program);
  if (folder) FileWork.SetListIndex(-1);
  OfferFiles(state_.WhatToAdd == AddKind::File ? EveryFile : Programs, !folder);
}

void frmBrowse::StartPath() {
  TextAddPath.SetText(ChoosesFolder() ? DirWork.Path() : std::wstring());
  EnableNameBox(ChoosesFolder() || FileWork.ListIndex() != -1);
}

void frmBrowse::OfferFiles(std::wstring_view pattern, bool enabled) {
  FileWork.SetPattern(pattern);
  FileWork.SetBackColor(enabled ? form::Color::WindowBackground : form::Color::Silver);
  FileWork.SetEnabled(enabled);
  LabelAddSelect.SetEnabled(enabled);
}

// --- browsing

void frmBrowse::ReadLists() {
  DriveWork.Refresh();
  DirWork.Refresh();
  if (FileWork.Path() == DirWork.Path())
    FileWork.Refresh();
  else
    FileWork.SetPath(DirWork.Path());
  NoteDrive();
  NoteFolder();
}

void frmBrowse::DriveWork_Change() {
  const service::Language& language = context_.Services.Language;
  const std::wstring drive = DriveWork.Drive();
  const bool there = language.Lower(text::DriveName(DirWork.Path())) == language.Lower(drive);
  if (!there && !DirWork.SetPath(drive)) {
    DriveWork.SetDrive(DirWork.Path());
    context_.Messages.ShowListMessage(message::MessageDriveNotReady);
    return;
  }
  NoteDrive();
  NoteFolder();
}

void frmBrowse::DirWork_Change() {
  NoteFolder();  // first, because reading the lists below may fail
  // The files are not visible until the box is first opened.
  if (lastUse_ != BrowseUse::None) FileWork.SetPath(DirWork.Path());
  DriveWork.SetDrive(DirWork.Path());
  if (Opening()) CommandSelectOK.SetEnabled(false);
  if (!Adding()) return;
  FrameAddedInfo.SetVisible(false);
  TextAddPath.SetText(ChoosesFolder() ? DirWork.Path() : std::wstring());
  // A user of the keyboard continues through the drives and folders.
  const bool byKeyboard = DirWork.Input() == form::ListInput::Enter || DriveWork.Input() == form::ListInput::Walk ||
                          DriveWork.Input() == form::ListInput::Enter;
  if (!byKeyboard) TextAddName.SetFocus();
}

void frmBrowse::DirWork_Unreachable() {
  if (context_.Services.FileSystem.DriveReady(DirWork.Path()))
    DirWork.Refresh();
  else
    context_.Messages.ShowListMessage(message::MessageDriveNotReady);
}

void frmBrowse::NoteDrive() {
  const std::wstring& folder = DirWork.Path();
  const std::wstring_view drive = text::DriveName(folder);
  const bool lettered = drive.size() == 2;
  state_.SelectedDriveLetter = context_.Services.Language.Upper(drive.substr(0, lettered ? 1 : 0));
  state_.BrowseDriveType = DriveTypeOf(context_.Services, folder);
}

void frmBrowse::NoteFolder() {
  const std::wstring& folder = DirWork.Path();
  state_.LastFixedFolder = state_.BrowseDriveType == FixedDrive ? folder : std::wstring();
  if (!context_.Environment.RunMode) context_.Settings.RememberedBrowseFolder = state_.LastFixedFolder;
  state_.BrowseFolder = folder;
  if (!folder.ends_with(L'\\')) state_.BrowseFolder += L'\\';
}

void frmBrowse::FileWork_Click() {
  CommandSelectOK.SetEnabled(FileWork.ListIndex() != -1);
  PickFile(FileWork.Text());
  if (Adding() && FileWork.Input() != form::ListInput::Walk) TextAddName.SetFocus();
}

void frmBrowse::PickFile(std::wstring_view name) {
  FrameAddedInfo.SetVisible(false);
  if (!Adding()) return;
  TextAddName.SetText({});
  TextAddPath.SetText(std::wstring(state_.BrowseFolder).append(name));
}

void frmBrowse::FileWork_DblClick() {
  if (Opening()) CommandSelectOK.DoClick();
}

// --- adding

void frmBrowse::TextAddPath_Change() {
  state_.PickerDriveType = NoPickerDriveType;  // it belonged to the previous path
  TextAddPath.SetToolTip(TextAddPath.Text());  // most paths are longer than the box
  EnableNameBox(!TextAddPath.Text().empty());
}

void frmBrowse::EnableNameBox(bool enable) {
  TextAddName.SetEnabled(enable);
  TextAddName.SetBackColor(enable ? form::Color::WindowBackground : form::Color::Silver);
}

void frmBrowse::TextAddName_Change() { CommandAddOK.SetEnabled(!TextAddName.Text().empty()); }

void frmBrowse::TextAddName_KeyPress(wchar_t& character) {
  if (character == form::CharEnter && !TextAddName.Text().empty()) CommandAddOK.DoClick();
}

void frmBrowse::CommandAddOK_Click() {
  PictureNo.SetFocus();
  const std::wstring path = TextAddPath.Text();
  if (path.empty()) return FileWork.SetFocus();  // a name is left over, but nothing is chosen
  form::Control& source = PathSource();
  if (RefusedByPlace(path)) return source.SetFocus();
  const list::LaunchGroup group = GroupOf(context_.Services, state_.WhatToAdd, path);
  const list::AddBox box{TextAddPath, TextAddName, FrameAddedInfo};
  const list::AddResult result =
      list::AddUnlessListed(box, list_, group, BannerOf(group), context_.Messages, context_.Services.Language);
  if (result == list::AddResult::PathListed || (result == list::AddResult::Added && !ChoosesFolder()))
    FileWork.Refresh();
  if (result == list::AddResult::PathListed || result == list::AddResult::Full) source.SetFocus();
  if (result == list::AddResult::Added) context_.Host.ItemAdded();
}

form::Control& frmBrowse::PathSource() {
  if (ChoosesFolder()) return DirWork;
  if (state_.PickerDriveType != NoPickerDriveType) return CommandFindPath;
  return FileWork;
}

bool frmBrowse::RefusedByPlace(std::wstring_view path) {
  const state::Environment& environment = context_.Environment;
  if (context_.Services.Language.Upper(path.substr(0, 1)) == environment.MediaDriveLetter) return false;
  const std::wstring_view refusal =
      environment.RunMode ? RemovableMediaRule(state_, environment) : FixedDiskRule(state_);
  if (refusal.empty()) return false;
  if (environment.RunMode) context_.Messages.State.EnableRememberAfterMessage = environment.MachineUnknown;
  context_.Messages.ShowTextMessage(refusal);
  return true;
}

// --- leaving

void frmBrowse::CommandSelectOK_Click() {
  if (FileWork.ListIndex() == -1) return;
  const int opened = context_.Host.OpenPanelIndex();
  const std::wstring path = state_.BrowseFolder + FileWork.Text();
  context_.Host.ClosePanel();  // which also clears the selection
  const bool run = opened == static_cast<int>(panel::menu::List) || IsProgram(context_.Services, path);
  context_.Messages.ShowListMessage(run ? context_.Starters.RunProgramFile(path) : context_.Starters.OpenItem(path));
}

// --- the finder

void frmBrowse::CommandFindPath_MouseDown(form::MouseButton button) {
  if (button != form::MouseButton::Left || finder_.FinderActive()) return;
  finder_.Press(WindowOf(CommandFindPath));
  TimerFindPath.SetEnabled(true);
}

void frmBrowse::TimerFindPath_Timer() {
  try {
    finder_.Tick();
  } catch (...) {
    StopFinder();
    throw;
  }
  if (!AcceptsInput() || finder_.LostRelease()) StopFinder();
}

void frmBrowse::CommandFindPath_MouseUp(form::MouseButton button) {
  if (button != form::MouseButton::Left || !finder_.FinderActive()) return;
  TimerFindPath.SetEnabled(false);
  const std::wstring path = finder_.Release();
  if (path.empty()) {
    context_.Messages.ShowListMessage(message::MessageExecutableNotFound);
    return;
  }
  FileWork.SetListIndex(-1);  // so that a click on the same file chooses it again
  TextAddPath.SetText(path);
  state_.PickerDriveType = DriveTypeOf(context_.Services, std::wstring_view(path).substr(0, 3));
  TextAddName.SetFocus();
}

void frmBrowse::StopFinder() {
  TimerFindPath.SetEnabled(false);
  finder_.Cancel();
}

}  // namespace vantor::add
