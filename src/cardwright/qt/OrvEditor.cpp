// SPDX-License-Identifier: MIT
#include "cardwright/qt/OrvEditor.h"

#include "cardwright/qt/editor/QtEditorSurface.h"
#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {

OrvEditor::OrvEditor(QWidget* parent)
    : VisualControl(parent),
      m_Surface(std::make_unique<QtEditorSurface>(*this, [this] { return !DesignMode(); })),
      m_Editor(cardwright::OrvEditor::Create(*m_Surface)) {
  m_Surface->SetControl(m_Editor.get());
  m_Connection = m_Editor->Connect([this](std::u16string_view event, Args) { Forward(event); });
  connect(m_Surface.get(), &QtEditorSurface::KeptPropertyChanged, this, &OrvEditor::TellKept);
}

// The control may live on in the hands of a script, or in the middle of an event that closed the window.
OrvEditor::~OrvEditor() {
  m_Editor->Disconnect(m_Connection);
  m_Editor->DetachSurface();
}

void OrvEditor::Forward(std::u16string_view event) {
  if (event == u"UserSaveChange") {
    Q_EMIT UserSaveChange();
  } else if (event == u"SelChange") {
    Q_EMIT SelChange();
  } else if (event == u"Change") {
    Q_EMIT Change();
  }
}

void OrvEditor::TellKept(const QString& name) {
  if (name == QLatin1String("SaveButtonVisible")) Q_EMIT SaveButtonVisibleChanged(SaveButtonVisible());
  if (name == QLatin1String("OrvInfoSearchPath")) Q_EMIT OrvInfoSearchPathChanged(OrvInfoSearchPath());
  if (name == QLatin1String("ToolbarVisible")) Q_EMIT ToolbarVisibleChanged(ToolbarVisible());
}

QSize OrvEditor::sizeHint() const {
  const int character = fontMetrics().averageCharWidth();
  return {character * 90, fontMetrics().height() * 30};
}

bool OrvEditor::ProjectRead(const QString& fileName) { return m_Editor->ProjectRead(FromQString(fileName)); }
QString OrvEditor::FileContent() const { return ToQString(m_Editor->FileContent()); }
void OrvEditor::SetFileContent(const QString& document) { m_Editor->SetFileContent(FromQString(document)); }
bool OrvEditor::FileModified() const { return m_Editor->FileModified(); }
void OrvEditor::SetFileModified(bool modified) { m_Editor->SetFileModified(modified); }
bool OrvEditor::TerminateRequested() { return m_Editor->TerminateRequested(); }
bool OrvEditor::SaveButtonVisible() const { return m_Editor->SaveButtonVisible(); }
void OrvEditor::SetSaveButtonVisible(bool visible) { m_Editor->SetSaveButtonVisible(visible); }
QString OrvEditor::OrvInfoSearchPath() const { return ToQString(m_Editor->OrvInfoSearchPath()); }
void OrvEditor::SetOrvInfoSearchPath(const QString& path) {
  m_Editor->SetOrvInfoSearchPath(FromQString(path));
}
bool OrvEditor::ToolbarVisible() const { return m_Editor->ToolbarVisible(); }
void OrvEditor::SetToolbarVisible(bool visible) { m_Editor->SetToolbarVisible(visible); }

}  // namespace cardwright::qt
