// SPDX-License-Identifier: MIT
#include <chrono>
#include <random>

#include "cardwright/shared/HostExecutor.h"
#include "designer/DesignerTest.h"

namespace cardwright {
namespace {

using enum ControlTypeEnum;

class DesignerProjectTest : public DesignerTest {
 protected:
  static std::string Example() {
    std::ifstream file(CARDWRIGHT_SOURCE_DIR "/examples/wells/well-inspection.cwf", std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
  }
  bool Read(const std::string& text) { return designer->ProjectRead(folder.Put("in.cwf", text)); }
  std::string Saved() {
    EXPECT_TRUE(designer->ProjectSave(folder.Name("out.cwf")));
    return folder.Get("out.cwf");
  }
  /// Does with every control what an author can do.
  void UseEverything() {
    for (const Ref<IControl>& control : ControlsOf(designer->Controls())) {
      BestEffort([&] { designer->SetCtrl(control); });
      BestEffort([&] { DragHandle(1, {{50, 50}, {60, 60}}); });  // too far off the screen: error 6
      designer->SetForeground();
      BestEffort([&] { designer->CenterLeft(); });
      BestEffort([&] { designer->Copy(); });
    }
    designer->Paste();
    for (int i = 0; i < 40; ++i) {
      const auto controls = ControlsOf(designer->Controls());
      if (controls.size() < 2) break;
      designer->SetCtrl(controls.back());
      designer->Delete();
    }
  }
};

TEST_F(DesignerProjectTest, RoundTripsExceptForTheLastLineEnd) {
  const std::string example = Example();
  ASSERT_GT(example.size(), 1000U);
  ASSERT_TRUE(Read(example));
  EXPECT_EQ(Saved(), example + "\r\n");
}

TEST_F(DesignerProjectTest, RoundTripsTheIcon) {
  std::string pixels = "[FORM_IMAGE]\r\n";
  for (int i = 0; i < 256; ++i) pixels += "p" + std::to_string(i) + "= " + std::to_string(i * 257) + "\r\n";
  std::string example = Example();
  example.insert(example.find("[CONTROLS_1]"), pixels);
  ASSERT_TRUE(Read(example));
  EXPECT_EQ(Saved(), example + "\r\n");
}

TEST_F(DesignerProjectTest, GrowsByOneLineEndPerSave) {
  const std::string example = Example();
  Read(example);
  const std::string once = Saved();
  FakeDesignSurface own;
  const Ref<FormDesigner> second = FormDesigner::Create(own);
  ASSERT_TRUE(second->ProjectRead(folder.Put("once.cwf", once)));
  EXPECT_TRUE(second->ProjectSave(folder.Name("twice.cwf")));
  EXPECT_EQ(folder.Get("twice.cwf"), once + "\r\n");
  second->DetachSurface();
}

TEST_F(DesignerProjectTest, RaisesNeedResizeAndRefreshPropertyListWhenRead) {
  Read(Example());
  const Lines heard = Take();
  EXPECT_EQ(heard.front(), "NeedResize 8280 7200");
  EXPECT_EQ(heard.back(), "RefreshPropertyList");
  EXPECT_EQ(surface->Scale(), ScaleMode::Twips);
  EXPECT_EQ(surface->host->caption, u"Well inspection");
  EXPECT_FALSE(designer->IsBusy());
}

TEST_F(DesignerProjectTest, ContainsTheDrawnControls) {
  const Ref<IControl> frame = Draw(ctFrame, 50, 50, 250, 250);
  const Ref<IControl> label = DrawInside(*frame, ctLabel, 10, 10, 60, 40);
  Draw(ctDbTableViewer, 260, 10, 300, 40);
  designer->SetCtrl(label);
  designer->SetBackground();
  designer->ChangeControlName(label, u"lblDepth");
  const std::string saved = Saved();
  EXPECT_NE(saved.find("ControlsNumber= 2\r\n"), saved.npos);
  EXPECT_NE(saved.find("[CONTROLS_2]\r\nType=Label\r\nName=object_2\r\nUserName=lblDepth\r\nText=Label2\r\n"),
            saved.npos);
  EXPECT_NE(saved.find("Container=object_1\r\n[ZORDER]\r\nForm= 0\r\nobject_1= 0\r\nlblDepth= 1\r\n[SCRIPT]"),
            saved.npos)
      << saved;
}

TEST_F(DesignerProjectTest, ContainsNothingOfADeletedNestedFrame) {
  Draw(ctTextBox, 300, 250, 380, 280);
  const Ref<IControl> outer = Draw(ctFrame, 10, 10, 250, 240);
  const Ref<IControl> inner = DrawInside(*outer, ctFrame, 20, 20, 200, 180);
  const Ref<IControl> deep = DrawInside(*inner, ctTextBox, 20, 20, 100, 50);
  deep->SetPropertyValue(Variant(u"Attribute"), Variant(u"OWNER"));
  designer->SetCtrl(outer);
  designer->Delete();
  const std::string saved = Saved();
  EXPECT_NE(saved.find("[CONTROLS_1]"), std::string::npos);
  EXPECT_EQ(saved.find("[CONTROLS_2]"), std::string::npos);
}

TEST_F(DesignerProjectTest, NumbersNewControlsAfterThoseRead) {
  Read(Example());
  std::set<std::u16string> names;
  for (const Ref<IControl>& control : ControlsOf(designer->Controls()))
    names.insert(std::u16string(control->Name().View()));
  const Ref<IControl> drawn = Draw(ctLabel, 10, 10, 60, 40);
  EXPECT_FALSE(names.contains(std::u16string(drawn->Name().View())));
}

TEST_F(DesignerProjectTest, DeletesTheFileWhenSavedWithoutControls) {
  Draw(ctLabel, 10, 10, 60, 40);
  Saved();
  designer->Delete();
  EXPECT_TRUE(designer->ProjectSave(folder.Name("out.cwf")));
  EXPECT_FALSE(std::filesystem::exists(folder.File("out.cwf")));
}

TEST_F(DesignerProjectTest, ReturnsFalseWithoutAFileOrFolder) {
  EXPECT_FALSE(designer->ProjectRead(folder.Name("none.cwf")));
  Draw(ctLabel, 10, 10, 60, 40);
  EXPECT_FALSE(designer->ProjectSave(folder.Name("none/out.cwf")));
}

TEST_F(DesignerProjectTest, IsSavedTemporarilyLikeAnyOtherSave) {
  Draw(ctLabel, 10, 10, 60, 40);
  EXPECT_TRUE(
      ToBoolean(CallMethod(*designer, u"ProjectSave", {Variant(folder.Name("t.cwf")), Variant(true)})));
  EXPECT_TRUE(designer->ProjectSave(folder.Name("out.cwf")));
  EXPECT_EQ(folder.Get("t.cwf"), folder.Get("out.cwf"));
}

TEST_F(DesignerProjectTest, AcceptsAnyContent) {
  const std::string texts[] = {
      "",
      "\0\xFF\xFE[FORM",
      "[FORM]\r\nControlsNumber=32767\r\n",
      "[FORM]\r\nControlsNumber=99999999999\r\nScaleMode=77\r\nWidth=x\r\n",
      "[FORM]\r\nWidth=1e30\r\nHeight=-1e30\r\nScaleMode=3\r\nControlsNumber=1\r\n"
      "[CONTROLS_1]\r\nType=Label\r\nLeft=1e38\r\nWidth=-1e38\r\n",
      "[FORM]\r\nControlsNumber=3\r\n[CONTROLS_1]\r\nType=Frame\r\nName=a\r\n"
      "Container=a\r\n[CONTROLS_2]\r\nType=Label\r\nName=picResize\r\nUserName=form\r\n"
      "[CONTROLS_3]\r\nType=dbtableviewer\r\n[ZORDER]\r\nForm=9\r\nFORM=1\r\n"};
  for (const std::string& text : texts) {
    Read(text);
    UseEverything();
    designer->ProjectSave(folder.Name("out.cwf"));
  }
}

TEST_F(DesignerProjectTest, AcceptsDamagedProjects) {
  const std::string example = Example();
  std::mt19937 random(20261121);
  for (int round = 0; round < 60; ++round) {
    std::string damaged = example;
    for (int i = 0; i < 40; ++i) {
      const std::size_t at = random() % damaged.size();
      switch (random() % 3) {
        case 0: damaged[at] = static_cast<char>(random()); break;
        case 1: damaged.erase(at, random() % 20); break;
        default: damaged.insert(at, example.substr(random() % example.size(), random() % 60)); break;
      }
    }
    FakeDesignSurface own;
    const Ref<FormDesigner> each = FormDesigner::Create(own);
    each->ProjectRead(folder.Put("in.cwf", damaged));
    each->ProjectSave(folder.Name("out.cwf"));
    each->ProjectRead(folder.Name("out.cwf"));
    each->DetachSurface();
  }
  Read(example);
  UseEverything();
}

std::string Many(int count, bool nested) {
  std::string text =
      "[FORM]\r\nScaleMode=3\r\nWidth=400\r\nHeight=300\r\nControlsNumber=" + std::to_string(count) + "\r\n";
  for (int i = 1; i <= count; ++i) {
    const std::string name = "object_" + std::to_string(i);
    text += "[CONTROLS_" + std::to_string(i) + "]\r\nType=" + (nested ? "Frame" : "Label") +
            "\r\nName=" + name + "\r\nUserName=" + name +
            "\r\nLeft=1\r\nTop=1\r\nWidth=300\r\nHeight=200\r\n" +
            (nested && i > 1 ? "Container=object_" + std::to_string(i - 1) + "\r\n" : "");
  }
  text += "[ZORDER]\r\n";
  for (int i = 1; i <= count; ++i) text += "object_" + std::to_string(i) + "=0\r\n";
  return text;
}

TEST_F(DesignerProjectTest, HandlesFiveThousandControls) {
  using Clock = std::chrono::steady_clock;
  const auto begin = Clock::now();
  ASSERT_TRUE(Read(Many(5000, false)));
  EXPECT_EQ(designer->Controls().Count(), 5001);
  EXPECT_GT(designer->ZList().size(), 700U);  // the list of a section's names ends at 8,191 characters
  const auto read = Clock::now();
  designer->SetCtrl(Ref<IControl>(&Find(u"object_4000")));
  DragHandle(0, {{150, 100}, {160, 100}, {170, 100}});
  EXPECT_EQ(BoxOf(Find(u"object_4000")), "21,1,300,200");
  EXPECT_EQ(Draw(ctLabel, 10, 10, 60, 40)->Name(), u"object_5001");
  designer->Delete();
  const auto used = Clock::now();
  Saved();
  auto ms = [](auto from, auto to) {
    return std::to_string(std::chrono::duration_cast<std::chrono::milliseconds>(to - from).count());
  };
  RecordProperty("read_ms", ms(begin, read));
  RecordProperty("use_ms", ms(read, used));
  RecordProperty("save_ms", ms(used, Clock::now()));
}

// The INI engine returns only the first 8,191 characters of a section's names.
TEST_F(DesignerProjectTest, RoundTripsThousandsOfControlsExceptTheLateStacking) {
  const std::string first = Many(5000, false);
  ASSERT_TRUE(Read(first));
  designer->SetCtrl(Ref<IControl>(&Find(u"object_5000")));
  designer->SetBackground();
  std::string saved = Saved();
  for (int again = 0; again < 2; ++again) {
    FakeDesignSurface own;
    const Ref<FormDesigner> each = FormDesigner::Create(own);
    ASSERT_TRUE(each->ProjectRead(folder.Put("in.cwf", saved)));
    EXPECT_EQ(NamesOf(ControlsOf(each->Controls())), Names());
    for (const Ref<IControl>& control : ControlsOf(each->Controls())) {
      IControl& before = Find(control->UserName());
      EXPECT_EQ(control->Name(), before.Name());
      if (control->TypeName() == u"CForm") continue;
      EXPECT_EQ(BoxOf(*control), BoxOf(before));
      EXPECT_EQ(WidgetOf(*control).DisplayText(), WidgetOf(before).DisplayText());
    }
    const std::string before = saved.substr(0, saved.find("[ZORDER]"));
    ASSERT_TRUE(each->ProjectSave(folder.Name("again.cwf")));
    saved = folder.Get("again.cwf");
    EXPECT_EQ(saved.substr(0, saved.find("[ZORDER]")), before);
    EXPECT_GT(each->ZList().size(), 700U);
    each->DetachSurface();
  }
}

TEST_F(DesignerProjectTest, HandlesThousandsOfNestedFrames) {
  ASSERT_TRUE(Read(Many(2000, true)));
  EXPECT_EQ(designer->Controls().Count(), 2001);
  Saved();
  designer->SetCtrl(Ref<IControl>(&Find(u"object_2000")));
  DragHandle(0, {{150, 100}, {160, 100}});
  designer->SetCtrl(Ref<IControl>(&Find(u"object_1")));
  designer->Delete();
  EXPECT_EQ(designer->Controls().Count(), 1 + 1998);
  EXPECT_EQ(surface->WidgetCount(), 0);
}

}  // namespace
}  // namespace cardwright
