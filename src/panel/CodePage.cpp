#include "panel/CodePage.h"

#include <algorithm>
#include <string>

#include "command/CodeTables.h"
#include "form/Grid.h"

namespace vantor::panel {

namespace {

using form::Twips;
using namespace form::grid;

constexpr std::wstring_view Letters = L"p\r\nf\r\nd\r\ne\r\nw\r\nt\r\nc";
constexpr std::wstring_view Items =
    L"Program\r\nFile\r\nDirectory/Folder\r\nEmail Address\r\nWeb Address (URL)\r\nTelephone Number\r\n"
    L"Control Panel Applet";
constexpr std::wstring_view CompanionLetter = L"\r\nr";
constexpr std::wstring_view CompanionItem = L"\r\nOrbel's Program";

std::wstring_view Itself(std::wstring_view word) { return word; }

}  // namespace

CodePage::CodePage(frmChoose& form, const PanelContext& context)
    : Page(form, menu::Code, {L"FrameCode", L"Code And Predefined Command", L"Code", L"Hide"}),
      environment_(context.Environment),
      first_{text_.Add(Frame, L"1st Character of Code :\r\nIndicates Item Of Command", true), text_.Add(Frame, Letters),
             text_.Add(Frame, Items)},
      second_{text_.Add(Frame, L"2nd Character of Code :\r\nIndicates Type of Command", true),
              text_.Add(Frame, L"= (equal)\r\n- (dash)\r\n. (dot)\r\n/ (forward slash)\r\n: (colon)\r\n: (semicolon)"),
              text_.Add(Frame,
                        L"Complete\r\nLaunch Name\r\nPredefined\r\nShort URL\r\nhttp:// (if used after 'w')\r\n"
                        L"http://www. (if used after 'w')")},
      substituteWhen_(text_.Add(FrameSubstitute, L"(if used before a '/')")),
      substitute_{substituteWhen_, text_.Add(FrameSubstitute, L"c\r\ng\r\ni\r\nn\r\no\r\nt"),
                  text_.Add(FrameSubstitute, L".com\r\n.gov\r\n.info\r\n.net\r\n.org\r\n.tv")},
      predefined_(text_.Add(Frame, L"Predefined Commands :", true)),
      folders_{text_.Add(Frame, L"Special Folders Commands :", true),
               text_.Add(Frame, Lines(command::SpecialFolderNames, Itself))},
      controlPanel_{text_.Add(Frame, L"Control Panel Commands :", true),
                    text_.Add(Frame, Lines(command::ControlPanelNames,
                                           [](const command::ControlPanelWord& entry) { return entry.Word; }))},
      mails_{text_.Add(Frame, L"Email Commands :", true), text_.Add(Frame, Lines(command::MailAddresses, Itself))} {
  FrameSubstitute.SetCaption(L"Indicate A Substitute Text");
}

void CodePage::Prepare() {
  const bool companions = !environment_.Companions.empty();  // they have a letter of their own
  first_.Left.SetCaption(std::wstring(Letters).append(companions ? CompanionLetter : L""));
  first_.Right.SetCaption(std::wstring(Items).append(companions ? CompanionItem : L""));
}

form::Size CodePage::LayOut() {
  const Twips chartWidth = std::max(first_.Width(), second_.Width());
  Twips bottom = first_.PlaceAt(Margin, FrameTop, chartWidth);
  bottom = second_.PlaceAt(Margin, bottom + SectionGap, chartWidth);
  const Twips boxTop = bottom + SectionGap;
  const Twips boxInside = substitute_.PlaceAt(Margin, FrameTop, chartWidth - 2 * Margin);
  FrameSubstitute.SetBounds({Margin, boxTop, chartWidth, boxInside + Margin});
  bottom = FrameSubstitute.Bottom();

  const Twips left = Margin + chartWidth + ColumnGap;
  const Twips listsTop = predefined_.PlaceAt(left, FrameTop, predefined_.LeastSize().Width) + UnderHead;
  // The longest list is next to the other two.
  const Twips width = std::max(folders_.Width(), mails_.Width());
  const Twips mailsTop = folders_.PlaceAt(left, listsTop, width) + SectionGap;
  bottom = std::max(bottom, mails_.PlaceAt(left, mailsTop, width));
  const Twips last = left + width + ColumnGap;
  bottom = std::max(bottom, controlPanel_.PlaceAt(last, listsTop, controlPanel_.Width()));
  return {last + controlPanel_.Width() + Margin, bottom + Margin};
}

}  // namespace vantor::panel
