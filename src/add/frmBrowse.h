#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "add/BrowseState.h"
#include "add/Finder.h"
#include "form/Button.h"
#include "form/FileLists.h"
#include "form/Form.h"
#include "form/Static.h"
#include "form/TextBox.h"
#include "form/Timer.h"
#include "list/LaunchList.h"
#include "panel/Panel.h"
#include "panel/PanelContext.h"

namespace vantor::add {

/// The browse box, in two uses: "Add To List" and "Open".
class frmBrowse : public form::Form {
 public:
  /// Adds to `list`.
  frmBrowse(form::UserInterface& ui, const panel::PanelContext& context, const list::LaunchList& list);

  form::Frame FrameBrowseBack{*this, L"FrameBrowseBack"};

  form::Frame FrameWhatToAdd{FrameBrowseBack, L"FrameWhatToAdd"};
  std::array<form::OptionButton, 3> OptionBrowse{form::OptionButton{FrameWhatToAdd, L"OptionBrowse(0)"},
                                                 form::OptionButton{FrameWhatToAdd, L"OptionBrowse(1)"},
                                                 form::OptionButton{FrameWhatToAdd, L"OptionBrowse(2)"}};

  form::Label LabelFolderSelect{FrameBrowseBack, L"LabelFolderSelect"};
  form::DriveList DriveWork;
  form::FolderList DirWork;
  form::Label LabelAddSelect{FrameBrowseBack, L"LabelAddSelect"};
  form::FileList FileWork;

  form::Frame FrameFindPath{FrameBrowseBack, L"FrameFindPath"};
  form::CommandButton CommandFindPath{FrameFindPath, L"CommandFindPath"};
  form::Label LabelFindHow{FrameFindPath, L"LabelFindHow"};
  form::Label LabelFindResult{FrameFindPath, L"LabelFindResult"};
  form::Timer TimerFindPath{*this, 100};

  form::Frame FrameAddPath{FrameBrowseBack, L"FrameAddPath"};
  form::TextBox TextAddPath{FrameAddPath, L"TextAddPath"};
  form::Label LabelAddPath{FrameAddPath, L"LabelAddPath"};

  form::Frame FrameAddToList{FrameBrowseBack, L"FrameAddToList"};
  form::TextBox TextAddName{FrameAddToList, L"TextAddName"};
  form::CommandButton CommandAddOK{FrameAddToList, L"CommandAddOK"};

  form::Frame FrameAddedInfo{FrameBrowseBack, L"FrameAddedInfo"};

  form::Frame FrameSelect{FrameBrowseBack, L"FrameSelect"};
  form::CommandButton CommandSelectOK{FrameSelect, L"CommandSelectOK"};

  form::Frame FrameAddCancel{FrameBrowseBack, L"FrameAddCancel"};
  form::CommandButton CommandAddCancel{FrameAddCancel, L"CommandAddCancel"};

  form::PictureBox PictureNo{FrameBrowseBack, L"PictureNo"};

  void Open(BrowseUse use);
  void Close();

  /// Files and folders were dropped on the program: the first that can be reached fills the box as if the user had
  /// browsed to it. Adding it is still up to the user.
  void FillWith(const std::vector<std::wstring>& paths);

  [[nodiscard]] const BrowseState& State() const { return state_; }

 protected:
  void Form_Load() override;
  void Form_Unload() override { StopFinder(); }
  void Form_KeyUp(form::Key key) override;
  void Form_Close() override { CommandAddCancel.DoClick(); }

 private:
  // layout
  void Dress();
  void LayOut();
  void LayOutLists(form::Twips top, form::Twips bottom, form::Twips width);
  form::Twips LayOutAddFrames(form::Twips top, form::Twips width);

  // events
  void ConnectEvents();
  void OptionBrowse_Click(AddKind kind);
  void DriveWork_Change();
  void DirWork_Change();
  void DirWork_Unreachable();
  void FileWork_Click();
  void FileWork_DblClick();
  void TextAddPath_Change();
  void FrameAddedInfo_Click() { FrameAddedInfo.SetVisible(false); }
  void TextAddName_Change();
  void TextAddName_KeyPress(wchar_t& character);
  void CommandAddOK_Click();
  void CommandAddCancel_Click() { context_.Host.ClosePanel(); }
  void CommandSelectOK_Click();
  void CommandFindPath_MouseDown(form::MouseButton button);
  void CommandFindPath_MouseUp(form::MouseButton button);
  void TimerFindPath_Timer();

  [[nodiscard]] bool Adding() const { return use_ == BrowseUse::Add; }
  [[nodiscard]] bool Opening() const { return use_ == BrowseUse::Open; }
  [[nodiscard]] form::Control& FirstControl();
  void ShowChosenKind();
  void OfferKind();
  /// The path of a kind for which nothing is chosen yet.
  void StartPath();
  void OfferFiles(std::wstring_view pattern, bool enabled);
  void EnableNameBox(bool enable);
  void ReadLists();
  void NoteDrive();
  void NoteFolder();
  void PickFile(std::wstring_view name);
  [[nodiscard]] bool ChoosesFolder() const { return state_.WhatToAdd == AddKind::Folder; }
  /// The control by which the path in the box was chosen.
  [[nodiscard]] form::Control& PathSource();
  [[nodiscard]] bool RefusedByPlace(std::wstring_view path);
  void StopFinder();
  /// Returns false if the path can't be reached.
  [[nodiscard]] bool GoToDropped(std::wstring_view path);
  void ChooseFile(std::wstring_view name);

  panel::PanelContext context_;
  const list::LaunchList& list_;
  BrowseState state_;
  Finder finder_;
  BrowseUse use_ = BrowseUse::None;
  BrowseUse lastUse_ = BrowseUse::None;  // None: it has not been opened yet
  std::wstring addFolder_;               // where the user was when the box was last used for adding
};

/// The browse box as a panel for one of its uses.
class BrowsePanel : public panel::Panel {
 public:
  BrowsePanel(panel::PanelHost& host, std::size_t index, frmBrowse& box, BrowseUse use)
      : Panel(host, index, box), box_(box), use_(use) {}

  void Open() override { box_.Open(use_); }
  void Close() override { box_.Close(); }

 private:
  frmBrowse& box_;
  BrowseUse use_;
};

}  // namespace vantor::add
