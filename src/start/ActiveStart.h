#pragma once

#include "message/MessageKey.h"

namespace vantor::start {

class Program;

/// The start sequence, from the first look at the screen to the bar.
class ActiveStart {
 public:
  explicit ActiveStart(Program& program) : program_(program) {}

  /// Returns with the bar shown, or with the program ended.
  void Run();

 private:
  // Each of these may end the program.
  void CheckScreen();
  void FindPreviousInstance();
  void FindPlaces();
  void ChooseRunMode();
  void PrepareData();
  void AskForName();

  void LoadName();
  void LoadState();
  void LookForCompanions();
  void ShowForms();
  void TellWhereSaved();

  void Stop(message::MessageKey key);

  Program& program_;
  bool canSave_ = true;
  bool nameUnread_ = false;  // there may be one, which must not be replaced
};

}  // namespace vantor::start
