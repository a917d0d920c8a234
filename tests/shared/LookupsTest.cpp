// SPDX-License-Identifier: MIT
#include "cardwright/shared/Lookups.h"

#include <gtest/gtest.h>

#include "automation/Printing.h"
#include "cardwright/shared/FindListItem.h"
#include "platform/FakeWidgets.h"
#include "shared/NamedObject.h"

namespace cardwright {
namespace {

constexpr std::u16string_view kNames[] = {u"Name", u"Text", u"Left"};

TEST(PropertyIndexOf, GivesTheNumberOfARow) {
  const struct {
    Variant index;
    std::u16string_view hidden;
    int number;
  } rows[] = {
      {u"Text", u"", 1},
      {u"TEXT", u"", 1},
      {u"left", u"Value", 2},
      {u"value", u"Value", 3},
      {u"b", u"a;B;c", 4},
      {u"c", u"a;B;c", 5},
      {u"name", u"Name", 0},
      {u"Value", u"", -1},
      {u"a;B", u"a;B", -1},
      {u"", u"", -1},
      {u"", u"a;", 4},
      {1, u"", 1},
      {99, u"", 99},
      {-7, u"", -7},
      {1.5, u"", 2},
      {u"2", u"", 2},
      {70000, u"", -1},
      {Variant(), u"", 0},
      {Variant::Null(), u"", -1},
      {Variant::Nothing(), u"", -1},
      {Variant(Array::FromTexts({})), u"", -1},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(PropertyIndexOf(kNames, row.index, row.hidden), row.number)
        << testing::PrintToString(row.number);
  }
}

TEST(PropertyNameOf, GivesTheNameInLowerCase) {
  const struct {
    Variant index;
    std::u16string_view hidden;
    const char16_t* name;
  } rows[] = {
      {u"Text", u"", u"text"},
      {u"lEFT", u"Value", u"left"},
      {u"VALUE", u"Value", u"value"},
      {u"Value", u"", u""},
      {u"", u"", u""},
      {0, u"", u"name"},
      {2, u"", u"left"},
      {3, u"", u""},
      {3, u"Value", u"value"},
      {4, u"a;B", u"b"},
      {5, u"a;B", u""},
      {-1, u"Value", u""},
      {u"1", u"", u"text"},
      {1e15, u"", u""},
      {Variant::Null(), u"", u""},
      {Variant::Nothing(), u"", u""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(PropertyNameOf(kNames, row.index, row.hidden), row.name) << Text(row.name).ToUtf8();
  }
}

struct Search {
  const char16_t* text;
  ListSearch how;
  int row;
};

class FindListItemTest : public testing::TestWithParam<Search> {};

// The rows carry the numbers 0, 10, 20 and 30.
TEST_P(FindListItemTest, GivesTheFirstRowThatFits) {
  const auto combo = MakeRef<FakeCombo>();
  std::vector<Variant> texts, numbers;
  for (const char16_t* text : {u"Points", u"points of view", u"Arcs", u"ARCS"}) {
    combo->AddItem(text, {});
    numbers.push_back(static_cast<std::int32_t>(texts.size()) * 10);
    texts.push_back(text);
  }
  const auto lateBound = Named(
      u"Anything",
      {{u"ListCount", 4}, {u"List", Array::FromValues(texts)}, {u"ItemData", Array::FromValues(numbers)}});
  const ComboWidget& list = *combo;
  EXPECT_EQ(FindListItem(list, GetParam().text, GetParam().how), GetParam().row);
  EXPECT_EQ(FindListItem(*lateBound, GetParam().text, GetParam().how), GetParam().row);
}

INSTANTIATE_TEST_SUITE_P(
    Searches, FindListItemTest,
    testing::Values(Search{u"points", {}, 0}, Search{u"points of", {}, 1}, Search{u"arc", {}, 2},
                    Search{u"none", {}, -1}, Search{u"none", {.notFound = 7}, 7}, Search{u"", {}, 0},
                    Search{u"points", {.matchCase = true}, 1}, Search{u"ARC", {.matchCase = true}, 3},
                    Search{u"ARCS", {.exact = true}, 2}, Search{u"arc", {.exact = true}, -1},
                    Search{u"ARCS", {.matchCase = true, .exact = true}, 3}, Search{u"", {.exact = true}, -1},
                    Search{u"20", {.byItemData = true}, 2}, Search{u"", {.byItemData = true}, 0},
                    Search{u"21", {.byItemData = true}, -1},
                    Search{u"x", {.byItemData = true, .notFound = -2}, -2},
                    Search{u"99999999999", {.byItemData = true}, -1}));

TEST(FindListItem, DoesNotFailForAnObjectThatIsNoList) {
  const auto label = Named(u"Label", {{u"Caption", u"x"}});
  EXPECT_EQ(FindListItem(*label, u"x", {.notFound = 5}), 5);
  const auto empty = Named(u"List", {{u"ListCount", 0}});
  EXPECT_EQ(FindListItem(*empty, u"x", {}), -1);
}

/// A surface with one widget on it.
class OneWidgetSurface final : public Surface {
 public:
  Ref<Widget> Add(std::u16string_view, std::u16string_view, Widget*) override { return nullptr; }
  void Remove(std::u16string_view) override {}
  Ref<Widget> Find(std::u16string_view name) const override {
    if (fails) Raise(ErrorNumber::ObjectNotSet);
    return EqualsNoCase(name, widget->Name()) ? widget : nullptr;
  }
  ScaleMode Scale() const override { return ScaleMode::Pixels; }
  void SetScale(ScaleMode) override {}
  OleColor BackColor() const override { return 0; }
  void SetBackColor(OleColor) override {}
  Ref<Font> GetFont() const override { return nullptr; }
  float Width() const override { return 0; }
  float Height() const override { return 0; }
  void Resize(float, float) override {}
  Ref<HostWindow> Host() const override { return nullptr; }
  FrameSize HostFrame() const override { return {}; }
  bool HostHasEdges() const override { return false; }
  std::int32_t WindowHandle() const override { return 0; }

  Ref<Widget> widget = MakeRef<FakeLabel>();
  bool fails = false;
};

TEST(ControlByName, GivesTheWidgetOrNothing) {
  OneWidgetSurface surface;
  EXPECT_EQ(ControlByName(surface, u"OBJECT_1"), surface.widget);
  EXPECT_FALSE(ControlByName(surface, u"object_2"));
  surface.fails = true;
  EXPECT_FALSE(ControlByName(surface, u"object_1"));
}

TEST(OrderPair, PutsTheGreaterFirst) {
  const struct {
    float a, b, first, second;
  } rows[] = {{1, 2, 2, 1}, {2, 1, 2, 1}, {3, 3, 3, 3}, {-1, -2, -1, -2}};
  for (auto row : rows) {
    OrderPair(row.a, row.b);
    EXPECT_EQ(row.a, row.first);
    EXPECT_EQ(row.b, row.second);
  }
}

}  // namespace
}  // namespace cardwright
