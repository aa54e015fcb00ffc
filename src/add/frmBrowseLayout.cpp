#include <algorithm>
#include <cstddef>

#include "add/ItemGroup.h"
#include "add/frmBrowse.h"
#include "form/Grid.h"

namespace vantor::add {

using form::Twips;
using namespace form::grid;

constexpr Twips LeastWidth = 5040;
constexpr Twips HeadTop = 75;  // of the box's own caption
constexpr Twips BoxTop = 345;  // from the box's top to what is under its caption
constexpr Twips LeastListsHeight = 2100;
constexpr Twips MostListsHeight = 3600;

// Given places, which the others follow.
constexpr Twips AddedInfoLeft = 1320;
constexpr Twips SelectLeft = 2880;
constexpr Twips SelectTop = 4200;
constexpr Twips CancelLeft = 3960;

void frmBrowse::Dress() {
  SetBorderStyle(form::BorderStyle::Line);
  FrameBrowseBack.SetCaptionAlone(Margin, HeadTop);  // the form already has an edge
  constexpr std::wstring_view KindCaptions[] = {L"Prog.", L"File", L"Folder"};
  FrameWhatToAdd.SetCaption(L"What To Add :");
  for (std::size_t i = 0; i < OptionBrowse.size(); ++i) OptionBrowse[i].SetCaption(KindCaptions[i]);

  LabelFolderSelect.SetCaption(L"Double click to select Folder");
  LabelAddSelect.SetCaption(L"Select File or Program File");
  DriveWork.SetAccessibleName(L"Drive");
  DirWork.SetAccessibleName(L"Folder");
  FileWork.SetAccessibleName(L"File");

  FrameFindPath.SetCaption(L"To add a running Program :");
  CommandFindPath.Dress(L"Find Program Path");
  LabelFindHow.SetCaption(
      L"Left click on \"Find Program Path\" button, keep the mouse button down, place cursor on the open Window of "
      L"the Program that you want to add and release mouse button.");
  LabelFindResult.SetCaption(L"Path of Program File should appear in \"Path\" Text box.");

  FrameAddPath.SetCaption(L"Path :");
  TextAddPath.SetLocked(true);
  TextAddPath.SetBackColor(form::Color::ButtonFace);
  TextAddPath.SetAccessibleName(L"Path");
  LabelAddPath.SetCaption(L"Do not type - select Program, File or Folder above");

  FrameAddToList.SetCaption(L"Type a Launch Name");
  TextAddName.SetAccessibleName(L"Type a Launch Name");
  CommandAddOK.Dress(L"Add");
  FrameAddedInfo.SetCaption(BannerOf(list::LaunchGroup::Prog));  // the longest
  FrameAddedInfo.SetBanner(true);
  FrameAddedInfo.SetBackColor(form::Color::LineBlue);
  FrameAddedInfo.SetVisible(false);

  FrameSelect.SetBorder(false);
  CommandSelectOK.Dress(L"Open");
  FrameAddCancel.SetBorder(false);
  CommandAddCancel.Dress(L"Cancel");
  PictureNo.SetTabStop(false);
  PictureNo.SetTabIndex(CommandAddOK.TabIndex());  // so that Tab continues from the button that was pressed
}

void frmBrowse::LayOut() {
  const bool opening = Opening();
  SetCaption(opening ? L"Open" : L"Add To List");
  FrameBrowseBack.SetCaption(Caption() + L" :");
  for (form::Frame* frame : {&FrameWhatToAdd, &FrameFindPath, &FrameAddPath, &FrameAddToList}) {
    frame->SetVisible(!opening);
  }
  FrameSelect.SetVisible(opening);

  const Twips cancelWidth = CommandAddCancel.FullWidth();
  const Twips width = std::max(
      {LeastWidth, CancelLeft + cancelWidth + Margin, AddedInfoLeft + FrameAddedInfo.LeastSize().Width + Margin});
  const Twips boxTop = FrameBrowseBack.HeightFor(BoxTop);
  Twips top = SelectTop;
  if (opening) {
    LayOutLists(boxTop, SelectTop - Margin, width);
  } else {
    const Twips innerWidth = width - 2 * Margin;
    const Twips optionWidth = (innerWidth - Margin) / 3;
    const Twips optionHeight = OptionBrowse[0].HeightFor(CheckHeight);
    const Twips optionTop = FrameWhatToAdd.HeightFor(FrameTop);
    FrameWhatToAdd.SetBounds({Margin, boxTop, innerWidth, optionTop + optionHeight + Gap});
    for (std::size_t i = 0; i < OptionBrowse.size(); ++i) {
      const Twips left = Margin + static_cast<Twips>(i) * optionWidth;
      OptionBrowse[i].SetBounds({left, optionTop, optionWidth - Gap, optionHeight});
    }
    const Twips listsTop = FrameWhatToAdd.Bottom() + Margin;
    const Twips leastBottom = LayOutAddFrames(listsTop + LeastListsHeight + Margin, innerWidth) + ButtonHeight + Margin;
    const Twips spare = Ui().ScreenAt(Bounds()).WorkArea.Height - BarRoom - leastBottom;
    const Twips listsHeight = std::clamp(LeastListsHeight + spare, LeastListsHeight, MostListsHeight);
    LayOutLists(listsTop, listsTop + listsHeight, width);
    top = LayOutAddFrames(listsTop + listsHeight + Margin, innerWidth);
  }
  const Twips selectWidth = CommandSelectOK.FullWidth();
  FrameSelect.SetBounds({SelectLeft, SelectTop, selectWidth, ButtonHeight});
  CommandSelectOK.SetBounds({0, 0, selectWidth, ButtonHeight});
  FrameAddCancel.SetBounds({CancelLeft, top, cancelWidth, ButtonHeight});
  CommandAddCancel.SetBounds({0, 0, cancelWidth, ButtonHeight});

  FrameBrowseBack.SetBounds({0, 0, width, FrameAddCancel.Bottom() + Margin});
  PictureNo.SetBounds({Margin, FrameAddCancel.Top(), Gap / 4, Gap / 4});
  SetInside({FrameBrowseBack.Width(), FrameBrowseBack.Height()});
}

void frmBrowse::LayOutLists(Twips top, Twips bottom, Twips width) {
  const Twips columnWidth = (width - 3 * Margin) / 2;
  const Twips secondLeft = width - Margin - columnWidth;
  const Twips listTop = std::max(LabelFolderSelect.PlaceAt(Margin, top, columnWidth),
                                 LabelAddSelect.PlaceAt(secondLeft, top, columnWidth)) +
                        Gap / 2;
  DriveWork.SetBounds({Margin, listTop, columnWidth, DriveWork.HeightFor(LineHeight)});
  const Twips folderTop = DriveWork.Bottom() + Gap;
  DirWork.SetBounds({Margin, folderTop, columnWidth, bottom - folderTop});
  FileWork.SetBounds({secondLeft, listTop, columnWidth, bottom - listTop});
}

/// Returns the top of the row of the box's own buttons.
Twips frmBrowse::LayOutAddFrames(Twips top, Twips width) {
  const Twips inTop = FrameFindPath.HeightFor(FrameTop);
  const Twips lineHeight = TextAddPath.HeightFor(LineHeight);
  const Twips findButtonWidth = CommandFindPath.FullWidth();
  const Twips findTextLeft = Margin + findButtonWidth + Margin;
  const Twips findTextWidth = width - findTextLeft - Margin;
  CommandFindPath.SetBounds({Margin, inTop + Gap / 2, findButtonWidth, ButtonHeight});
  const Twips resultTop = LabelFindHow.PlaceAt(findTextLeft, inTop, findTextWidth) + Gap;
  const Twips findBottom = LabelFindResult.PlaceAt(findTextLeft, resultTop, findTextWidth);
  FrameFindPath.SetBounds({Margin, top, width, findBottom + Margin});

  TextAddPath.SetBounds({Margin, inTop, width - 2 * Margin, lineHeight});
  const Twips pathBottom = LabelAddPath.PlaceAt(Margin, TextAddPath.Bottom() + Gap / 2, width - 2 * Margin);
  FrameAddPath.SetBounds({Margin, FrameFindPath.Bottom() + Gap, width, pathBottom + Gap});

  const Twips addWidth = CommandAddOK.FullWidth();
  const Twips nameWidth = width - addWidth - 3 * Margin;
  TextAddName.SetBounds({Margin, inTop, nameWidth, lineHeight});
  CommandAddOK.SetBounds({TextAddName.Right() + Margin, inTop - Gap, addWidth, ButtonHeight});
  FrameAddToList.SetBounds({Margin, FrameAddPath.Bottom() + Gap, width, TextAddName.Bottom() + Margin});

  FrameAddedInfo.SetBounds({AddedInfoLeft, FrameAddToList.Bottom() + Gap, width + Margin - AddedInfoLeft, lineHeight});
  return FrameAddedInfo.Bottom() + Gap;
}

}  // namespace vantor::add
