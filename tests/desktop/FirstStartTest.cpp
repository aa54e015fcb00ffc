// desktop: --drive e:=floppy --drive f:=cdrom --drive g:=network --drive h:=ramdisk
// The first start, from each kind of drive: what is asked and told, the files that are made, and where it is refused.

#include <doctest/doctest.h>

#include "desktop/Program.h"

namespace vantor::desktop {
namespace {

const std::string NameQuestion = "Your Name Please\nThank you for trying Vantor.\r\n\r\n";
const std::string Greeting =
    "\r\n\r\nSince you don't have any more Orbel's program #5 button is not visible.\r\n\r\n"
    "You will type Code and Command in the Text Box (blue part).\r\nFor Code and Command please check Help.\n";

}  // namespace

TEST_CASE("a first start asks for a name, greets by it, and makes the files") {
  const Folder folder;
  {
    const Program program(folder);
    HWND question = program.AwaitMessage();
    CHECK(window::Text(question) == "myMessage");
    HWND box = window::OfClass(question, "Edit").at(0);
    HWND ok = window::Button(question, "OK");
    CHECK_FALSE(IsWindowEnabled(ok));
    input::Type("A1 n-n\u00E4a;b");
    CHECK_BECOMES(window::Text(box), "Annab");
    input::Press(VK_BACK);
    CHECK_BECOMES(window::Text(box), "Anna");
    CHECK(IsWindowEnabled(ok));
    program.ExpectMessage(NameQuestion);

    CHECK_BECOMES(window::Text(program.Message()), "Message For - Anna");
    CHECK(program.MessageText().find("Anna\n") != std::string::npos);
    CHECK(folder.Data("User") == "\"Anna\"\r\n");
    CHECK(folder.Data("Set") == Settings().Bytes());
    program.ExpectMessage(Greeting);
    const RECT bar = window::Bounds(program.AwaitBar());
    CHECK(bar.left == 0);
    CHECK(bar.top == 0);
    program.Exit();
  }
  CHECK(folder.Data("Set") == folder.Saved({}));
  const Program again(folder);
  again.AwaitBar();
  CHECK(again.Message() == nullptr);
}

TEST_CASE("floppies and RAM disks keep the data on the medium, and no name is asked for only once") {
  SKIP_UNLESS(UnderWine(), "a test desktop with all kinds of drives");
  for (const char* root : {"E:\\", "H:\\"}) {
    const Folder folder(root);
    {
      const Program program(folder);
      program.ExpectMessage(NameQuestion, "Cancel");
      program.ExpectMessage("myFriend\n");
      program.Exit();
    }
    CHECK(folder.Data("MediaSet") == "\"Vantor Media 1\"\r\n\"Ready\"\r\n\"myFriend\"\r\n");
    CHECK(folder.Data("Set") == Settings().Bytes());
    const Program again(folder);
    again.AwaitBar();
    CHECK(again.Message() == nullptr);
  }
}

TEST_CASE("the program says where it can't run, ends, and changes nothing") {
  SKIP_UNLESS(UnderWine(), "a test desktop with all kinds of drives");
  const struct {
    std::string Root, MediaSet, Text;
  } rows[] = {
      {"F:\\", "(none)",
       "This Program runs from Removable Media, such as, Floppy or Flash Drive but not from CD/DVD-ROM.\r\n\r\n"
       "Program will exit now.\n"},
      {"G:\\", "(none)", "The Program encountered a problem and will exit now.\n"},
      {"E:\\", "\"Vantor Media 1\"\r\n\"Setup\"\r\n\"Anna\"\r\n",
       "To run this Program from a Removable Media there is a simple setup process to follow."},
      {"E:\\", "garbage", "To run the Program from this Media Program setup need to be Reset."},
      {"E:\\", "", "To run the Program from this Media Program setup need to be Reset."},
  };
  for (const auto& row : rows) {
    CAPTURE(row.Root + row.MediaSet);
    const Folder folder(row.Root);
    if (row.MediaSet != "(none)") {
      folder.WriteData("MediaSet", row.MediaSet);
      folder.WriteData("Set", "");
    }
    const Program program(folder);
    program.AwaitMessage();
    CHECK(program.Bar() == nullptr);
    program.ExpectMessage(row.Text);
    (void)program.AwaitEnd();
    CHECK(folder.Data("MediaSet") == row.MediaSet);
    CHECK(folder.Data("Set") == (row.MediaSet == "(none)" ? "(none)" : ""));
  }
}

}  // namespace vantor::desktop
