#pragma once

#include "command/Starters.h"
#include "list/Settings.h"
#include "message/Messages.h"
#include "panel/PanelHost.h"
#include "service/Services.h"
#include "state/Environment.h"

namespace vantor::panel {

/// The objects that the panels work with. All of them outlive the panels.
struct PanelContext {
  service::Services Services;
  state::Environment& Environment;
  message::Messages& Messages;
  list::Settings& Settings;
  const command::Starters& Starters;
  PanelHost& Host;
};

}  // namespace vantor::panel
