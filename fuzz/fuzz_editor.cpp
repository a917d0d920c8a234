// SPDX-License-Identifier: MIT
// The script editor with real widgets, as an author and a host use it. An input is a document, followed by a
// line "#orders" and one order a line. Whatever the orders are, the text that the editor gives is the one
// that it takes: setting FileContent to what it is changes nothing, and all ways to read the text agree.
//
// An order is a letter and what it needs. Any other letter counts as t, a missing number as 0. In texts "~"
// stands for CR LF, "`" for CR and "^" for U+2029.
//
//   t TEXT         types
//   v TEXT         pastes
//   r TEXT         replaces the selection
//   s START LENGTH selects
//   k N            presses the Nth key
//   c X Y          clicks into the text
//   b N            presses the Nth button of the toolbar; a dialog that opens is closed
//   e CONTROL N    chooses the Nth entry of the Nth list above the text
//   l N            changes the language, the text staying
//   n N            starts a new source
//   m MODE LINE    reads a line or the text again
//   a N            performs the Nth act of a host at the next event

#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <charconv>
#include <cstdint>
#include <cstdlib>

#include "Offscreen.h"
#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/platform/Files.h"
#include "cardwright/qt/OrvEditor.h"
#include "cardwright/qt/editor/QtEditorSurface.h"
#include "cardwright/qt/values/QtText.h"

namespace {

using namespace cardwright;

constexpr int kMostEditorOrders = 60;
constexpr std::size_t kMostText = 4096;

void Require(bool holds) {
  if (!holds) std::abort();
}

struct Order {
  char letter = 0;
  int first = 0;
  int second = 0;
  std::string_view rest;
};

int TakeNumber(std::string_view& text) {
  while (text.starts_with(' ')) text.remove_prefix(1);
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return number;
}

Order Parsed(std::string_view line) {
  Order order;
  order.letter = line.front();
  order.rest = line.substr(1);
  if (order.rest.starts_with(' ')) order.rest.remove_prefix(1);
  std::string_view left = order.rest;
  order.first = TakeNumber(left);
  order.second = TakeNumber(left);
  return order;
}

Text Decoded(std::string_view bytes) {
  Text text = Text::FromUtf8(bytes.substr(0, kMostText));
  text = Replace(text, u"~", u"\r\n");
  text = Replace(text, u"`", u"\r");
  return Replace(text, u"^", u"\u2029");
}

/// One editor in a window, with the author's hands and the host.
class Desk {
 public:
  explicit Desk(Offscreen& offscreen) : m_Catalogue(FromPath(offscreen.folder / "absent.mdb")) {
    m_Window->resize(700, 400);
    m_Editor->setGeometry(0, 0, 700, 400);
    m_Window->show();
    m_Object->Connect([this](std::u16string_view, Args) { ActAsHost(); });
    m_Closer.callOnTimeout([] {
      if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) dialog->accept();
    });
    m_Closer.start(1);
  }
  ~Desk() {
    m_Act = -1;
    delete m_Window.data();
  }
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;

  void Load(std::string_view document) {
    m_Object->SetFileContent(Text(u"VBScript\r\n") + Decoded(document));
    RequireSameText();
    Require(m_Object->FileContent().Size() == Text(u"VBScript\r\n").Size() + Decoded(document).Size());
  }

  void Perform(std::string_view orders) {
    int count = 0;
    for (std::size_t from = 0, end; from < orders.size() && count < kMostEditorOrders; from = end + 1) {
      end = std::min(orders.find('\n', from), orders.size());
      const std::string_view line = orders.substr(from, end - from);
      if (line.empty()) continue;
      BestEffort([&] { Obey(Parsed(line)); });
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
      QCoreApplication::processEvents();
      RequireSameText();
      ++count;
    }
    RequireRoundTrip();
  }

 private:
  qt::QtEditorSurface* Surface() const { return dynamic_cast<qt::QtEditorSurface*>(m_Object->GetSurface()); }
  QWidget* Keyboard() const {
    return Surface() ? dynamic_cast<qt::WidgetCore&>(*Surface()->Pad()).Native() : nullptr;
  }
  static int Nth(int number, int of) { return of <= 0 ? 0 : std::abs(number % 1000) % of; }

  void Obey(const Order& order) {
    if (!Surface()) return;
    const Ref<Lexipad> pad = Surface()->Pad();
    switch (order.letter) {
      case 'v': return Paste(Decoded(order.rest));
      case 'r': return pad->SetSelText(Decoded(order.rest));
      case 's': pad->SetSelStart(order.first); return pad->SetSelLength(order.second);
      case 'k': return Key(order.first);
      case 'c': return Click(order.first, order.second);
      case 'b': return PressButton(order.first);
      case 'e': return Choose(order.first, order.second);
      case 'l':
        return m_Object->SetFileContent(Text(order.first % 2 == 0 ? u"VBScript\r\n" : u"JScript\r\n") +
                                        pad->Contents());
      case 'n': return m_Object->SetNewSource(order.first % 2 == 0 ? u"VBScript" : u"JScript");
      case 'm':
        return pad->Reformat(order.first % 2 == 0 ? ReformatMode::Line : ReformatMode::Text, order.second);
      case 'a': m_Act = order.first; return;
      default: return Type(Decoded(order.rest));
    }
  }

