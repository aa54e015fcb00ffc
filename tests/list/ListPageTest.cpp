#include <doctest/doctest.h>

#include <new>

#include "fake/StoredList.h"
#include "list/NameMatch.h"

namespace vantor::list {
namespace {

/// A window without room for what it should show.
struct Full : form::ControlWindow {
  void Changed(form::Property /*property*/) override { throw std::bad_alloc(); }
  void TakeFocus() override {}
};

TEST_CASE("names are listed regardless of letter case, paths only when identical") {
  test::StoredList program;
  form::ComboBox& box = program.Page.ComboListProgName;
  for (const auto* entry : {L"Editor", L"\u00C9t\u00E9", L"the \"best\""}) box.AddItem(entry);
  for (const auto* name : {L"EDITOR", L"\u00E9T\u00C9", L"THE 'BEST'", L"the 'best\""})
    CHECK(CheckNameListed(program.Computer, name, box) == message::MessageNameAlreadyListed);
  for (const auto* name : {L"Edito", L"Editor ", L"\u00CAt\u00E9", L""})
    CHECK(CheckNameListed(program.Computer, name, box).empty());
  CHECK(PathAlreadyListed(LaunchGroup::Prog, L"Editor", box) == message::MessagePathAlreadyListed);
  CHECK(PathAlreadyListed(LaunchGroup::Prog, L"editor", box).empty());
  // Equal once saved: the name above, and an address.
  CHECK_FALSE(PathAlreadyListed(LaunchGroup::Web, L"the %22best\"", box).empty());
  CHECK(PathAlreadyListed(LaunchGroup::Web, L"the 'best'", box).empty());
  // If there is no room, no name is left without a target.
  const GroupBoxes& boxes = program.List.Of(LaunchGroup::Web);
  Full window;
  boxes.Path.AttachWindow(&window);
  CHECK_THROWS(boxes.AddItem({L"x", L"y"}));
  boxes.Path.AttachWindow(nullptr);
  CHECK(boxes.Name.ListCount() == 0);
  // 0x111 and 0x411, which share a place among the remembered letters, are distinguished.
  NameMatch match(program.Computer, L"\u0431");
  CHECK(!match.Begins(L"\u0111"));
  CHECK(match.Begins(L"\u0411x"));
  for (const wchar_t c : {L' ', L'\u00A9', L'\u00AB', L'\u00B7', L'\u00BB', L'\u2014', L'\u3001', L'\u00AA', L'z'})
    CHECK((match.Find(std::wstring{L'a', c, L'\u0431'}).How == Fit::WordBegins) == (c != L'z' && c != L'\u00AA'));
}

}  // namespace
}  // namespace vantor::list
