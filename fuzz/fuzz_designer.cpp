// SPDX-License-Identifier: MIT
// The designer with real widgets, as an author and a host use it. An input is a project, followed by a line
// "#orders" and one order a line. Whatever the orders are, the designer is idle between two of them: no tool
// in use, no outline, no hourglass pointer.
//
// An order is a letter and up to five numbers. Any other letter counts as d, and a missing number as 0.
//
//   d CLASS X Y X2 Y2   draws a control
//   h HANDLE X Y X2 Y2  drags a handle of the selected control
//   s N                 selects the Nth object
//   c N                 runs the Nth command
//   r NAME              renames the selected control
//   p N VALUE           sets its Nth property
//   z W H               resizes the surface
//   o W H               sets the outer size of the form
//   g STEP ALIGNED      sets and paints the grid
//   m N X Y             right-clicks at a point and chooses the Nth entry of the menu
//   w                   saves and reads again
//   k KEY               presses a key
//   t N                 performs the Nth act of a host during the next drag or at the next event

#include <QMenu>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <vector>

#include "Offscreen.h"
#include "cardwright/platform/Files.h"
#include "cardwright/qt/FormDesigner.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/WidgetCore.h"

namespace {

using namespace cardwright;

constexpr int kMostOrders = 40;
constexpr int kMostActs = 12;  // of the host, in one input
constexpr int kFarthest = 1'000'000;

void Require(bool holds) {
  if (!holds) std::abort();
}

struct Order {
  char letter = 0;
  std::array<int, 5> numbers{};
  std::string_view rest;
};

Order Parsed(std::string_view line) {
  Order order;
  order.letter = line.front();
  order.rest = line.substr(1);
  std::string_view left = order.rest;
  for (int& number : order.numbers) {
    while (left.starts_with(' ')) left.remove_prefix(1);
    const auto [end, error] = std::from_chars(left.data(), left.data() + left.size(), number);
    number = std::clamp(number, -kFarthest, kFarthest);
    left.remove_prefix(static_cast<std::size_t>(end - left.data()));
    left.remove_prefix(std::min(left.find(' '), left.size()));
  }
  return order;
}

/// One designer in a window, with the author's hand and the host.
class Studio {
 public:
  explicit Studio(Offscreen& offscreen) : m_Offscreen(offscreen) {
    m_Window->resize(400, 300);
    m_Designer->setGeometry(0, 0, 400, 300);
    m_Window->show();
    m_Object->Connect([this](std::u16string_view, Args) { ActAsHost(); });
  }
  ~Studio() {
    m_Act = -1;
    delete m_Window.data();
  }
  Studio(const Studio&) = delete;
  Studio& operator=(const Studio&) = delete;

  void Read(std::string_view project) {
    m_Object->ProjectRead(FromPath(m_Offscreen.Put("designed.cwf", project)));
    RequireRest();
  }

  void Perform(std::string_view orders) {
    int count = 0;
    for (std::size_t from = 0, end; from < orders.size() && count < kMostOrders; from = end + 1) {
      end = std::min(orders.find('\n', from), orders.size());
      const std::string_view line = orders.substr(from, end - from);
      if (line.empty()) continue;
      BestEffort([&] { Obey(Parsed(line)); });
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
      RequireRest();
      ++count;
    }
  }

