#pragma once

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "flows/Player.h"

namespace vantor::fake {

/// The program on a computer in memory, used by somebody who tries any steps of flows, including impossible ones. After
/// each step it is checked for what must always hold. If a check fails, the steps so far are printed as a flow, and the
/// test is aborted.
class Walker : public flows::Player {
 public:
  Walker() { Do(L"given first start"); }  // nothing is given but what the steps say

  void Do(const flows::Text& step) {
    if (Desktop && Desktop->Ended()) return;
    steps_.push_back(step);
    const bool outermost = Desktop && Desktop->ModalForm() == nullptr;
    try {
      Player::Do(step);
    } catch (const flows::Failure&) {
      ++Impossible;
    } catch (...) {
      Require(false, "no exception leaves the program");
    }
    if (outermost) CheckState();
  }

  int Impossible = 0;  // the steps that could not be done

 protected:
  void Require(bool condition, const char* what) const {
    if (condition) return;
    for (const flows::Text& step : steps_) std::fprintf(stderr, "%s\n", flows::Narrow(step).c_str());
    std::fprintf(stderr, "not so: %s\n", what);
    std::abort();
  }

 private:
  void CheckState() const {
    const start::Program& program = *this->Program;
    const bool ended = Desktop->Ended();
    for (const list::LaunchGroup group : list::LaunchGroups) {
      const auto& [names, targets] = program.ListPage.List.Of(group);
      Require(names.ListCount() == targets.ListCount(), "names and targets stay paired");
    }
    const command::CommandState& state = program.CommandState;
    const int open = state.OpenPanelIndex;
    Require(open >= command::NoIndex && open < static_cast<int>(panel::menu::Count), "the open panel is there");
    Require(std::min(state.MatchedItemIndex, state.MailTargetIndex) >= command::NoIndex && state.MailTargetIndex < 3,
            "what was completed is there");
    const form::TextBox& line = program.frmMain.TextMain;
    Require(line.SelStart() >= 0 && line.SelStart() + line.SelLength() <= static_cast<int>(line.Text().size()),
            "the selection lies in the line");
    Require(ended || !program.frmMatches.Visible() ||
                (line.HasFocus() && program.frmMain.Active() && open == command::NoIndex),
            "what fits is listed only while the line is used");
    Require(ended || program.MessageState.MessageBody.empty(), "a message leaves nothing behind");
    Require(Computer.Held == 0, "every object is released");
    for (const flows::Text& target : Computer.Asked) {
      const auto isControl = [](wchar_t c) { return c < L' ' || (c >= 0x7F && c < 0xA0); };
      Require(std::none_of(target.begin(), target.end(), isControl), "a target has no control character");
    }
  }

  flows::Texts steps_;
};

}  // namespace vantor::fake
