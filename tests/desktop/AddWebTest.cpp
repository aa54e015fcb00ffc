// desktop: --screen 800x600x24
// The box that unfolds from the bar, by which web sites are added.

#include <doctest/doctest.h>

#include "desktop/Input.h"
#include "desktop/Program.h"
#include "desktop/Wait.h"
#include "desktop/Window.h"

namespace vantor::desktop {
namespace {

/// The box of a running program.
class WebBox {
 public:
  explicit WebBox(const Program& program) : program_(program) {}

  [[nodiscard]] HWND Address() const { return Edit(1); }
  [[nodiscard]] HWND Name() const { return Edit(2); }
  [[nodiscard]] HWND Add() const { return window::OfClass(program_.Bar(), "Button").back(); }
  [[nodiscard]] HWND Banner() const {
    return window::Control(program_.Bar(), "Button", "Site Added To List : Click To Hide");
  }
  [[nodiscard]] bool Shown() const { return Address() != nullptr; }
  [[nodiscard]] RECT Place() const { return window::Bounds(program_.Bar()); }

  void Fill(HWND box, const std::string& text) const {
    input::Click(window::Middle(box));
    CHECK_BECOMES(window::Focus(program_.Bar()), box);
    input::Type(text);
    CHECK_BECOMES(window::Text(box), text);
  }

 private:
  [[nodiscard]] HWND Edit(std::size_t index) const {
    const auto edits = window::OfClass(program_.Bar(), "Edit");
    return index < edits.size() ? edits[index] : nullptr;
  }

  const Program& program_;
};

}  // namespace

TEST_CASE("sites are added with their addresses as typed; what is listed is refused") {
  const Folder folder;
  folder.WriteSettings({.OptionMask = 6, .WebUpper = 0});
  folder.Write("Vantor\\ListWeb.Orbel", ListBytes({{"News", "http://news.example"}}));
  Program program(folder);
  program.AwaitBar();
  const WebBox box(program);
  CHECK(box.Shown());
  const std::string foreign = "http://\xD0\xBF\xD1\x80\xD0\xB8\xD0\xBC\xD0\xB5\xD1\x80";
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
    CHECK_FALSE(IsWindowEnabled(box.Add()));
    box.Fill(box.Address(), row.Address);
    CHECK(box.Banner() == nullptr);
    CHECK_BECOMES(IsWindowEnabled(box.Name()) != FALSE, true);
    CHECK_BECOMES(window::Ground(box.Name()), RGB(255, 255, 255));
    CHECK_FALSE(IsWindowEnabled(box.Add()));
    box.Fill(box.Name(), row.Name);
    CHECK(IsWindowEnabled(box.Add()));
    if (row.ByKey) input::Press(VK_RETURN);
    if (!row.ByKey) input::Click(window::Middle(box.Add()));
    if (row.Refusal.empty()) {
      Await("the banner", [&] { return box.Banner() != nullptr; });
      CHECK_BECOMES(window::Focus(program.Bar()), program.TextMain());
      CHECK(window::Text(box.Address()).empty());
      CHECK(window::Text(box.Name()).empty());
      continue;
    }
    program.AwaitMessage();
    CHECK(program.MessageText().find(row.Refusal) != std::string::npos);
    input::Press(VK_RETURN);
    const bool path = row.Name == "Other";
    CHECK_BECOMES(window::Focus(program.Bar()), path ? box.Address() : box.Name());
    CHECK(window::Text(box.Name()) == (path ? "Other" : ""));
    // Folded and unfolded, the box begins anew.
    input::Press(VK_F1);
    CHECK_BECOMES(box.Shown(), false);
    input::Press(VK_F1);
    CHECK_BECOMES(box.Shown(), true);
    CHECK(window::Text(box.Address()).empty());
  }
  // Enter does nothing without a name, and a click hides the banner.
  input::Click(window::Middle(box.Banner()));
  CHECK_BECOMES(box.Banner(), nullptr);
  box.Fill(box.Address(), "y");
  input::Press(VK_TAB);
  CHECK_BECOMES(window::Focus(program.Bar()), box.Name());
  input::Press(VK_RETURN);
  program.Exit();
  CHECK(folder.Read("Vantor\\ListWeb.Orbel") ==
        "\xEF\xBB\xBF" + ListBytes({{"News", "http://news.example"},
                                    {"A, 'quoted'", "http://a.example/?q=a b,%22c%22"},
                                    {"Foreign", foreign},
                                    {"x", "x"}}));
}

TEST_CASE("the box unfolds to the right, and pulls the bar left at the screen's edge") {
  const Folder folder;
  folder.WriteSettings({.Left = 15 * 300});
  Program program(folder);
  const HWND bar = program.AwaitBar();
  const WebBox box(program);
  CHECK_FALSE(box.Shown());
  const RECT narrow = box.Place();
  input::Click(window::Middle(program.Button("Show | Hide Add URL")));
  CHECK_BECOMES(box.Shown(), true);
  CHECK_BECOMES(box.Place().right, 800);
  CHECK(box.Place().left < narrow.left);
  CHECK_BECOMES(window::Focus(bar), program.TextMain());
  CHECK(program.Line().empty());
  const LONG left = box.Place().left;
  input::Press(VK_F1);
  CHECK_BECOMES(box.Shown(), false);
  CHECK_BECOMES(box.Place().right - box.Place().left, narrow.right - narrow.left);
  CHECK(box.Place().left == left);
}

}  // namespace vantor::desktop
