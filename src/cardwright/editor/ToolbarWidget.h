// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <vector>

#include "cardwright/platform/Widget.h"

namespace cardwright {

/// A button of a toolbar. Default member: Value, 1 for a check button that is pressed, else 0.
class ToolButton : public TableObject {
 public:
  Text TypeName() const override { return u"Button"; }

  Text Key() const { return m_Key; }
  Text Tag() const { return m_Tag; }
  void SetTag(const Text& tag) { m_Tag = tag; }
  virtual Text Caption() const = 0;
  virtual void SetCaption(const Text& caption) = 0;
  virtual Text TooltipText() const = 0;
  virtual void SetTooltipText(const Text& text) = 0;
  virtual bool IsEnabled() const = 0;
  virtual void SetEnabled(bool enabled) = 0;
  virtual bool IsVisible() const = 0;
  virtual void SetVisible(bool visible) = 0;
  virtual std::int32_t Value() const = 0;
  virtual void SetValue(std::int32_t value) = 0;

 protected:
  ToolButton(Text key, Text tag) : m_Key(std::move(key)), m_Tag(std::move(tag)) {}
  const MemberTable& Members() const override;

 private:
  const Text m_Key;
  Text m_Tag;
};

/// The buttons of a toolbar by key, whatever its case, or by position from 1. Default member: Item.
class ToolButtons final : public TableObject {
 public:
  explicit ToolButtons(std::vector<Ref<ToolButton>> buttons) : m_Buttons(std::move(buttons)) {}

  Text TypeName() const override { return u"Buttons"; }
  std::int32_t Count() const noexcept { return static_cast<std::int32_t>(m_Buttons.size()); }
  /// Null where there is no button of that key.
  Ref<ToolButton> Find(std::u16string_view key) const;
  /// Error 9 for a position outside, 35601 for a key that no button has.
  Ref<ToolButton> Item(const Variant& index) const;
  std::unique_ptr<Enumerator> Enumerate() override;

 protected:
  const MemberTable& Members() const override;

 private:
  const std::vector<Ref<ToolButton>> m_Buttons;
};

class ToolbarWidget : public Widget {
 public:
  Text TypeName() const override { return u"Toolbar"; }
  Text DisplayText() const override { return {}; }
  void SetDisplayText(const Text& /*text*/) override {}
  virtual Ref<ToolButtons> Buttons() const = 0;

 protected:
  const MemberTable& Members() const override;
};

}  // namespace cardwright
