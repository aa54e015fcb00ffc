#pragma once

#include "list/ChoosePage.h"
#include "list/GroupFrame.h"
#include "list/LaunchList.h"

namespace vantor::list {

/// The page of the launch list: a frame for each group.
class ListPage : public ChoosePage {
 public:
  ListPage(form::Form& form, const service::Language& language, message::Messages& messages);

  form::Frame FrameList;
  GroupFrame Prog;
  GroupFrame File;
  GroupFrame Fold;
  GroupFrame Web;

  [[nodiscard]] GroupFrame& Of(LaunchGroup group);
  /// Whether no group has an item.
  [[nodiscard]] bool Empty() const;

  form::Frame& Frame() override { return FrameList; }
  [[nodiscard]] std::wstring_view Title() const override { return L"List"; }
  [[nodiscard]] std::wstring_view CloseCaption() const override { return L"Cancel"; }
  form::Size LayOut() override;
  void Prepare() override;
  form::Control* First() override;
};

}  // namespace vantor::list
