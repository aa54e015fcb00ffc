#pragma once

#include <functional>
#include <string_view>

#include "form/Button.h"
#include "form/Event.h"
#include "form/Form.h"
#include "form/ListControl.h"
#include "form/Static.h"
#include "list/ChoosePage.h"
#include "list/LaunchList.h"
#include "list/ListFiles.h"
#include "list/ListPage.h"
#include "message/Messages.h"
#include "service/Language.h"

namespace vantor::list {

/// What the bar does for the dialog. An empty one does nothing.
struct ChooseHooks {
  form::Event<> ClosePanel;
  /// Start a target; a failure is told there.
  form::Event<std::wstring_view /*target*/> RunProgram;
  form::Event<std::wstring_view /*target*/> OpenWebItem;
  form::Event<std::wstring_view /*target*/> OpenWithShell;
  /// A function key was let go.
  form::Event<form::Key /*key*/> HotKey;
  /// Moves the box to where it stands best beside the bar.
  form::Event<form::Form&> Place;
};

/// The list dialog. Its eight boxes are the launch list for the length of the run; loading the form fills them.
/// It also shows the other pages that are put on it.
class frmChoose : public form::Form {
 public:
  frmChoose(form::UserInterface& ui, ListFiles& files, const service::Language& language, message::Messages& messages);

  ListPage Page;
  form::ComboBox& ComboListProgName = Page.Prog.Name;
  form::ComboBox& ComboListProgPath = Page.Prog.Path;
  form::ComboBox& ComboListFileName = Page.File.Name;
  form::ComboBox& ComboListFilePath = Page.File.Path;
  form::ComboBox& ComboListFoldName = Page.Fold.Name;
  form::ComboBox& ComboListFoldPath = Page.Fold.Path;
  form::ComboBox& ComboListWebName = Page.Web.Name;
  form::ComboBox& ComboListWebPath = Page.Web.Path;

  form::Frame FrameCancel{*this, L"FrameCancel"};
  form::CommandButton CommandListCancel{FrameCancel, L"CommandListCancel"};
  form::Label LabelListCancel{FrameCancel, L"LabelListCancel"};

  LaunchList List{{ComboListFileName, ComboListFilePath},
                  {ComboListFoldName, ComboListFoldPath},
                  {ComboListProgName, ComboListProgPath},
                  {ComboListWebName, ComboListWebPath}};

  ChooseHooks Hooks;

  /// Shows a page whose frame is on this form, and no other one.
  void ShowPage(ChoosePage& page);
  /// Closes the panel, by the bar.
  void CommandListCancel_Click();

 protected:
  void Form_Load() override;
  void Form_KeyUp(form::Key key) override;
  void Form_Close() override { CommandListCancel_Click(); }

 private:
  void Start(LaunchGroup group, std::wstring_view target);

  ListFiles& files_;
  message::Messages& messages_;
  ChoosePage* shown_ = nullptr;
};

}  // namespace vantor::list
