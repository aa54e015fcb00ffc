#include "message/Messages.h"

#include <doctest/doctest.h>

#include "fake/Play.h"

namespace vantor::message {
namespace {

using test::Play;
using test::World;

TEST_CASE("the first-start help mentions only a button that is missing") {
  Play(L"given first start\ngiven program C:\\Orbel\\Sketch\\Sketch.exe\nstart\nanswer Ada\nlook\npress Enter",
       [](World& world) { CHECK(world.TextOf(L"LabelMessage").find(L"\r\n\r\n\r\n\r\nYou") != std::wstring::npos); });
}

TEST_CASE("a message is in the middle of the screen, or where it leaves the bar to be seen") {
  for (const form::Twips barTop : {0, 4500, 7500}) {
    Play(L"start\nlook\nlook\npress Enter", [&](World& world) {
      const form::Rect& bar = world.Program->frmMain.Bounds();
      const form::Form* const dialog = world.Desktop->ModalForm();
      if (dialog == nullptr) {
        world.Program->frmMain.MoveTo(3000, barTop);
        return world.Program->Messages.ShowTextMessage(L"one\r\ntwo\r\nthree\r\nfour");
      }
      const form::Rect& place = dialog->Bounds();
      CHECK(form::SharedArea(place, bar) == 0);
      const form::Twips below = world.Desktop->Desktop.WorkArea.Height - 450 - place.Bottom();
      CHECK((barTop == 0      ? abs(place.Top - below) <= 1
             : barTop == 4500 ? place.Top == bar.Bottom()
                              : place.Top < bar.Top));
    });
  }
}

TEST_CASE("messages that open over others take nothing from them, and errors do not pile up") {
  int looks = 0;
  Play(
      L"start\nlook\ntype Eve\nlook\nsee message Bug-Vantor-Tick\nlook\npress Escape\nwait 5 > see not on top\n"
      L"answer 7\nlook",
      [&](World& world) {
        Messages& shown = world.Program->Messages;
        switch (looks++) {
          case 0:
            return shown.ShowUserMessage(MessageGetUserName);
          case 3:
            CHECK(world.Program->MessageState.UserName == L"Eve");
            CHECK_FALSE(world.Program->MessageState.BugReportPending);
            return;
          default:  // the second one is passed over, because a question is open
            shown.Trap(L"Tick", [] { throw 1; });
        }
      });
}

TEST_CASE("no message opens after the end, which may come while a service is waited for") {
  Play(L"start\nlook\nenter p=x\nsee end", [](World& world) {
    world.Computer.Decide = [&](std::string_view /*call*/) {
      world.Desktop->End();
      return fake::Outcome::Fails;
    };
  });
}

}  // namespace
}  // namespace vantor::message
