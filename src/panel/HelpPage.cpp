#include "panel/HelpPage.h"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

#include "form/Grid.h"

namespace vantor::panel {

namespace {

using form::Twips;
using namespace form::grid;

constexpr Twips ProseWidth = 4200;

/// What is typed or pressed, and what it does.
struct Row {
  std::wstring_view Keys;
  std::wstring_view Meaning;
  bool ForCompanions = false;  // shown only if one of the maker's other programs is installed
};

constexpr Row Typed[] = {{L"p=notepad", L"runs a program"},
                         {L"f=C:\\letter.doc", L"opens a file"},
                         {L"d=C:\\Music", L"opens a folder"},
                         {L"d.Desktop", L"opens a special folder"},
                         {L"c.Mouse", L"opens a Control Panel page"},
                         {L"w;example.org", L"opens a web site"},
                         {L"c/example", L"opens www.example.com"},
                         {L"e=ann@example.org", L"writes a mail"},
                         {L"t=5550100", L"dials a telephone number"},
                         {L"p-  f-  d-  w-", L"and a name: opens it from your list"},
                         {L"r-", L"and a name: runs a program of \"!\"", true}};
constexpr Row Pressed[] = {{L"»   F1", L"unfolds the box that adds web sites"},
                           {L"+   F2", L"adds programs, files and folders to your list"},
                           {L">   F3", L"opens any file"},
                           {L"L   F4", L"opens, renames and removes what is in your list"},
                           {L"!   F5", L"runs Orbel's other programs", true},
                           {L"P   F6", L"preferences"},
                           {L"?   F7", L"this help"},
                           {L"C   F8", L"all codes and their words"},
                           {L"–   F9, Esc", L"minimizes the bar; Esc closes an open panel first"},
                           {L"×   F10", L"saves and exits"},
                           {L"F12", L"empties the line"}};

}  // namespace

HelpPage::HelpPage(frmChoose& form, const PanelContext& context)
    : Page(form, menu::Help, {L"FrameHelp", L"Help", L"Help", L"Hide"}),
      environment_(context.Environment),
      typing_{text_.Add(Frame, L"Type a code and what it is about, then press Enter", true), text_.Add(Frame, {}),
              text_.Add(Frame, {})},
      completion_(text_.Add(Frame,
                            L"Names and words complete while you type. Enter takes the completion, Backspace drops it; "
                            L"Down walks through all that fits.")),
      buttons_{text_.Add(Frame, L"Buttons and keys", true), text_.Add(Frame, {}), text_.Add(Frame, {})},
      adding_{text_.Add(Frame, L"Adding to your list", true),
              text_.Add(Frame,
                        L"Press + (F2), say whether it is a program, a file or a folder, and pick it; or press \"Find "
                        L"Program Path\" and let go over the window of a running program. Type a name for it and press "
                        L"Enter.\r\n\r\nFor a web site press F1, type its address and a name, and press Enter.")},
      data_{text_.Add(Frame, L"Your data", true),
            text_.Add(Frame,
                      L"Your list and your preferences are saved when the program exits, in this folder and nowhere "
                      L"else. Copy it to take them along.")},
      stick_{text_.Add(Frame, L"On a stick", true),
             text_.Add(Frame,
                       L"Started from a removable drive, Vantor keeps its data there. What lies on the drive stays in "
                       L"your list on every computer, whatever letter the drive gets.\r\n\r\nThings on the fixed "
                       L"disks of one computer can be in the list too: press \"Remember My Computer\" in the "
                       L"preferences there. On other computers they rest unseen.")} {
  TextHelpFolder.SetLocked(true);
  TextHelpFolder.SetBackColor(form::Color::ButtonFace);
  TextHelpFolder.SetAccessibleName(L"Data folder");
}

void HelpPage::Prepare() {
  const bool companions = !environment_.Companions.empty();
  const auto column = [=](std::span<const Row> rows, std::wstring_view Row::*side) {
    return Lines(rows, [=](const Row& row) { return row.ForCompanions && !companions ? L"" : row.*side; });
  };
  typing_.Left.SetCaption(column(Typed, &Row::Keys));
  typing_.Right.SetCaption(column(Typed, &Row::Meaning));
  buttons_.Left.SetCaption(column(Pressed, &Row::Keys));
  buttons_.Right.SetCaption(column(Pressed, &Row::Meaning));
  TextHelpFolder.SetText(environment_.DataFolder);
}

form::Size HelpPage::LayOut() {
  const Twips tablesWidth = std::max(typing_.Width(), buttons_.Width());
  Twips left = Margin;
  Twips bottom = typing_.PlaceAt(left, FrameTop, tablesWidth) + UnderHead;
  bottom = completion_.PlaceAt(left, bottom, tablesWidth);
  bottom = buttons_.PlaceAt(left, bottom + SectionGap, tablesWidth);

  left += tablesWidth + ColumnGap;
  Twips y = adding_.PlaceAt(left, FrameTop, ProseWidth);
  y = data_.PlaceAt(left, y + SectionGap, ProseWidth);
  TextHelpFolder.SetBounds({left, y + UnderHead, ProseWidth, TextHelpFolder.HeightFor(LineHeight)});
  y = stick_.PlaceAt(left, TextHelpFolder.Bottom() + SectionGap, ProseWidth);
  return {left + ProseWidth + Margin, std::max(bottom, y) + Margin};
}

}  // namespace vantor::panel
