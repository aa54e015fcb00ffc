#pragma once

#include <array>
#include <string>
#include <vector>

#include "fake/FailingServices.h"
#include "fake/FakeServices.h"
#include "form/Headless.h"
#include "fuzz/Targets.h"
#include "start/Program.h"

namespace vantor::fuzz {

/// A user who does anything, in any order.
class Wanderer : public form::Headless {
 public:
  Wanderer(Choices& choices, fake::FakeServices& world) : choices_(choices), world_(world) {}

  std::vector<form::Form*> Forms;

  /// One thing that a user can do, to whatever form.
  void Act();
  void RunModal(form::Form& form) override;

 private:
  void ActOn(form::Control& control);
  void ChangeWorld();
  std::wstring Text();

  Choices& choices_;
  fake::FakeServices& world_;
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
  fake::FakeServices World;
  Wanderer Desktop{Decisions, World};
  unsigned Rate = 0;    // how many calls of 256 go wrong
  unsigned Random = 1;  // decides which
  bool MayThrow = false;
  fake::FailingServices Services{World.All(), [this](const char*) { return Choose(); }};
  start::Program Program{Desktop, Services.All()};

 private:
  fake::Outcome Choose();
};

}  // namespace vantor::fuzz