 private:
  void Obey(const Order& order) {
    const auto& n = order.numbers;
    if (m_Window) m_Window->show();
    const auto nth = [&](std::size_t of) { return static_cast<std::size_t>(std::abs(n[0] % 1000)) % of; };
    switch (order.letter) {
      case 's': return Select(n[0]);
      case 'h': return Stroke(HandleAt(nth(9)) + QPoint(n[1] % 4, n[2] % 4), {{n[1], n[2]}, {n[3], n[4]}});
      case 'c': return Command(nth(9));
      case 'r': return m_Object->ChangeControlName(m_Object->CurrentControl(), Text::FromUtf8(order.rest));
      case 'p': return SetProperty(n[0], order.rest);
      case 'z':
        if (m_Designer) m_Designer->resize(n[0], n[1]);
        return;
      case 'o': return m_Object->SetOuterSize(static_cast<float>(n[0]), static_cast<float>(n[1]));
      case 'g':
        m_Object->SetGridStep(static_cast<std::int16_t>(n[0]));
        m_Object->SetGridAlignment(n[1] % 2 != 0);
        return m_Object->SetGrid(static_cast<std::int16_t>(n[0]), n[2] % 2 != 0);
      case 'm': return Menu(n[0], {n[1], n[2]});
      case 'w': return SaveAndRead();
      case 'k': return Key(n[0]);
      case 't': m_Act = n[0]; return;
      default:
        m_Object->SetControlTypeToAdd(static_cast<ControlTypeEnum>(nth(16)));
        return Stroke({n[1], n[2]}, {{(n[1] + n[3]) / 2, n[2]}, {n[3], n[4]}});
    }
  }

  void Select(int number) {
    const auto controls = ControlsOf(m_Object->Controls());
    if (!controls.empty())
      m_Object->SetCtrl(controls[static_cast<std::size_t>(std::abs(number % 1000)) % controls.size()]);
  }

  void Command(std::size_t number) {
    switch (number) {
      case 0: return m_Object->Cut();
      case 1: return m_Object->Copy();
      case 2: return m_Object->Paste();
      case 3: return m_Object->Delete();
      case 4: return m_Object->SetForeground();
      case 5: return m_Object->SetBackground();
      case 6: return m_Object->LockUnlock();
      case 7: return m_Object->CenterLeft();
      default: return m_Object->CenterTop();
    }
  }

  void SetProperty(int number, std::string_view value) {
    const Ref<IControl> control = m_Object->CurrentControl();
    if (!control || control->PropertyCount() == 0) return;
    const auto row = static_cast<std::int32_t>(std::abs(number % 1000)) % control->PropertyCount();
    control->SetPropertyValue(Variant(row), Variant(Text::FromUtf8(value)));
  }

  void SaveAndRead() {
    const Text path = FromPath(m_Offscreen.folder / "saved.cwf");
    m_Object->ProjectSave(path, true);
    QWidget window;
    qt::FormDesigner second(&window);
    second.Object()->ProjectRead(path);
    if (m_Designer) m_Object->ProjectRead(path);
  }

  void Key(int key) {
    constexpr int kKeys[] = {Qt::Key_Delete, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_A, Qt::Key_Escape};
    if (m_Window)
      QTest::keyClick(m_Window->windowHandle(),
                      static_cast<Qt::Key>(kKeys[static_cast<std::size_t>(std::abs(key % 5))]));
  }

  // Whatever is under the mouse answers to the right button; a menu that opens is used or left.
  void Menu(int entry, QPoint at) {
    if (!m_Window) return;
    QTimer hand;
    QObject::connect(&hand, &QTimer::timeout, [entry] {
      auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (!menu || menu->actions().isEmpty()) return;
      QAction* const action = menu->actions().at(std::abs(entry % 1000) % menu->actions().size());
      menu->setActiveAction(action);
      QTest::keyClick(menu, entry % 2 == 0 ? Qt::Key_Return : Qt::Key_Escape);
      if (menu->isVisible()) menu->close();
    });
    hand.start(0);
    QTest::mousePress(m_Window->windowHandle(), Qt::RightButton, {}, Inside(at));
    if (m_Window) QTest::mouseRelease(m_Window->windowHandle(), Qt::RightButton, {}, Inside(at));
  }

  QPoint Inside(QPoint at) const { return m_Window ? QPoint(at.x() % 500, at.y() % 400) : QPoint(); }

  QPoint HandleAt(std::size_t index) const {
    if (!m_Designer) return {};
    const auto handles = m_Designer->findChildren<QWidget*>(QStringLiteral("picResize"));
    if (index >= static_cast<std::size_t>(handles.size())) return {};
    return handles.at(static_cast<qsizetype>(index))->mapTo(m_Window.data(), QPoint(2, 2));
  }

