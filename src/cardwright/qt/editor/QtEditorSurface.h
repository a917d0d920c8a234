// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QTimer>
#include <functional>

#include "cardwright/editor/EditorSurface.h"
#include "cardwright/qt/editor/QtCompletionList.h"
#include "cardwright/qt/editor/QtLexipad.h"
#include "cardwright/qt/editor/QtToolbar.h"
#include "cardwright/qt/surface/QtSurface.h"
#include "cardwright/qt/widgets/CaptionWidgets.h"
#include "cardwright/qt/widgets/QtComboBox.h"
#include "cardwright/qt/widgets/QtPictureBox.h"

namespace cardwright::qt {

class DescriptionDialog;
class FindDialog;

/// The surface of a script editor on a toolkit widget, its canvas.
class QtEditorSurface final : public QObject, public EditorSurface {
  Q_OBJECT
 public:
  QtEditorSurface(QWidget& canvas, std::function<bool()> isRunning);
  ~QtEditorSurface() override;

  void SetListener(EditorListener* listener) override { m_Listener = listener; }

  Ref<Lexipad> Pad() override { return m_Pad; }
  Ref<ToolbarWidget> Toolbar() override { return m_Toolbar; }
  Ref<ComboWidget> ControlsCombo() override { return m_ControlsCombo; }
  Ref<ComboWidget> EventsCombo() override { return m_EventsCombo; }
  Ref<CaptionWidget> PositionLabel() override { return m_PositionLabel; }
  Ref<CaptionWidget> LanguageLabel() override { return m_LanguageLabel; }
  Ref<PictureWidget> Popup() override { return m_Popup; }
  Ref<CompletionListWidget> PopupList() override { return m_PopupList; }
  Ref<CaptionWidget> PopupTip() override { return m_PopupTip; }
  DescriptionWindow& Description() override;
  std::vector<Ref<Object>> TaggedWidgets() override { return {m_Toolbar}; }

  void LayOut() override;
  float Width() const override { return m_Surface.Width(); }
  float Height() const override { return m_Surface.Height(); }
  float TextWidth(const Text& text) const override;
  float TextHeight() const override;
  float PadOffset() const override { return 0; }

  void SetPopupSizable(bool sizable) override;
  void SetTimer(bool runs) override;
  bool IsRunning() const override { return m_IsRunning(); }
  bool IsPopupFocused() const override;
  ScreenRect HostFrame() const override;
  Ref<HostWindow> Host() const override { return m_Surface.Host(); }
  void FocusHost() override;

  std::optional<SearchRequest> AskSearch(const Text& text) override;
  void UnloadSearch() override;
  void ShowOptions(SyntaxOptions& options) override;
  void TellPropertyChanged(std::u16string_view name) override;

  /// The object that scripts know as the parent of the widgets. Not owned: it has to outlive the surface.
  void SetControl(Object* control) { m_Surface.SetControl(control); }
  /// The canvas; null once it is gone.
  QWidget* Native() const noexcept { return m_Surface.Native(); }
  /// One of the widgets by its name, whatever its case; null where there is none.
  Ref<Widget> OwnWidget(std::u16string_view name) const;
  /// The window that describes a command.
  QWidget* DescriptionWidget() const;

 Q_SIGNALS:
  /// What a container keeps under this name has changed.
  void KeptPropertyChanged(const QString& name);

 private:
  class Grip;

  template <class WidgetClass, class... Arguments>
  Ref<WidgetClass> Make(std::u16string_view name, QWidget& parent, Arguments&&... arguments);
  bool eventFilter(QObject* target, QEvent* event) override;
  void OnFocusMoved(QWidget* before, QWidget* now);
  bool IsOurs(const QWidget* widget) const;
  void PlacePanes();
  void FillPopup();
  template <class Call>
  void Tell(Call&& call) {
    if (m_Listener) call(*m_Listener);
  }

  QtSurface m_Surface;
  const std::function<bool()> m_IsRunning;
  EditorListener* m_Listener = nullptr;
  Ref<QtToolbar> m_Toolbar;
  Ref<QtComboBox> m_ControlsCombo;
  Ref<QtComboBox> m_EventsCombo;
  Ref<QtLexipad> m_Pad;
  Ref<QtLabel> m_PositionLabel;
  Ref<QtLabel> m_LanguageLabel;
  Ref<QtPictureBox> m_Popup;
  Ref<QtCompletionList> m_PopupList;
  Ref<QtLabel> m_PopupTip;
  Grip* m_Grip;
  QTimer m_Timer;
  QPointer<DescriptionDialog> m_Description;
  QPointer<FindDialog> m_Find;
  bool m_WasShown = false;
};

}  // namespace cardwright::qt
