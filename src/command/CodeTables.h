#pragma once

#include <array>
#include <string_view>

#include "command/CommandState.h"
#include "message/Messages.h"
#include "product/Product.h"

namespace vantor::command {

// The fixed words of the command language. Their order is the order in which type-ahead searches them.

/// The scripting shell uses the same names for the folders.
inline constexpr std::array<std::wstring_view, 16> SpecialFolderNames{
    L"AllUsersDesktop", L"AllUsersStartMenu", L"AllUsersPrograms", L"AllUsersStartup", L"Desktop",  L"Favorites",
    L"Fonts",           L"MyDocuments",       L"NetHood",          L"PrintHood",       L"Programs", L"Recent",
    L"SendTo",          L"StartMenu",         L"Startup",          L"Templates",
};

struct ControlPanelWord {
  std::wstring_view Word;
  std::wstring_view CommandLine;  // "" for a word that starts nothing
  bool Offered;                   // whether type-ahead completes to it
};

inline constexpr std::array<ControlPanelWord, 22> ControlPanelNames{{
    {L"Accessibility", L"rundll32.exe shell32.dll,Control_RunDLL access.cpl", true},
    {L"AddNewHardware", L"rundll32.exe shell32.dll,Control_RunDLL sysdm.cpl @1", false},
    {L"AddNewPrinter", L"rundll32.exe shell32.dll,SHHelpShortcuts_RunDLL AddPrinter", true},
    {L"AddRemove", L"rundll32.exe shell32.dll,Control_RunDLL appwiz.cpl", true},
    {L"Appearance", L"rundll32.exe shell32.dll,Control_RunDLL desk.cpl,,2", true},
    {L"Background", L"rundll32.exe shell32.dll,Control_RunDLL desk.cpl,,0", true},
    {L"ControlPanel", L"rundll32.exe shell32.dll,Control_RunDLL", true},
    {L"DateTime", L"rundll32.exe shell32.dll,Control_RunDLL timedate.cpl", true},
    {L"DesktopSettings", L"rundll32.exe shell32.dll,Control_RunDLL desk.cpl,,3", true},
    {L"Dialup", L"rundll32.exe rnaui.dll,RnaWizard", false},
    {L"Fonts", L"", false},
    {L"Internet", L"rundll32.exe shell32.dll,Control_RunDLL inetcpl.cpl", true},
    {L"Joystick", L"rundll32.exe shell32.dll,Control_RunDLL joy.cpl", true},
    {L"Keyboard", L"rundll32.exe shell32.dll,Control_RunDLL main.cpl @1", true},
    {L"Modem", L"rundll32.exe shell32.dll,Control_RunDLL modem.cpl", true},
    {L"Mouse", L"rundll32.exe shell32.dll,Control_RunDLL main.cpl @0", true},
    {L"Multimedia", L"rundll32.exe shell32.dll,Control_RunDLL mmsys.cpl", true},
    {L"Printers", L"rundll32.exe shell32.dll,Control_RunDLL main.cpl @2", false},
    {L"Regional", L"rundll32.exe shell32.dll,Control_RunDLL intl.cpl", true},
    {L"Screensaver", L"rundll32.exe shell32.dll,Control_RunDLL desk.cpl,,1", true},
    {L"System", L"rundll32.exe shell32.dll,Control_RunDLL sysdm.cpl", true},
    {L"Themes", L"rundll32.exe shell32.dll,Control_RunDLL desk.cpl,,4", false},
}};

/// The maker's addresses and, at the same indexes, the subjects of mails to them.
inline constexpr std::array MailAddresses{product::BugReportAddress, product::SuggestionsAddress,
                                          product::SupportAddress};
inline constexpr std::array<std::wstring_view, 3> MailSubjects{message::BugMailSubject, L"Vantor - Suggestions",
                                                               L"Vantor - Need Support"};

/// Part of the start sequence: no panel is open and nothing is completed. The tables themselves are constants.
inline void InitCodeTables(CommandState& state) { state = {}; }

}  // namespace vantor::command
