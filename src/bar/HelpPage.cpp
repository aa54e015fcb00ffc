#include "bar/HelpPage.h"

#include <algorithm>
#include <string>

namespace vantor::bar {

namespace {

using form::Twips;

constexpr Twips LineHeight = 315;
constexpr Twips ProseWidth = 4200;

constexpr std::wstring_view TypedLines =
    L"p=notepad\r\nf=C:\\letter.doc\r\nd=C:\\Music\r\nd.Desktop\r\nc.Mouse\r\nw;example.org\r\nc/example\r\n"
    L"e=ann@example.org\r\nt=5550100\r\np-  f-  d-  w-";
constexpr std::wstring_view TypedMeanings =
    L"runs a program\r\nopens a file\r\nopens a folder\r\nopens a special folder\r\nopens a Control Panel page\r\n"
    L"opens a web site\r\nopens www.example.com\r\nwrites a mail\r\ndials a telephone number\r\n"
    L"and a name: opens it from your list";
constexpr std::wstring_view TypedCompanion = L"\r\nr-";
constexpr std::wstring_view TypedCompanionMeaning = L"\r\nand a name: runs a program of \"!\"";
// The buttons before and after that of the maker's other programs.
constexpr std::wstring_view ButtonLines = L"F1\r\n+   F2\r\n>   F3\r\nL   F4\r\n";
constexpr std::wstring_view ButtonMeanings =
    L"unfolds the box that adds web sites\r\nadds programs, files and folders to your list\r\nopens any file\r\n"
    L"opens, renames and removes what is in your list\r\n";
constexpr std::wstring_view CompanionButton = L"!   F5\r\n";
constexpr std::wstring_view CompanionButtonMeaning = L"runs Orbel's other programs\r\n";
constexpr std::wstring_view LaterButtonLines = L"P   F6\r\n?   F7\r\nC   F8\r\nF9, Esc\r\nF10\r\nF12";
constexpr std::wstring_view LaterButtonMeanings =
    L"preferences\r\nthis help\r\nall codes and their words\r\n"
    L"minimizes the bar; Esc closes an open panel first\r\nsaves and exits\r\nempties the line";

}  // namespace

HelpPage::HelpPage(form::Form& form, const start::Environment& environment)
    : FrameHelp(form, L"FrameHelp"),
      environment_(environment),
      typing_{text_.Add(FrameHelp, L"Type a code and what it is about, then press Enter", true),
              text_.Add(FrameHelp, {}), text_.Add(FrameHelp, {})},
      completion_(text_.Add(
          FrameHelp, L"Names and words complete while you type. Enter takes the completion, Backspace drops it.")),
      buttons_{text_.Add(FrameHelp, L"Buttons and keys", true), text_.Add(FrameHelp, {}), text_.Add(FrameHelp, {})},
      adding_{text_.Add(FrameHelp, L"Adding to your list", true),
              text_.Add(FrameHelp,
                        L"Press + (F2), say whether it is a program, a file or a folder, and pick it; or press \"Find "
                        L"Program Path\" and let go over the window of a running program. Type a name for it and press "
                        L"Enter.\r\n\r\nFor a web site press F1, type its address and a name, and press Enter.")},
      data_{text_.Add(FrameHelp, L"Your data", true),
            text_.Add(FrameHelp,
                      L"Your list and your preferences are saved when the program exits, in this folder and nowhere "
                      L"else. Copy it to take them along.")},
      stick_{text_.Add(FrameHelp, L"On a stick", true),
             text_.Add(FrameHelp,
                       L"Started from a removable drive, Vantor keeps its data there. What lies on the drive stays in "
                       L"your list on every computer, whatever letter the drive gets.\r\n\r\nThings on the fixed "
                       L"disks of one computer can be in the list too: press \"Remember My Computer\" in the "
                       L"preferences there. On other computers they rest unseen.")} {
  FrameHelp.SetCaption(L"Help");
  FrameHelp.SetVisible(false);
  TextHelpFolder.SetLocked(true);
  TextHelpFolder.SetBackColor(form::Color::ButtonFace);
  TextHelpFolder.SetAccessibleName(L"Data folder");
}

void HelpPage::Prepare() {
  const bool companions = !environment_.Companions.empty();
  const auto ifThere = [companions](std::wstring_view text) { return companions ? text : std::wstring_view(); };
  typing_.Left.SetCaption(std::wstring(TypedLines).append(ifThere(TypedCompanion)));
  typing_.Right.SetCaption(std::wstring(TypedMeanings).append(ifThere(TypedCompanionMeaning)));
  buttons_.Left.SetCaption(std::wstring(ButtonLines).append(ifThere(CompanionButton)).append(LaterButtonLines));
  buttons_.Right.SetCaption(
      std::wstring(ButtonMeanings).append(ifThere(CompanionButtonMeaning)).append(LaterButtonMeanings));
  TextHelpFolder.SetText(environment_.DataFolder);
}

form::Size HelpPage::LayOut() {
  const Twips tablesWidth = std::max(typing_.Width(), buttons_.Width());
  Twips left = PageMargin;
  Twips bottom = typing_.PlaceAt(left, PageTop, tablesWidth) + UnderHead;
  bottom = Place(completion_, left, bottom, tablesWidth);
  bottom = buttons_.PlaceAt(left, bottom + SectionGap, tablesWidth);

  left += tablesWidth + ColumnGap;
  Twips y = adding_.PlaceAt(left, PageTop, ProseWidth);
  y = data_.PlaceAt(left, y + SectionGap, ProseWidth);
  TextHelpFolder.SetBounds({left, y + UnderHead, ProseWidth, LineHeight});
  y = stick_.PlaceAt(left, TextHelpFolder.Bottom() + SectionGap, ProseWidth);
  return {left + ProseWidth + PageMargin, std::max(bottom, y) + PageMargin};
}

}  // namespace vantor::bar
