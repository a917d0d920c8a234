// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cardwright/automation/MemberTable.h"
#include "cardwright/model/FormOwner.h"

namespace cardwright {

/// Base of the fake owners: the objects on a real surface, and a log with a line for each call.
class OwnerRecord {
 public:
  explicit OwnerRecord(Surface& surface) : m_Surface(&surface) {}

  /// The lines since the last call, joined by "; ".
  std::string Take();
  void Write(const std::string& line) { m_Log.push_back(line); }

 protected:
  void Rename(const Ref<Object>& control, const Text& newName);
  float OuterWidthOf() const;
  float OuterHeightOf() const;
  void SetOuterSizeOf(float width, float height);
  void ForgetControls();

  Ref<Collection> m_Controls = MakeRef<Collection>();
  Surface* m_Surface;

 private:
  std::vector<std::string> m_Log;
};

/// A design surface that logs the calls of the form model.
class FakeDesigner final : public TableObject, public DesignerOwner, public OwnerRecord {
 public:
  explicit FakeDesigner(Surface& surface) : OwnerRecord(surface) {}
  ~FakeDesigner() override { ForgetControls(); }

  Text TypeName() const override { return u"FormDesigner"; }

  Collection& Controls() override { return *m_Controls; }
  Surface* GetSurface() override { return m_Surface; }
  void ChangeControlName(Ref<Object> control, const Text& newName) override { Rename(control, newName); }
  float OuterWidth() const override { return OuterWidthOf(); }
  float OuterHeight() const override { return OuterHeightOf(); }
  void SetOuterSize(float width, float height) override { SetOuterSizeOf(width, height); }

  void SetCtrl(Ref<IControl> control) override;
  Ref<IControl> CurrentControl() const override { return m_Current; }
  ControlTypeEnum ControlTypeToAdd() const override { return typeToAdd; }
  std::vector<Ref<IControl>> FilterControls(ControlTypeEnum type) const override;
  void ShowArrowPointer() override { Write("arrow"); }
  void ShowHandles(bool show) override { Write(show ? "handles" : "no handles"); }
  void OpenControlMenu(IControl& control) override;
  void FrameMouseDown(IControl& frame, int button, int shift, float x, float y) override;
  void FrameMouseMove(int button, int shift, float x, float y) override;
  void FrameMouseUp(int button, int shift, float x, float y) override;
  void SuspendEvents(bool suspend) override { Write(suspend ? "events suspended" : "events resumed"); }
  void ApplyScaleAndGrid() override;
  void RepaintGrid() override { Write("grid"); }
  std::vector<Ref<IControl>> ZList() const override { return m_ZList; }
  void ResetZList() override { m_ZList.clear(); }
  void AppendToZList(Ref<IControl> control) override { m_ZList.push_back(control); }
  void RaisePropertyChanged(int propertyIndex, const Variant& value) override;
  void RaiseRefreshPropertyList() override { Write("RefreshPropertyList"); }
  void RaiseAttribsList(std::vector<Text> names) override;
  void RaiseNeedResize(float width, float height) override;

  ControlTypeEnum typeToAdd = ControlTypeEnum::ctDefault;
  std::function<void(IControl&)> onMenu;

 protected:
  const MemberTable& Members() const override;

 private:
  Ref<IControl> m_Current;
  std::vector<Ref<IControl>> m_ZList;
};

/// A form being filled in that logs the procedures that its elements run.
class FakeInput final : public TableObject, public InputOwner, public OwnerRecord {
 public:
  explicit FakeInput(Surface& surface) : OwnerRecord(surface) {}
  ~FakeInput() override { ForgetControls(); }

  Text TypeName() const override { return u"FormInput"; }

  Collection& Controls() override { return *m_Controls; }
  Surface* GetSurface() override { return m_Surface; }
  void ChangeControlName(Ref<Object> control, const Text& newName) override { Rename(control, newName); }
  float OuterWidth() const override { return OuterWidthOf(); }
  float OuterHeight() const override { return OuterHeightOf(); }
  void SetOuterSize(float width, float height) override { SetOuterSizeOf(width, height); }

  bool CanRunScripts() const override { return canRunScripts; }
  bool RunEvent(const Text& procedure) override;
  Text Caption() const override { return caption; }
  void SetCaption(const Text& text) override;
  void LayOut() override { Write("LayOut"); }

  bool canRunScripts = true;
  Text caption;
  std::function<void()> onRun;

 protected:
  const MemberTable& Members() const override;
};

}  // namespace cardwright
