#include "add/PlaceRules.h"

#include <utility>

namespace vantor::add {
namespace {

constexpr std::wstring_view NotFixed =
    L"You can add Program, File and Folder to Launch List only if those are in a fixed Hard Disk. This one, that "
    L"you are trying to add, doesn't seems to be on a fixed Hard Disk.";

constexpr std::wstring_view NoMachineYet =
    L"While Vantor runs from a Removable Media - it can add Program, File and Folder to Launch List only from it's "
    L"own Drive and from fixed Hard Drive of only one selected machine."
    L"\r\n\r\n"
    L"The selected machine need to be identified first."
    L"\r\n\r\n"
    L"If this is the machine from which you want to add items to Launch List then please close this window by "
    L"clicking 'OK' button and then in the main window click on 'Preferences' button and then on 'Remember My "
    L"Computer' button in the Preferences box."
    L"\r\n\r\n"
    L"After doing so you should be able to add items to Launch List from this machine if those items are on a fixed "
    L"Hard Disk.";

constexpr std::wstring_view NotFixedOnMachine =
    L"From this machine you can add Program, File and Folder to Launch List but only if those are on a fixed Hard "
    L"Disk. This one, that you are trying to add, doesn't seems to be on a fixed Hard Disk.";

constexpr std::wstring_view OtherMachine =
    L"While Vantor runs from a Removable Media - Program File and Folder if not on the same Media with Vantor, can "
    L"be added to Launch List only From one machine."
    L"\r\n\r\n"
    L"You have already indentifed a machine from which to add to Launch List. This is not that machine.";

/// The drive type that the finder found, which takes precedence over the folder shown and is used only once.
std::int16_t TakeDriveType(BrowseState& browse) {
  const std::int16_t picked = std::exchange(browse.PickerDriveType, NoPickerDriveType);
  return picked != NoPickerDriveType ? picked : browse.BrowseDriveType;
}

}  // namespace

std::int16_t DriveTypeOf(const service::Services& services, std::wstring_view path) {
  return static_cast<std::int16_t>(services.FileSystem.DriveType(path).value_or(0));
}

bool OnFixedDrive(const service::Services& services, std::wstring_view path) {
  return path.size() >= 3 && path.substr(1, 2) == L":\\" && DriveTypeOf(services, path.substr(0, 3)) == FixedDrive;
}

std::wstring_view FixedDiskRule(BrowseState& browse) {
  return TakeDriveType(browse) == FixedDrive ? std::wstring_view() : NotFixed;
}

std::wstring_view RemovableMediaRule(BrowseState& browse, const state::Environment& environment) {
  const std::int16_t driveType = TakeDriveType(browse);
  if (environment.MachineUnknown) return NoMachineYet;
  if (!environment.MachineRemembered) return OtherMachine;
  return driveType == FixedDrive ? std::wstring_view() : NotFixedOnMachine;
}

}  // namespace vantor::add
