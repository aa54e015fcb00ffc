#include <doctest/doctest.h>

#include "bar/PanelPlace.h"
#include "fake/TestProgram.h"

namespace vantor::bar {

TEST_CASE("a panel stands by the bar, and on the screen") {
  const form::Rect area{0, 0, 12000, 8600};
  const struct {
    form::Rect Bar, Place;
  } cases[] = {
      {{0, 0, 6000, 480}, {0, 480, 5040, 7700}},
      {{9000, 0, 6000, 480}, {6960, 480, 5040, 7700}},     // off the right edge
      {{300, 8100, 6000, 480}, {300, 400, 5040, 7700}},    // above
      {{300, 4000, 6000, 480}, {6300, 900, 5040, 7700}},   // no room but beside
      {{5900, 4000, 6000, 480}, {860, 900, 5040, 7700}},   // on the other side
      {{3000, 4000, 6000, 480}, {3000, 900, 5040, 7700}},  // over it
      {{0, 0, 6000, 480}, {6000, 0, 5040, 9000}},          // taller than the screen: from its top
  };
  for (const auto& c : cases) CHECK(PlacePanel(c.Bar, {c.Place.Width, c.Place.Height}, area) == c.Place);
}

TEST_CASE("the help and code pages fit the smallest screen, with their texts whole and apart") {
  test::TestProgram program;
  program.Computer.Disk.AddFile(L"C:\\Vantor\\VantorHelp.exe");  // of which there are lines too
  program.Start();
  program.Desktop.Desktop = {{0, 0, 12000, 9000}, {0, 0, 12000, 8550}};
  const list::frmChoose& panel = program.Choose;
  for (const auto& [key, frame] : {std::pair(form::Key::F7, &program.Program.HelpPage.FrameHelp),
                                   std::pair(form::Key::F8, &program.Program.CodePage.FrameCode)}) {
    program.Desktop.Press(key);
    CHECK(frame->Visible());
    CHECK(panel.LabelListCancel.Caption() == L"Hide");
    CHECK((panel.Bounds().Right() <= 12000 && panel.Bounds().Bottom() <= 8550));
    std::vector<const form::Control*> texts;
    for (const form::Control* text : panel.Controls()) {
      if (text->Container() != frame) continue;
      CAPTURE(text->Name());
      CHECK((text->Right() <= frame->Width() && text->Bottom() <= frame->Height()));
      for (const form::Control* other : texts) {
        CHECK((text->Right() <= other->Left() || other->Right() <= text->Left() || text->Bottom() <= other->Top() ||
               other->Bottom() <= text->Top()));
      }
      texts.push_back(text);
    }
    CHECK(texts.size() > 2);
  }
  CHECK(program.Program.HelpPage.TextHelpFolder.Text() == L"C:\\Vantor\\Vantor");
}

}  // namespace vantor::bar
