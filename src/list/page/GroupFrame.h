#pragma once

#include <string_view>

#include "form/Button.h"
#include "form/ListControl.h"
#include "form/Static.h"
#include "form/TextBox.h"
#include "list/LaunchList.h"
#include "panel/Page.h"
#include "panel/PanelContext.h"

namespace vantor::list {

/// The texts in which the frames of the groups differ.
struct GroupTexts {
  std::wstring_view Code;  // "Prog", "File", …: part of the controls' names
  std::wstring_view Caption;
  std::wstring_view Item;          // what an item is called in the accessible names
  std::wstring_view NewNameLabel;  // of the rename box
};

/// One group on the list page: its two boxes, and the buttons that act on the entry selected in both.
class GroupFrame {
 public:
  GroupFrame(panel::Page& page, LaunchGroup group, const GroupTexts& texts, const panel::PanelContext& context);

  form::Frame Frame;
  form::Label LabelName;
  form::ComboBox Name;
  form::Label LabelPath;
  form::ComboBox Path;
  form::CommandButton Open;
  form::CommandButton Rename;
  form::CommandButton Remove;

  form::Frame FrameRename;
  form::Label LabelNewName;
  form::TextBox TextRename;
  form::CommandButton RenOK;
  form::CommandButton RenCancel;

  /// The width, in twips, at which its labels and buttons show their whole texts.
  [[nodiscard]] form::Twips LeastWidth() const;
  /// Places the controls in a frame of the given width with its corner at (left, top), in twips. Returns the height.
  form::Twips LayOut(form::Twips left, form::Twips top, form::Twips width);
  /// Selects an entry if there is one.
  void Prepare();

 private:
  void Dress(const GroupTexts& texts);
  void ConnectEvents();

  void Name_Click() { Path.SetListIndex(Name.ListIndex()); }
  void Path_Click() { Name.SetListIndex(Path.ListIndex()); }
  void Open_Click();
  void Rename_Click();
  void Remove_Click();
  void TextRename_Change();
  void TextRename_KeyPress(wchar_t& character);
  void RenOK_Click();
  void RenCancel_Click();

  [[nodiscard]] form::Twips LabelWidth() const;
  void ShowRename(bool visible);
  void EnableByCount();

  panel::Page& page_;
  panel::PanelContext context_;
  LaunchGroup group_;
};

}  // namespace vantor::list