  void Type(const Text& text) const {
    for (const QChar c : qt::ToQString(text.View().substr(0, 100))) {
      if (!Keyboard()) return;
      if (c == u'\n') continue;
      const int key = c == u'\r' ? int{Qt::Key_Return} : c.toUpper().unicode();
      QTest::sendKeyEvent(QTest::Click, Keyboard(), static_cast<Qt::Key>(key), QString(c), Qt::NoModifier);
    }
  }

  void Paste(const Text& text) const {
    QApplication::clipboard()->setText(qt::ToQString(text));
    QTest::keyClick(Keyboard(), Qt::Key_V, Qt::ControlModifier);
  }

  void Key(int number) const {
    struct Stroke {
      Qt::Key key;
      Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    };
    const Stroke strokes[] = {
        {Qt::Key_Return},
        {Qt::Key_Tab},
        {Qt::Key_Backtab, Qt::ShiftModifier},
        {Qt::Key_Backspace},
        {Qt::Key_Delete},
        {Qt::Key_Up},
        {Qt::Key_Down},
        {Qt::Key_Left},
        {Qt::Key_Right},
        {Qt::Key_Home, Qt::ControlModifier},
        {Qt::Key_End, Qt::ControlModifier},
        {Qt::Key_A, Qt::ControlModifier},
        {Qt::Key_Z, Qt::ControlModifier},
        {Qt::Key_Y, Qt::ControlModifier},
        {Qt::Key_X, Qt::ControlModifier},
        {Qt::Key_I, Qt::ControlModifier},
        {Qt::Key_F3},
        {Qt::Key_Escape},
        {Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier},
    };
    const Stroke& stroke = strokes[static_cast<std::size_t>(Nth(number, std::size(strokes)))];
    QTest::keyClick(Keyboard(), stroke.key, stroke.modifiers);
  }

  void Click(int x, int y) const {
    const QPoint at(Nth(x, 700), Nth(y, 400));
    QTest::mouseClick(m_Window->windowHandle(), Qt::LeftButton, {}, at);
  }

  void PressButton(int number) const {
    const char16_t* const keys[] = {u"save",  u"undo",  u"redo",   u"find",    u"findnext",
                                    u"subst", u"props", u"method", u"function"};
    const std::u16string_view key = keys[Nth(number, std::size(keys))];
    if (key == u"undo") return m_Object->DoUndo();
    if (key == u"redo") return m_Object->DoRedo();
    if (key == u"find") return m_Object->DoFind();
    if (key == u"findnext") return m_Object->DoFindNext();
    if (key == u"props") return m_Object->DoShowProps();
    if (key == u"method") return m_Object->DoAddOrvCommand();
    if (key == u"function") return m_Object->DoAddOrvRequest();
    if (key == u"subst") return m_Object->DoReplace();
    m_Object->DoSave();
  }

  void Choose(int list, int entry) const {
    const Ref<ComboWidget> combo = list % 2 == 0 ? Surface()->ControlsCombo() : Surface()->EventsCombo();
    if (combo->ListCount() > 0) combo->SetListIndex(Nth(entry, combo->ListCount()));
  }

  // A host ends the editor when the event is through.
  void ActAsHost() {
    if (m_Act < 0) return;
    switch (std::exchange(m_Act, -1) % 6) {
      case 0:
        m_Window->close();
        m_Window->deleteLater();
        break;
      case 1: Raise(ErrorNumber::InvalidCall);
      case 2: return m_Object->DetachSurface();
      case 3: return m_Object->SetFileContent(u"JScript\r\nfunction a_b() {\r\n}\r\n");
      case 4: return m_Object->SetOrvInfoSearchPath(m_Catalogue);
      default: return m_Object->ReadControls(nullptr);
    }
  }

  void RequireSameText() {
    if (!Surface()) return;
    const Ref<Lexipad> pad = Surface()->Pad();
    const Text text = pad->Contents();
    Require(pad->TextLength() == static_cast<std::int32_t>(text.Size()));
    Require(pad->TextRange(0, pad->TextLength()) == text);
    Require(pad->SelStart() >= 0 && pad->SelStart() + pad->SelLength() <= pad->TextLength());
    Require(m_Object->FileContent() == m_Object->Language() + u"\r\n" + text);
  }

  void RequireRoundTrip() {
    if (!Surface()) return;
    m_Act = -1;
    const Ref<Lexipad> pad = Surface()->Pad();
    const Text text = pad->Contents();
    m_Object->SetFileContent(m_Object->FileContent());
    Require(pad->Contents().Size() == text.Size());
    Require(EqualsNoCase(pad->Contents(), text));  // names take the spelling of their declarations
  }

  const Text m_Catalogue;
  QPointer<QWidget> m_Window = new QWidget;
  QPointer<qt::OrvEditor> m_Editor = new qt::OrvEditor(m_Window);
  const Ref<cardwright::OrvEditor> m_Object = m_Editor->Object();
  QTimer m_Closer;
  int m_Act = -1;  // what the host does next; none below 0
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static thread_local Offscreen offscreen;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::size_t orders = bytes.find("#orders");
  Desk desk(offscreen);
  desk.Load(bytes.substr(0, orders));
  if (orders != bytes.npos)
    desk.Perform(bytes.substr(std::min(bytes.find('\n', orders), bytes.size() - 1) + 1));
  return 0;
}
