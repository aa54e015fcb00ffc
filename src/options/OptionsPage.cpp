#include "options/OptionsPage.h"

#include <algorithm>
#include <numeric>

#include "form/Grid.h"
#include "list/MachineIdentity.h"
#include "panel/frmChoose.h"

namespace vantor::options {

using form::Twips;

using namespace form::grid;

constexpr Twips LeastWidth = 3600;

constexpr std::array<std::wstring_view, OptionsPage::Count> Captions{L"Start With Windows", L"Always On Top",
                                                                     L"Show Add URL Box At Start"};
constexpr std::wstring_view MachineRunValue =
    L"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run\\OrbelsLauncher";
constexpr std::wstring_view UserRunValue =
    L"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run\\OrbelsLauncher";
constexpr int NormalWindow = 1;

OptionsPage::OptionsPage(panel::frmChoose& form, const panel::PanelContext& context, OptionFlags& options)
    : Page(form, panel::menu::Options, {L"FrameOptions", L"Preferences", L"Options", {}}),
      context_(context),
      options_(options) {
  Dress();
  ConnectEvents();
}

void OptionsPage::Dress() {
  for (std::size_t i = 0; i < Count; ++i) CheckOptionMain[i].SetCaption(Captions[i]);
  CommandOptionShortcut.Dress(L"Create Desktop Shortcut");
  CommandOptionRemember.Dress(L"Remember My Computer");
  CommandOptionOK.Dress(L"OK");
  CommandOptionCancel.Dress(L"Cancel");
  CommandOptionRemember.SetEnabled(false);
}

void OptionsPage::ConnectEvents() {
  message::Messages& messages = context_.Messages;
  for (std::size_t i = 0; i < Count; ++i) {
    messages.Connect(CheckOptionMain[i], CheckOptionMain[i].Click, L"Click", this, &OptionsPage::CheckOptionMain_Click,
                     i);
    CheckOptionMain[i].Enter = [this] { CommandOptionOK.DoClick(); };
  }
  messages.Connect(CommandOptionOK, CommandOptionOK.Click, L"Click", this, &OptionsPage::CommandOptionOK_Click);
  messages.Connect(CommandOptionCancel, CommandOptionCancel.Click, L"Click", this,
                   &OptionsPage::CommandOptionCancel_Click);
  messages.Connect(CommandOptionShortcut, CommandOptionShortcut.Click, L"Click", this,
                   &OptionsPage::CommandOptionShortcut_Click);
  messages.Connect(CommandOptionRemember, CommandOptionRemember.Click, L"Click", this,
                   &OptionsPage::CommandOptionRemember_Click);
}

form::Size OptionsPage::LayOut() {
  CommandOptionRemember.SetVisible(context_.Environment.RunMode);
  Twips width = LeastWidth;
  for (const form::CheckBox& box : CheckOptionMain) {
    width = std::max(width, box.LeastSize().Width + 2 * Margin);
  }
  for (const form::CommandButton* button : {&CommandOptionShortcut, &CommandOptionRemember}) {
    width = std::max(width, button->FullWidth() + 2 * Margin);
  }
  Twips top = FrameTop;
  for (form::CheckBox& box : CheckOptionMain) {
    box.SetBounds({Margin, top, width - 2 * Margin, box.HeightFor(CheckHeight)});
    top = box.Bottom() + Gap;
  }
  top += Gap;
  const auto placeWide = [&](form::CommandButton& button) {
    if (!button.Visible()) return;
    button.SetBounds({Margin, top, width - 2 * Margin, ButtonHeight});
    top += ButtonHeight + Gap;
  };
  placeWide(CommandOptionShortcut);
  placeWide(CommandOptionRemember);
  top += Margin;
  const Twips cancelWidth = CommandOptionCancel.FullWidth();
  const Twips okWidth = CommandOptionOK.FullWidth();
  const Twips cancelLeft = width - Margin - cancelWidth;
  CommandOptionCancel.SetBounds({cancelLeft, top, cancelWidth, ButtonHeight});
  CommandOptionOK.SetBounds({cancelLeft - Gap - okWidth, top, okWidth, ButtonHeight});
  return {width, top + ButtonHeight + Margin};
}

void OptionsPage::Prepare() {
  const std::array<std::int16_t, Count> options{options_.StartWithWindows, options_.AlwaysOnTop,
                                                options_.ShowAddUrlAtStart};
  for (std::size_t i = 0; i < Count; ++i) {
    optionBits_[i] = static_cast<std::int16_t>(options[i] << i);
    CheckOptionMain[i].SetValue(options[i] != 0);
  }
  pendingOptionMask_ = context_.Settings.OptionMask;
  CommandOptionOK.SetEnabled(false);
}

void OptionsPage::CheckOptionMain_Click(std::size_t index) {
  optionBits_[index] = static_cast<std::int16_t>(CheckOptionMain[index].Value() ? 1 << index : 0);
  pendingOptionMask_ = std::accumulate(optionBits_.begin(), optionBits_.end(), std::int16_t{0},
                                       [](auto sum, auto bit) { return static_cast<std::int16_t>(sum + bit); });
  CommandOptionOK.SetEnabled(pendingOptionMask_ != context_.Settings.OptionMask);
}

void OptionsPage::CommandOptionOK_Click() {
  const OptionFlags chosen = DecodeOptionMask(pendingOptionMask_);
  if (chosen.StartWithWindows != options_.StartWithWindows) SetStartWithWindows(chosen.StartWithWindows != 0);
  context_.Settings.OptionMask = pendingOptionMask_;
  options_ = chosen;
  Host().ClosePanel();
}

void OptionsPage::SetStartWithWindows(bool start) {
  service::ScriptShell& shell = context_.Services.ScriptShell;
  const std::wstring machines = shell.RegistryRead(MachineRunValue);
  const std::wstring users = shell.RegistryRead(UserRunValue);
  if (!start) {
    if (!machines.empty()) shell.RegistryDelete(MachineRunValue);
    if (!users.empty()) shell.RegistryDelete(UserRunValue);
    return;
  }
  const std::wstring command = ProgramFile();
  if (command == (machines.empty() ? users : machines)) return;
  shell.RegistryWrite(MachineRunValue, command);
  // Only an administrator may write there. For other users the bar starts at their own sign-in.
  if (shell.RegistryRead(MachineRunValue) != command) {
    if (users != command) shell.RegistryWrite(UserRunValue, command);
  } else if (!users.empty()) {
    shell.RegistryDelete(UserRunValue);
  }
}

void OptionsPage::CommandOptionShortcut_Click() {
  const std::wstring name(state::ProductName);
  const std::wstring desktop = context_.Services.ScriptShell.SpecialFolder(L"Desktop");
  if (desktop.empty()) return;
  const bool saved =
      context_.Services.ScriptShell.SaveShortcut({.File = desktop + L"\\" + name + L".lnk",
                                                  .TargetPath = ProgramFile(),
                                                  .WindowStyle = NormalWindow,
                                                  .Hotkey = L"CTRL+SHIFT+L",
                                                  .IconLocation = ProgramFile() + L", 0",
                                                  .Description = name,
                                                  .WorkingDirectory = context_.Environment.ProgramFolder});
  if (saved) context_.Messages.ShowTextMessage(L"A shortcut for " + name + L" has been placed on your Desktop.");
}

void OptionsPage::CommandOptionRemember_Click() {
  if (list::RememberMyComputer(context_.Services, context_.Messages, context_.Environment))
    CommandOptionRemember.SetEnabled(false);
}

std::wstring OptionsPage::ProgramFile() const {
  return (context_.Environment.ProgramFolder + std::wstring(state::ProductName)).append(L".exe");
}

}  // namespace vantor::options
