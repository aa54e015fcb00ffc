#pragma once

#include <optional>

#include "message/MessageKey.h"
#include "service/FileSystem.h"

namespace vantor::start {

class Program;

/// The start sequence, from checking the screen to showing the bar.
class ActiveStart {
 public:
  explicit ActiveStart(Program& program) : program_(program) {}

  /// Returns when the bar is shown or the program has ended.
  void Run();

 private:
  // Any of these may end the program.
  void CheckScreen();
  void FindPreviousInstance();
  void FindPlaces();
  void ChooseRunMode();
  void PrepareData();
  void AskForName();

  void LoadName();
  void LoadState();
  void LookForCompanions();
  void LoadForms();
  void ShowBar();
  void TellWhereSaved();

  void Stop(message::MessageKey key);

  Program& program_;
  std::optional<service::ManyFileCalls> files_;  // until the forms are loaded, or the user is asked for a name
  bool canSave_ = true;
  bool nameUnread_ = false;  // there may be a name, which must not be replaced
};

}  // namespace vantor::start
