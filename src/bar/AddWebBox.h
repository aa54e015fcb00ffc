#pragma once

#include "form/Button.h"
#include "form/Form.h"
#include "form/Static.h"
#include "form/TextBox.h"
#include "list/LaunchList.h"
#include "message/Messages.h"
#include "panel/PanelHost.h"
#include "service/Language.h"

namespace vantor::bar {

/// The box that unfolds at the end of the bar to add a web site to the launch list.
class AddWebBox {
 public:
  AddWebBox(form::Form& bar, panel::PanelHost& host, const list::LaunchList& list, const service::Language& language,
            message::Messages& messages);

  form::Frame FrameWeb;
  form::TextBox TextWebUrl{FrameWeb, L"TextWebUrl"};
  form::Label LabelWebName{FrameWeb, L"LabelWebName"};
  form::TextBox TextWebName{FrameWeb, L"TextWebName"};
  form::CommandButton CommandAddWeb{FrameWeb, L"CommandAddWeb"};
  form::PictureBox PictureNo{FrameWeb, L"PictureNo"};  // takes the focus from the button that was pressed
  form::Frame FrameAddedInfo;

  /// The height needed to show the texts, in twips.
  [[nodiscard]] form::Twips LeastHeight() const;
  /// Places the box with its left edge at `left`, as high as the bar. Twips, on the bar.
  void LayOut(form::Twips left, form::Twips height);
  /// Shows the box with empty fields, or hides it; either way the banner disappears.
  void SetShown(bool shown);

 private:
  void TextWebUrl_Change();
  void FrameAddedInfo_Click() { FrameAddedInfo.SetVisible(false); }
  void TextWebName_Change();
  void TextWebName_KeyPress(wchar_t& character);
  void CommandAddWeb_Click();

  /// Enables the name box if there is an address, and the button if both boxes hold text.
  void EnableByText();
  [[nodiscard]] bool BothFilled() const { return !TextWebUrl.Text().empty() && !TextWebName.Text().empty(); }

  panel::PanelHost& host_;
  const list::LaunchList& list_;
  const service::Language& language_;
  message::Messages& messages_;
};

}  // namespace vantor::bar
