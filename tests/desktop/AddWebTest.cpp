// desktop: --screen 800x600x24
// The box that unfolds from the bar, by which web sites are added.

#include <doctest/doctest.h>

#include "desktop/Program.h"

namespace vantor::desktop {
namespace {

/// The box of a running program.
struct WebBox {
  const Program& Running;

  [[nodiscard]] bool Shown() const { return window::OfClass(Running.Bar(), "Edit").size() == 3; }
  [[nodiscard]] HWND Address() const { return window::OfClass(Running.Bar(), "Edit").at(1); }
  [[nodiscard]] HWND Name() const { return window::OfClass(Running.Bar(), "Edit").at(2); }
  [[nodiscard]] HWND Add() const { return window::OfClass(Running.Bar(), "Button").back(); }
  [[nodiscard]] HWND Banner() const { return Running.Button("Site Added To List : Click To Hide"); }

  static void Fill(HWND box, const std::string& text) {
    input::Click(box);
    CHECK_BECOMES(window::FocusOf(box), box);
    input::Type(text);
    CHECK_BECOMES(window::Text(box), text);
  }
};

}  // namespace

TEST_CASE("sites are added with their addresses as typed; what is listed is refused") {
  const Folder folder;
  folder.WriteSettings({.OptionMask = 6, .WebUpper = 0});
  folder.WriteData("ListWeb", ListBytes({{"News", "http://news.example"}}));
  const Program program(folder);
  program.AwaitBar();
  const WebBox box{program};
  REQUIRE(box.Shown());
  const std::string foreign = "http://\u043F\u0440\u0438\u043C\u0435\u0440";
  const struct {
    std::string Address, Name;
    bool ByKey = true;
    std::string Refusal;
  } rows[] = {
      {"http://a.example/?q=a b,\"c\"", "A, \"quoted\""},
      {foreign, "Foreign", false},
      {"http://news.example", "Other", true, "Selected item has already been included in the List."},
      {"http://NEWS.example", "nEWS", false, "The name you typed is listed name for another item"},
      {"x", "x"},
  };
  for (const auto& row : rows) {
    CAPTURE(row.Name);
    CHECK_FALSE(IsWindowEnabled(box.Name()));
    CHECK_BECOMES(window::Ground(box.Name()), RGB(192, 192, 192));
    WebBox::Fill(box.Address(), row.Address);
    CHECK(box.Banner() == nullptr);
    CHECK_BECOMES(window::IsEnabled(box.Name()), true);
    CHECK_BECOMES(window::Ground(box.Name()), RGB(255, 255, 255));
    CHECK_FALSE(IsWindowEnabled(box.Add()));
    WebBox::Fill(box.Name(), row.Name);
    CHECK(IsWindowEnabled(box.Add()));
    if (row.ByKey) input::Press(VK_RETURN);
    if (!row.ByKey) input::Click(box.Add());
    if (row.Refusal.empty()) {
      Await("the banner", [&] { return box.Banner() != nullptr; });
      CHECK_BECOMES(window::Focus(program.Bar()), program.TextMain());
      CHECK((window::Text(box.Address()) + window::Text(box.Name())).empty());
      continue;
    }
    program.ExpectMessage(row.Refusal);
    const bool path = row.Name == "Other";
    CHECK_BECOMES(window::Focus(program.Bar()), path ? box.Address() : box.Name());
    CHECK(window::Text(box.Name()) == (path ? "Other" : ""));
    // Folded and unfolded, the box begins anew.
    for (const bool shown : {false, true}) {
      input::Press(VK_F1);
      CHECK_BECOMES(box.Shown(), shown);
    }
    CHECK(window::Text(box.Address()).empty());
  }
  // A click hides the banner, and Enter does nothing without a name.
  input::Click(box.Banner());
  CHECK_BECOMES(box.Banner(), nullptr);
  WebBox::Fill(box.Address(), "y");
  input::Press(VK_TAB);
  CHECK_BECOMES(window::Focus(program.Bar()), box.Name());
  input::Press(VK_RETURN);
  program.Exit();
  CHECK(folder.Data("ListWeb") == "\xEF\xBB\xBF" + ListBytes({{"News", "http://news.example"},
                                                              {"A, 'quoted'", "http://a.example/?q=a b,%22c%22"},
                                                              {"Foreign", foreign},
                                                              {"x", "x"}}));
}

TEST_CASE("the box unfolds to the right, and pulls the bar left at the screen's edge") {
  const Folder folder;
  folder.WriteSettings({.Left = 15 * 300});
  const Program program(folder);
  HWND const bar = program.AwaitBar();
  const RECT folded = window::Bounds(bar);
  input::Click(program.Button("Show | Hide Add URL"));
  CHECK_BECOMES(window::Bounds(bar).right, 800);
  const LONG left = window::Bounds(bar).left;
  CHECK(left < folded.left);
  CHECK_BECOMES(window::Focus(bar), program.TextMain());
  CHECK(program.Line().empty());
  input::Press(VK_F1);
  CHECK_BECOMES(window::Bounds(bar).right, left + folded.right - folded.left);
  CHECK(window::Bounds(bar).left == left);
}

}  // namespace vantor::desktop
