// The first start: the question for a name, the greeting, and the files that are made.

#include <doctest/doctest.h>

#include "desktop/Input.h"
#include "desktop/Program.h"
#include "desktop/Wait.h"
#include "desktop/Window.h"

namespace vantor::desktop {
namespace {

constexpr char NameQuestion[] =
    "Thank you for trying Vantor.\r\n\r\n"
    "If you want to be addressed by your name of choice then please enter that name in the above box. Use only "
    "alphabets please.\r\n\r\n"
    "Vantor will address you as **myFriend** if you do not enter a name.\r\n\r\n"
    "orbel\r\ncontact@orbel.example\n";
constexpr char Greeting[] =
    "If you missed it, main program window is at the top left corner of your screen.\r\n"
    "You can drag it by clicking left mouse button on small spaces between the buttons or buttons and Text box. "
    "Buttons from left :\r\n"
    "\r\n"
    "    1. Show/Hide Add URL Box.            2. Show | Hide Add To List Box.\r\n"
    "    3. Show | Hide Open Box.                 4. Show | Hide Open From List Box.\r\n"
    "    5. Show | Hide Run (Orbel's) Box.   6. Show | Hide Preferences Box.\r\n"
    "    7. Show | Hide Help Box.                   8. Show | Hide Code List Box.\r\n"
    "    9. Mimimize Button.                           10. Exit Button.\r\n"
    "\r\n"
    "Since you don't have any more Orbel's program #5 button is not visible.\r\n"
    "\r\n"
    "You will type Code and Command in the Text Box (blue part).\r\n"
    "For Code and Command please check Help.\n";

bool Shows(const Program& program, const std::string& text) {
  return program.MessageText().find(text) != std::string::npos;
}

}  // namespace

TEST_CASE("a first start asks for a name, greets by it, and makes the files") {
  const Folder folder;
  {
    Program program(folder);
    HWND question = program.AwaitMessage();
    CHECK(window::Text(question) == "myMessage");
    CHECK(Shows(program, "Your Name Please\n"));
    CHECK(Shows(program, NameQuestion));
    HWND box = window::Control(question, "EDIT");
    HWND ok = window::Control(question, "BUTTON", "OK");
    CHECK_FALSE(IsWindowEnabled(ok));

    input::Type(
        "A1 n-n\xC3\xA4"
        "a;b");
    CHECK_BECOMES(window::Text(box), "Annab");
    input::Press(VK_BACK);
    CHECK_BECOMES(window::Text(box), "Anna");
    CHECK(IsWindowEnabled(ok));
    program.AnswerMessage("OK");

    CHECK_BECOMES(Shows(program, Greeting), true);
    CHECK(Shows(program, "Anna\n"));
    CHECK(window::Text(program.Message()) == "Message For - Anna");
    CHECK(folder.Read("Vantor\\User.Orbel") == "\"Anna\"\r\n");
    CHECK(folder.Read("Vantor\\Set.Orbel") == Settings().Bytes());
    program.AnswerMessage("OK");
    const RECT bar = window::Bounds(program.AwaitBar());
    CHECK(bar.left == 0);
    CHECK(bar.top == 0);
    program.Exit();
  }
  CHECK(folder.Read("Vantor\\Set.Orbel") == folder.Saved({}));

  Program again(folder);
  again.AwaitBar();
  CHECK(again.Message() == nullptr);
}

TEST_CASE("no name is asked for only once") {
  const Folder folder;
  {
    Program program(folder);
    program.AwaitMessage();
    input::Press(VK_RETURN);
    CHECK_BECOMES(Shows(program, Greeting), true);
    CHECK(window::Text(program.Message()) == "myMessage");
    CHECK(Shows(program, "myFriend\n"));
    CHECK(folder.Read("Vantor\\User.Orbel") == "\"myFriend\"\r\n");
    program.AnswerMessage("OK");
    program.Exit();
  }
  Program again(folder);
  again.AwaitBar();
  CHECK(again.Message() == nullptr);
}

}  // namespace vantor::desktop
