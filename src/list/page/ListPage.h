#pragma once

#include "list/LaunchList.h"
#include "list/ListFiles.h"
#include "list/page/GroupFrame.h"
#include "panel/Page.h"
#include "panel/PanelContext.h"

namespace vantor::list {

/// The page of the launch list: a frame for each group. Its eight boxes are the launch list while the program runs;
/// loading frmChoose fills them.
class ListPage : public panel::Page {
 public:
  ListPage(panel::frmChoose& form, const panel::PanelContext& context, ListFiles& files);

  GroupFrame Prog;
  GroupFrame File;
  GroupFrame Fold;
  GroupFrame Web;
  form::ComboBox& ComboListProgName = Prog.Name;
  form::ComboBox& ComboListProgPath = Prog.Path;
  form::ComboBox& ComboListFileName = File.Name;
  form::ComboBox& ComboListFilePath = File.Path;
  form::ComboBox& ComboListFoldName = Fold.Name;
  form::ComboBox& ComboListFoldPath = Fold.Path;
  form::ComboBox& ComboListWebName = Web.Name;
  form::ComboBox& ComboListWebPath = Web.Path;

  LaunchList List{{ComboListFileName, ComboListFilePath},
                  {ComboListFoldName, ComboListFoldPath},
                  {ComboListProgName, ComboListProgPath},
                  {ComboListWebName, ComboListWebPath}};

  /// There must be something in the list.
  [[nodiscard]] message::MessageKey Refusal() override;
  void Load() override;
  void Prepare() override;
  void ItemAdded() override { Prepare(); }
  form::Size LayOut() override;
  form::Control* First() override;

 private:
  panel::PanelContext context_;
  ListFiles& files_;
};

}  // namespace vantor::list
