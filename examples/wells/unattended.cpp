// SPDX-License-Identifier: MIT
// Fills in the example form as a user would, on a machine without a display: the same window, widgets, keys
// and mouse, on the toolkit's offscreen platform. Prints every host command, writes a picture of the form and
// shows the feature's row before and after.

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>
#include <QVBoxLayout>
#include <cstdio>

#include "cardwright/automation/Errors.h"
#include "cardwright/hosting/FormScripts.h"
#include "cardwright/jscript/JScriptEngine.h"
#include "cardwright/orv/EmbeddedHost.h"
#include "cardwright/qt/FormInput.h"
#include "cardwright/qt/Library.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/vbscript/VbScriptEngine.h"

using namespace cardwright;

namespace {

constexpr const char16_t* kForm = u"examples/wells/well-inspection.cwf";
constexpr const char16_t* kData = u"build/demo/wells.gpkg";
constexpr const char* kPicture = "build/demo/well-inspection.png";
constexpr const char16_t* kFeature = u"3";

void Say(const QString& line) {
  std::fputs((line + u'\n').toUtf8().constData(), stdout);
  std::fflush(stdout);
}

/// The widget that shows an element of the form.
QWidget& WidgetNamed(qt::FormInput& form, const char16_t* userName) {
  const IControl* control = FindControl(form.Object()->Controls(), userName);
  const QString name = control ? qt::ToQString(control->Name()) : QString();
  QWidget* widget = control ? form.findChild<QWidget*>(name) : nullptr;
  if (!widget) qFatal("the form has no %s", qUtf8Printable(qt::ToQString(userName)));
  return *widget;
}

void Press(QWidget& widget, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
  QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
  QApplication::sendEvent(&widget, &press);
  QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
  QApplication::sendEvent(&widget, &release);
}

/// Selects the text of a field and replaces it by typing.
void Type(QWidget& field, const QString& text) {
  field.setFocus();
  Press(field, Qt::Key_A, Qt::ControlModifier, {});
  for (const QChar c : text) Press(field, Qt::Key_unknown, Qt::NoModifier, c);
}

void Click(QWidget& widget, QPoint at) {
  QMouseEvent press(QEvent::MouseButtonPress, at, widget.mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {});
  QApplication::sendEvent(&widget, &press);
  QMouseEvent release(QEvent::MouseButtonRelease, at, widget.mapToGlobal(at), Qt::LeftButton, Qt::NoButton,
                      {});
  QApplication::sendEvent(&widget, &release);
}

/// The row of the feature as the data source has it.
void ShowRow(HostConnection& host) {
  const Text theme = u"|wells| |POINT|";
  host.Execute(Text(u"THEME_SELECTION_BYVALUE ") + theme + u" OVTARVOUNIQUEID = " + kFeature + u" NEW");
  host.Execute(Text(u"THEME_MOVEFIRST ") + theme);
  const QString names = qt::ToQString(host.Request(Text(u"THEME_ATTRIBUTE_NAMES ") + theme));
  for (const QString& name : names.split(u',')) {
    const Text value = host.Request(Text(u"THEME_GET_ATTRIBUTE ") + theme + u" |" + qt::ViewOf(name) + u"|");
    Say(QStringLiteral("  %1 %2").arg(name, -12).arg(qt::ToQString(value)));
  }
  host.Execute(Text(u"THEME_SELECTION_NONE ") + theme);
}

void ChangeSomeValues(qt::FormInput& form) {
  Type(WidgetNamed(form, u"txtOwner"), QStringLiteral("Comune di Forlì"));
  Type(WidgetNamed(form, u"txtDepth"), QStringLiteral("48.5"));
  Type(WidgetNamed(form, u"txtInspected"), QStringLiteral("2026-11-21"));
  QWidget& monitored = WidgetNamed(form, u"chkMonitored");
  Click(monitored, {8, monitored.height() / 2});
  QWidget& industrial = WidgetNamed(form, u"optIndustrial");
  Click(industrial, {8, industrial.height() / 2});
}

int Run() {
  ProvideFormScripts({vbscript::Language(), jscript::Language()});
  qt::Library library;
  const Ref<EmbeddedHost> store = EmbeddedHost::Open(kData);
  store->onError = [](const Text& reason) { Say(QStringLiteral("REFUSED: ") + qt::ToQString(reason)); };
  const auto log = MakeRef<LoggedConnection>(store);
  library.Connect(log);
  Say(QStringLiteral("Well %1 before:").arg(qt::ToQString(kFeature)));
  ShowRow(*store);
  Say(QStringLiteral("\nHost commands (X execute, R request):"));
  log->onLine = [](std::u16string_view line) { Say(qt::ToQString(line)); };

  QWidget window;
  QVBoxLayout layout(&window);
  layout.setContentsMargins({});
  auto* form = new qt::FormInput(&window);
  layout.addWidget(form);
  bool accepted = false;
  QObject::connect(form, &qt::FormInput::NeedResize, &window, [&] { window.adjustSize(); });
  QObject::connect(form, &qt::FormInput::OkClick, &window, [&] { accepted = true; });
  if (!form->ProjectRead(qt::ToQString(kForm))) qFatal("the form could not be read");
  form->SetFeatureID(qt::ToQString(kFeature));
  window.show();
  QApplication::processEvents();
  ChangeSomeValues(*form);
  QApplication::processEvents();
  if (!window.grab().save(QString::fromUtf8(kPicture))) qFatal("the picture could not be written");
  QWidget* ok = form->findChild<QWidget*>(QStringLiteral("cmdOK"));
  Click(*ok, ok->rect().center());
  log->onLine = nullptr;

  Say(QStringLiteral("\nWell %1 after:").arg(qt::ToQString(kFeature)));
  ShowRow(*store);
  return accepted ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  try {
    return Run();
  } catch (const Error& error) {
    Say(qt::ToQString(error.Description()));
    return 1;
  }
}
