#include "bar/CodePage.h"

#include <algorithm>
#include <string>

#include "command/CodeTables.h"

namespace vantor::bar {

namespace {

using form::Twips;

constexpr Twips Margin = 120;
constexpr Twips CaptionHeight = 300;
constexpr Twips ColumnGap = 360;
constexpr Twips UnderHead = 45;
constexpr Twips SectionGap = 180;

constexpr std::wstring_view Letters = L"p\r\nf\r\nd\r\ne\r\nw\r\nt\r\nc";
constexpr std::wstring_view Items =
    L"Program\r\nFile\r\nDirectory/Folder\r\nEmail Address\r\nWeb Address (URL)\r\nTelephone Number\r\n"
    L"Control Panel Applet";
constexpr std::wstring_view CompanionLetter = L"\r\nr";
constexpr std::wstring_view CompanionItem = L"\r\nOrbel's Program";

template <class Entries, class WordOf>
std::wstring Lines(const Entries& entries, WordOf wordOf) {
  std::wstring lines;
  for (const auto& entry : entries) {
    if (!lines.empty()) lines += L"\r\n";
    lines += wordOf(entry);
  }
  return lines;
}

std::wstring_view Itself(std::wstring_view word) { return word; }

}  // namespace

CodePage::CodePage(form::Form& form)
    : FrameCode(form, L"FrameCode"),
      first_{text_.Add(FrameCode, L"1st Character of Code :\r\nIndicates Item Of Command", true),
             text_.Add(FrameCode, Letters), text_.Add(FrameCode, Items)},
      second_{
          text_.Add(FrameCode, L"2nd Character of Code :\r\nIndicates Type of Command", true),
          text_.Add(FrameCode, L"= (equal)\r\n- (dash)\r\n. (dot)\r\n/ (forward slash)\r\n: (colon)\r\n: (semicolon)"),
          text_.Add(FrameCode,
                    L"Complete\r\nLaunch Name\r\nPredefined\r\nShort URL\r\nhttp:// (if used after 'w')\r\n"
                    L"http://www. (if used after 'w')")},
      substituteWhen_(text_.Add(FrameSubstitute, L"(if used before a '/')")),
      substitute_{substituteWhen_, text_.Add(FrameSubstitute, L"c\r\ng\r\ni\r\nn\r\no\r\nt"),
                  text_.Add(FrameSubstitute, L".com\r\n.gov\r\n.info\r\n.net\r\n.org\r\n.tv")},
      predefined_(text_.Add(FrameCode, L"Predefined Commands :", true)),
      folders_{text_.Add(FrameCode, L"Special Folders Commands :", true),
               text_.Add(FrameCode, Lines(command::SpecialFolderNames, Itself))},
      controlPanel_{text_.Add(FrameCode, L"Control Panel Commands :", true),
                    text_.Add(FrameCode, Lines(command::ControlPanelNames,
                                               [](const command::ControlPanelWord& entry) { return entry.Word; }))},
      mails_{text_.Add(FrameCode, L"Email Commands :", true),
             text_.Add(FrameCode, Lines(command::MailAddresses, Itself))} {
  FrameCode.SetCaption(L"Code And Predefined Command");
  FrameCode.SetVisible(false);
  FrameSubstitute.SetCaption(L"Indicate A Substitute Text");
}

void CodePage::Prepare() {
  const bool companions = CompanionsPresent && CompanionsPresent();
  first_.Left.SetCaption(std::wstring(Letters).append(companions ? CompanionLetter : L""));
  first_.Right.SetCaption(std::wstring(Items).append(companions ? CompanionItem : L""));
}

form::Size CodePage::LayOut() {
  const Twips chartWidth = std::max(first_.Width(), second_.Width());
  Twips bottom = first_.PlaceAt(Margin, CaptionHeight, chartWidth);
  bottom = second_.PlaceAt(Margin, bottom + SectionGap, chartWidth);
  const Twips boxTop = bottom + SectionGap;
  const Twips boxInside = substitute_.PlaceAt(Margin, CaptionHeight, chartWidth - 2 * Margin);
  FrameSubstitute.SetBounds({Margin, boxTop, chartWidth, boxInside + Margin});
  bottom = FrameSubstitute.Bottom();

  const Twips left = Margin + chartWidth + ColumnGap;
  const Twips listsTop = Place(predefined_, left, CaptionHeight, WidthOf(predefined_)) + UnderHead;
  const auto place = [](const Words& words, Twips at, Twips top, Twips width) {
    return Place(words.List, at, Place(words.Head, at, top, width) + UnderHead, width);
  };
  // The longest list stands beside the other two.
  const Twips width = std::max(folders_.Width(), mails_.Width());
  const Twips mailsTop = place(folders_, left, listsTop, width) + SectionGap;
  bottom = std::max(bottom, place(mails_, left, mailsTop, width));
  const Twips last = left + width + ColumnGap;
  bottom = std::max(bottom, place(controlPanel_, last, listsTop, controlPanel_.Width()));
  return {last + controlPanel_.Width() + Margin, bottom + Margin};
}

}  // namespace vantor::bar
