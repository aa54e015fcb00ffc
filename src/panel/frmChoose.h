#pragma once

#include <vector>

#include "form/Button.h"
#include "form/Form.h"
#include "form/Static.h"
#include "message/Messages.h"
#include "panel/Page.h"
#include "panel/PanelHost.h"

namespace vantor::panel {

/// The form that shows one page at a time, with a button below the page that closes it.
class frmChoose : public form::Form {
 public:
  frmChoose(form::UserInterface& ui, PanelHost& host, message::Messages& messages);

  form::Frame FrameCancel{*this, L"FrameCancel"};
  form::CommandButton CommandListCancel{FrameCancel, L"CommandListCancel"};

  [[nodiscard]] PanelHost& Host() const { return host_; }
  /// Adds a page whose frame is on this form.
  void Add(Page& page) { pages_.push_back(&page); }
  /// Shows a page and hides the others.
  void ShowPage(Page& page);
  /// Fits the form to a page.
  void Arrange(Page& page);
  /// Closes the panel.
  void CommandListCancel_Click() { host_.ClosePanel(); }

 protected:
  void Form_Load() override;
  void Form_KeyUp(form::Key key) override;
  void Form_Close() override { CommandListCancel_Click(); }

 private:
  PanelHost& host_;
  message::Messages& messages_;
  std::vector<Page*> pages_;
};

}  // namespace vantor::panel
