#include <algorithm>
#include <cstddef>

#include "add/frmBrowse.h"
#include "form/PictureButton.h"
#include "panel/Grid.h"

namespace vantor::add {
namespace {

using form::ButtonHeight;
using form::DressButton;
using form::PlaceButton;
using form::Twips;
using panel::CheckHeight;
using panel::FrameTop;
using panel::Gap;
using panel::LabelHeight;
using panel::LineHeight;
using panel::Margin;

constexpr Twips BoxWidth = 5040;
constexpr Twips InnerWidth = BoxWidth - 2 * Margin;
constexpr Twips ButtonWidth = 960;
constexpr Twips FindButtonWidth = 1620;
constexpr Twips ColumnWidth = (InnerWidth - Margin) / 2;
constexpr Twips LeastListsHeight = 2100;
constexpr Twips MostListsHeight = 3600;
constexpr Twips BarRoom = 600;  // of the screen, for the bar that the box stands by

// Given places, which the others follow.
constexpr Twips AddedInfoLeft = 1320;
constexpr Twips SelectLeft = 2880;
constexpr Twips SelectTop = 4200;
constexpr Twips CancelLeft = 3960;

}  // namespace

void frmBrowse::Dress() {
  SetBorderStyle(form::BorderStyle::Line);
  constexpr std::wstring_view KindCaptions[] = {L"Prog.", L"File", L"Folder"};
  FrameWhatToAdd.SetCaption(L"What To Add :");
  for (std::size_t i = 0; i < OptionBrowse.size(); ++i) OptionBrowse[i].SetCaption(KindCaptions[i]);

  LabelFolderSelect.SetCaption(L"Double click to select Folder");
  LabelAddSelect.SetCaption(L"Select File or Program File");
  DriveWork.SetAccessibleName(L"Drive");
  DirWork.SetAccessibleName(L"Folder");
  FileWork.SetAccessibleName(L"File");
  for (form::Control* list : {static_cast<form::Control*>(&DriveWork), static_cast<form::Control*>(&DirWork)}) {
    list->SetBackColor(form::Color::WindowBackground);
    list->SetForeColor(form::Color::WindowText);
  }

  FrameFindPath.SetCaption(L"To add a running Program :");
  DressButton(CommandFindPath, LabelFindPath, L"Find Program Path");
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
  DressButton(CommandAddOK, LabelAddOK, L"Add");
  FrameAddedInfo.SetCaption(L"Program Added To List :: Click To Hide");
  FrameAddedInfo.SetBanner(true);
  FrameAddedInfo.SetBackColor(form::Color::LineBlue);
  FrameAddedInfo.SetVisible(false);

  FrameSelect.SetBorder(false);
  DressButton(CommandSelectOK, LabelSelectOK, L"Open");
  FrameAddCancel.SetBorder(false);
  DressButton(CommandAddCancel, LabelAddCancel, L"Cancel");
  PictureNo.SetTabStop(false);
  PictureNo.SetTabIndex(CommandAddOK.TabIndex());  // Tab goes on from the button that was pressed
}

void frmBrowse::LayOut() {
  const bool opening = Opening();
  SetCaption(opening ? L"Open" : L"Add To List");
  FrameBrowseBack.SetCaption(Caption() + L" :");
  for (form::Frame* frame : {&FrameWhatToAdd, &FrameFindPath, &FrameAddPath, &FrameAddToList}) {
    frame->SetVisible(!opening);
  }
  FrameSelect.SetVisible(opening);

  Twips top = SelectTop;
  if (opening) {
    LayOutLists(FrameTop, SelectTop - Margin);
  } else {
    constexpr Twips OptionWidth = (InnerWidth - Margin) / 3;
    FrameWhatToAdd.SetBounds({Margin, FrameTop, InnerWidth, FrameTop + CheckHeight + Gap});
    for (std::size_t i = 0; i < OptionBrowse.size(); ++i) {
      const Twips left = Margin + static_cast<Twips>(i) * OptionWidth;
      OptionBrowse[i].SetBounds({left, FrameTop, OptionWidth - Gap, CheckHeight});
    }
    const Twips listsTop = FrameWhatToAdd.Bottom() + Margin;
    const Twips leastBottom = LayOutAddFrames(listsTop + LeastListsHeight + Margin) + ButtonHeight + Margin;
    const Twips spare = Ui().ScreenAt(Bounds()).WorkArea.Height - BarRoom - leastBottom;
    const Twips listsHeight = std::clamp(LeastListsHeight + spare, LeastListsHeight, MostListsHeight);
    LayOutLists(listsTop, listsTop + listsHeight);
    top = LayOutAddFrames(listsTop + listsHeight + Margin);
  }
  FrameSelect.SetBounds({SelectLeft, SelectTop, ButtonWidth, ButtonHeight});
  PlaceButton(CommandSelectOK, LabelSelectOK, {0, 0, ButtonWidth, ButtonHeight});
  FrameAddCancel.SetBounds({CancelLeft, top, ButtonWidth, ButtonHeight});
  PlaceButton(CommandAddCancel, LabelAddCancel, {0, 0, ButtonWidth, ButtonHeight});

  FrameBrowseBack.SetBounds({0, 0, BoxWidth, FrameAddCancel.Bottom() + Margin});
  PictureNo.SetBounds({Margin, FrameAddCancel.Top(), Gap / 4, Gap / 4});
  SetInside({FrameBrowseBack.Width(), FrameBrowseBack.Height()});
}

void frmBrowse::LayOutLists(Twips top, Twips bottom) {
  constexpr Twips SecondLeft = BoxWidth - Margin - ColumnWidth;
  LabelFolderSelect.SetBounds({Margin, top, ColumnWidth, LabelHeight});
  LabelAddSelect.SetBounds({SecondLeft, top, ColumnWidth, LabelHeight});
  const Twips listTop = top + LabelHeight + Gap / 2;
  DriveWork.SetBounds({Margin, listTop, ColumnWidth, LineHeight});
  const Twips folderTop = DriveWork.Bottom() + Gap;
  DirWork.SetBounds({Margin, folderTop, ColumnWidth, bottom - folderTop});
  FileWork.SetBounds({SecondLeft, listTop, ColumnWidth, bottom - listTop});
}

/// Returns where the row of the box's own buttons begins.
Twips frmBrowse::LayOutAddFrames(Twips top) {
  const Twips findTextLeft = Margin + FindButtonWidth + Margin;
  const Twips findTextWidth = InnerWidth - findTextLeft - Margin;
  const Twips howHeight = Ui().MeasureText(LabelFindHow.Caption(), false, findTextWidth).Height;
  const Twips resultHeight = Ui().MeasureText(LabelFindResult.Caption(), false, findTextWidth).Height;
  PlaceButton(CommandFindPath, LabelFindPath, {Margin, FrameTop + Gap / 2, FindButtonWidth, ButtonHeight});
  LabelFindHow.SetBounds({findTextLeft, FrameTop, findTextWidth, howHeight});
  LabelFindResult.SetBounds({findTextLeft, LabelFindHow.Bottom() + Gap, findTextWidth, resultHeight});
  FrameFindPath.SetBounds({Margin, top, InnerWidth, LabelFindResult.Bottom() + Margin});

  TextAddPath.SetBounds({Margin, FrameTop, InnerWidth - 2 * Margin, LineHeight});
  LabelAddPath.SetBounds({Margin, TextAddPath.Bottom() + Gap / 2, InnerWidth - 2 * Margin, LabelHeight});
  FrameAddPath.SetBounds({Margin, FrameFindPath.Bottom() + Gap, InnerWidth, LabelAddPath.Bottom() + Gap});

  const Twips nameWidth = InnerWidth - ButtonWidth - 3 * Margin;
  TextAddName.SetBounds({Margin, FrameTop, nameWidth, LineHeight});
  PlaceButton(CommandAddOK, LabelAddOK, {TextAddName.Right() + Margin, FrameTop - Gap, ButtonWidth, ButtonHeight});
  FrameAddToList.SetBounds({Margin, FrameAddPath.Bottom() + Gap, InnerWidth, TextAddName.Bottom() + Margin});

  FrameAddedInfo.SetBounds(
      {AddedInfoLeft, FrameAddToList.Bottom() + Gap, BoxWidth - Margin - AddedInfoLeft, LineHeight});
  return FrameAddedInfo.Bottom() + Gap;
}

}  // namespace vantor::add
