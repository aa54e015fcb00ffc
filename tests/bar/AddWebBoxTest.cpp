#include <doctest/doctest.h>

#include "bar/StartedProgram.h"

using namespace vantor;
using form::Key;
using list::LaunchGroup;
using test::StartedProgram;

TEST_CASE("a site is added from the keyboard alone") {
  StartedProgram bar;
  bar::AddWebBox& web = bar.Main.Web;
  bar.Desktop.Press(Key::F1);
  CHECK(web.FrameWeb.Visible());
  CHECK(bar.Main.Bounds().Width == web.FrameWeb.Right());
  CHECK(bar.Main.CommandWeb.Picture() == form::Picture::FaceFold);
  CHECK(bar.Main.TextMain.HasFocus());
  CHECK(!web.TextWebName.Enabled());
  CHECK(web.TextWebName.BackColor() == form::Color::Silver);
  web.TextWebUrl.SetFocus();
  bar.Desktop.Type(L"http://\"x\"");
  bar.Desktop.Press(Key::Tab);
  CHECK(web.TextWebName.HasFocus());
  CHECK(web.TextWebName.BackColor() == form::Color::WindowBackground);
  bar.Desktop.Type(L"\r");
  CHECK(!web.CommandAddWeb.Enabled());
  bar.Desktop.Type(L"The X\r");
  CHECK(bar.Choose.ComboListWebName.Entries() == std::vector<std::wstring>{L"The X"});
  CHECK(bar.Choose.ComboListWebPath.Entries() == std::vector<std::wstring>{L"http://\"x\""});
  CHECK(web.FrameAddedInfo.Visible());
  CHECK(web.TextWebUrl.Text().empty());
  CHECK(web.TextWebName.Text().empty());
  CHECK(!web.CommandAddWeb.Enabled());
  CHECK(bar.Main.TextMain.HasFocus());
  bar.Desktop.Click(web.FrameAddedInfo);
  CHECK(!web.FrameAddedInfo.Visible());
  bar.Desktop.Press(Key::F1);
  CHECK(!web.FrameWeb.Visible());
  CHECK(bar.Main.Bounds().Width == bar.Main.CommandExit.Right());
}

TEST_CASE("an address or a name that is listed is refused") {
  StartedProgram bar("6");
  bar.Add(LaunchGroup::Web, L"News", L"http://news");
  bar::AddWebBox& web = bar.Main.Web;
  web.TextWebUrl.SetText(L"http://news");
  web.TextWebName.SetText(L"Other");
  bar.ExpectMessage();
  bar.Desktop.Click(web.CommandAddWeb);
  CHECK(bar.Told.back().starts_with(L"Selected item has already been included"));
  CHECK(web.TextWebName.Text() == L"Other");
  web.TextWebUrl.SetText(L"http://News");
  web.TextWebName.SetText(L"NEWS");
  bar.ExpectMessage();
  bar.Desktop.Click(web.CommandAddWeb);
  CHECK(bar.Told.back().starts_with(L"The name you typed is listed name"));
  CHECK(web.TextWebName.Text().empty());
  CHECK(web.TextWebName.HasFocus());
  CHECK(bar.Choose.ComboListWebName.ListCount() == 1);
}

TEST_CASE("unfolding near the right edge pulls the bar left") {
  StartedProgram bar;
  bar.Desktop.DragBy(bar.Main, 99999, 0);
  bar.Desktop.Press(Key::F1);
  CHECK(bar.Main.Bounds().Right() == bar.Desktop.Desktop.Bounds.Width);
  const int left = bar.Main.Bounds().Left;
  bar.Desktop.Press(Key::F1);
  CHECK(bar.Main.Bounds().Left == left);
}
