#pragma once

#include "service/DataFiles.h"
#include "service/FileSystem.h"
#include "service/Language.h"
#include "service/Management.h"
#include "service/Processes.h"
#include "service/Programs.h"
#include "service/ScriptShell.h"
#include "service/System.h"
#include "service/WindowPicker.h"

namespace vantor::service {

/// Everything the program asks of the system. The services must outlive the Program that uses them.
struct Services {
  service::DataFiles& DataFiles;
  service::FileSystem& FileSystem;
  service::Language& Language;
  service::Management& Management;
  service::Programs& Programs;
  service::ScriptShell& ScriptShell;
  service::System& System;
  service::Processes& Processes;
  service::WindowPicker& WindowPicker;
};

}  // namespace vantor::service
