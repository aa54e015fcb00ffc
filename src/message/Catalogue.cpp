#include "message/Catalogue.h"

#include <algorithm>
#include <iterator>

#include "product/Product.h"

// These are the product's exact texts; their spelling is not to be corrected.

namespace vantor::message {
namespace {

constexpr CatalogueEntry Catalogue[] = {
    {Selector::User, MessageGetUserName,
     L"Thank you for trying Vantor.\r\n\r\n"
     L"If you want to be addressed by your name of choice then please enter that name in the above box. Use only "
     L"alphabets please.\r\n\r\n"
     L"Vantor will address you as **myFriend** if you do not enter a name.\r\n\r\n"
     L"orbel\r\n{contact}",
     L"Your Name Please", L"Cancel", L"Input0"},
    {Selector::User, MessageChangeUserName,
     L"To change your user name please type the new name in the above box. Please use only alphabets.",
     L"New Name Please", L"Cancel", L"Input0"},
    {Selector::User, MessageMustChoosePicture, L"To change your picture you must choose a Picture file first."},
    {Selector::User, MessageIncorrectPicture,
     L"Selected file either not a Picture file, or not a type of file that this Program can Support. Try a .jpg or "
     L".bmp file please."},

    {Selector::Stop, MessageSmallScreen,
     L"Screen resolution must be at least 1024x768 for Vantor to run correctly. Since your screen resolution is "
     L"smaller than that, Vantor will will exit now."},
    {Selector::Stop, MessageNeedSriptRuntime,
     L"Your machine need Microsoft Scripting Runtime update to run this Program.\r\n\r\n"
     L"Please download the installation package of the Program which includes all necessary files need to run "
     L"it.\r\n\r\n"
     L"Installation package is available at {site}."},
    {Selector::Stop, MessageMediaUnknown, L"The Program encountered a problem and will exit now."},
    {Selector::Stop, MessageMediaCDRom,
     L"This Program runs from Removable Media, such as, Floppy or Flash Drive but not from CD/DVD-ROM.\r\n\r\n"
     L"Program will exit now."},
    {Selector::Stop, MessageMediaRunCancel,
     L"To run this Program from a Removable Media there is a simple setup process to follow. Untill that is done the "
     L"Program may not work from this Media properly.\r\n\r\n"
     L"Please check Help at {site} for setting up this Program to run from a Removable Media."},
    {Selector::Stop, MessageMediaCreateError,
     L"There was problem writing Data on the Media from which you are trying to run the Program.\r\n"
     L"Program can not run."},
    {Selector::Stop, MessageRecreateMedia,
     L"To run the Program from this Media Program setup need to be Reset. Before you do so the Folders named Orbel in "
     L"the Root of the Media and Vantor in the same Folder with this Program must be Renamed, Moved or "
     L"Removed.\r\n\r\n"
     L"To find out how to setup the Program to run from a Removable Media please check Help at {site}."},

    {Selector::List, MessageFisrtStart,
     L"If you missed it, main program window is at the top left corner of your screen.\r\n"
     L"You can drag it by clicking left mouse button on small spaces between the buttons or buttons and Text box. "
     L"Buttons from left :\r\n"
     L"\r\n"
     L"    1. Show/Hide Add URL Box.            2. Show | Hide Add To List Box.\r\n"
     L"    3. Show | Hide Open Box.                 4. Show | Hide Open From List Box.\r\n"
     L"    5. Show | Hide Run (Orbel's) Box.   6. Show | Hide Preferences Box.\r\n"
     L"    7. Show | Hide Help Box.                   8. Show | Hide Code List Box.\r\n"
     L"    9. Mimimize Button.                           10. Exit Button.\r\n"
     L"\r\n"
     L"{companions}\r\n"
     L"\r\n"
     L"You will type Code and Command in the Text Box (blue part).\r\n"
     L"For Code and Command please check Help."},
    {Selector::List, MessagePathAlreadyListed,
     L"Selected item has already been included in the List. There is no need to add it again."},
    {Selector::List, MessageNameAlreadyListed,
     L"The name you typed is listed name for another item in it's group.\r\n\r\n"
     L"Two different items in the same group (Groups : Program, File, Folder and Web Site) can't be listed with same "
     L"name. Type a different name please."},
    {Selector::List, MessageEmptyList,
     L"Launch List is empty.\r\n\r\n"
     L"To add Program, File, Folder or Web Site in your Launch List please click on 'Add To List' button."},
    {Selector::List, MessageProgramDetermineError,
     L"There was some error. Could not run the program or the program required to open selected parameter."},
    {Selector::List, MessageProgramExplorerError, L"There was some error. Could not open the Folder."},
    {Selector::List, MessageProgramRunError, L"There was some error. Could not run the program."},
    {Selector::List, MessageProgramStartError, L"There was some error. Could not start the required program."},
    {Selector::List, MessageDriveNotReady, L"The Drive you are trying to select is not ready."},
    {Selector::List, MessageExecutableNotFound, L"Could not find the Executable Path. Reason undetermined."},
    {Selector::List, MessageAddNotFound, L"Seleted item doesn't exist.\r\nFailed to add."},
};

constexpr std::wstring_view BugReportQuestion =
    L"There was some error.\r\n"
    L"It will be helpful if you please report it to {bugs} .\r\n"
    L"Just include the following message in your email :\r\n"
    L"    {key}\r\n"
    L"\r\n"
    L"Do you want to report this bug now?";

struct Replacement {
  std::wstring_view Word;
  std::wstring_view By;
};

/// Other text in braces stays as it is.
template <std::size_t Count>
std::wstring Replace(std::wstring_view text, const Replacement (&replacements)[Count]) {
  std::wstring result;
  while (!text.empty()) {
    const auto* const word = std::find_if(std::begin(replacements), std::end(replacements),
                                          [&](const Replacement& each) { return text.starts_with(each.Word); });
    const bool found = word != std::end(replacements);
    // A brace that does not start such a word is an ordinary character.
    const std::size_t taken = found ? word->Word.size() : std::min(text.find(L'{', 1), text.size());
    result += found ? word->By : text.substr(0, taken);
    text.remove_prefix(taken);
  }
  return result;
}

}  // namespace

const CatalogueEntry* FindMessage(Selector selector, MessageKey key) {
  const auto* const found = std::find_if(std::begin(Catalogue), std::end(Catalogue), [&](const CatalogueEntry& entry) {
    return entry.Selector == selector && entry.Key == key;
  });
  return found != std::end(Catalogue) ? found : nullptr;
}

std::wstring ExpandText(std::wstring_view text, bool companionsPresent) {
  const std::wstring_view companions =
      companionsPresent ? L"" : L"Since you don't have any more Orbel's program #5 button is not visible.";
  return Replace(
      text, {{L"{site}", product::MakerSite}, {L"{contact}", product::ContactAddress}, {L"{companions}", companions}});
}

std::wstring BugReportText(std::wstring_view bugKey) {
  return Replace(BugReportQuestion, {{L"{bugs}", product::BugReportAddress}, {L"{key}", bugKey}});
}

}  // namespace vantor::message
