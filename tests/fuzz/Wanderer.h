#pragma once

#include <string>
#include <vector>

#include "fake/TestProgram.h"
#include "fuzz/Targets.h"

namespace vantor::fuzz {

/// A user who does anything, in any order.
class Wanderer : public form::Headless {
 public:
  Wanderer(Choices& choices, fake::Computer& computer) : choices_(choices), computer_(computer) {}

  std::vector<form::Form*> Forms;

  /// One thing that a user can do, to whatever form.
  void Act();
  void RunModal(form::Form& form) override;

 private:
  void ActOn(form::Control& control);
  void ChangeWorld();
  std::wstring Text();

  Choices& choices_;
  fake::Computer& computer_;
  int modalDepth_ = 0;
};

/// The program, at a place and with data files and services that the first bytes choose.
struct Wandering {
  explicit Wandering(Choices& choices);

  /// Starts, does what the bytes say, and ends. Requires what must hold whatever happens.
  void Run();
  /// The user's or the system's doings, which no exception may leave.
  template <class Action>
  void Do(Action action) {
    try {
      action();
    } catch (...) {
      Require(false, "no exception leaves the program");
    }
    CheckState();
  }
  void CheckState();
  void End();

  Choices& Decisions;
  fake::Computer Computer;
  Wanderer Desktop{Decisions, Computer};
  start::Program Program{Desktop, Computer.Services()};
};

}  // namespace vantor::fuzz