  // Presses, takes a step in each turn of the loop that this begins, and lets go.
  void Stroke(QPoint from, std::vector<QPoint> steps) {
    if (!m_Window) return;
    QTimer hand;
    std::size_t next = 0;
    QPoint last = from;
    QObject::connect(&hand, &QTimer::timeout, [&] {
      if (next < steps.size()) {
        last = steps[next++];
        if (m_Window) QTest::mouseMove(m_Window->windowHandle(), last);
        return ActInDrag();
      }
      hand.stop();
      if (m_Window) QTest::mouseRelease(m_Window->windowHandle(), Qt::LeftButton, {}, last);
    });
    hand.start(0);
    QTest::mousePress(m_Window->windowHandle(), Qt::LeftButton, {}, from);
    while (hand.isActive()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }

  // In the middle of a drag everything may end at once.
  void ActInDrag() {
    if (m_Act < 0 || ++m_Acts > kMostActs) return;
    const int act = std::exchange(m_Act, -1) % 9;
    if (act == 0) delete m_Window.data();
    if (act == 1 && m_Window) m_Window->hide();
    if (act == 2) Lose(QEvent::WindowDeactivate);
    if (act == 3) Lose(QEvent::WindowBlocked);
    if (act == 4) RemoveContainer();
    BestEffort([&] { ActAnywhere(act); });
  }

  // A host ends the designer when the event is through.
  void ActAsHost() {
    if (m_Act < 0 || ++m_Acts > kMostActs) return;
    const int act = std::exchange(m_Act, -1) % 9;
    if (act == 0 && m_Window) {
      m_Window->close();
      m_Window->deleteLater();
    }
    if (act == 1) Raise(ErrorNumber::InvalidCall);
    if (act == 2) m_Object->DetachSurface();
    ActAnywhere(act);
  }

  void ActAnywhere(int act) {
    if (act == 5) m_Object->Delete();
    if (act == 6) m_Object->Paste();
    if (act == 7 && m_Designer) m_Designer->resize(0, 0);
    if (act == 8) m_Object->ProjectRead(FromPath(m_Offscreen.folder / "designed.cwf"));
  }

  void Lose(QEvent::Type how) {
    if (!m_Designer) return;
    QEvent event(how);
    QCoreApplication::sendEvent(m_Designer.data(), &event);
  }

  void RemoveContainer() {
    const Ref<IControl> current = m_Object->CurrentControl();
    const auto* widget = current ? dynamic_cast<Widget*>(current->BoundObject().get()) : nullptr;
    if (!widget) return;
    BestEffort([&] {
      if (const Ref<Widget> container = widget->Container())
        m_Object->GetSurface()->Remove(container->Name());
    });
  }

  void RequireRest() const {
    Require(!Module().designDragging && !m_Object->IsBusy());
    Require(!QApplication::overrideCursor());
    if (!m_Designer || !m_Object->GetSurface()) {
      Require(m_Object->Controls().Count() == 0);
      return;
    }
    Require(m_Designer->updatesEnabled());
    for (const QObject* child : m_Designer->children()) {
      const auto* edge = qobject_cast<const QWidget*>(child);
      Require(!edge || !edge->testAttribute(Qt::WA_TransparentForMouseEvents) || edge->isHidden());
    }
  }

  Offscreen& m_Offscreen;
  QPointer<QWidget> m_Window = new QWidget;
  QPointer<qt::FormDesigner> m_Designer = new qt::FormDesigner(m_Window);
  const Ref<cardwright::FormDesigner> m_Object = m_Designer->Object();
  int m_Act = -1;  // what the host does next; none below 0
  int m_Acts = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static thread_local Offscreen offscreen;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::size_t orders = bytes.find("#orders");
  Studio studio(offscreen);
  studio.Read(bytes.substr(0, orders));
  if (orders != bytes.npos)
    studio.Perform(bytes.substr(std::min(bytes.find('\n', orders), bytes.size() - 1) + 1));
  return 0;
}
