// SPDX-License-Identifier: MIT
// The designer at work on a form of 500 mixed controls: opening it, selecting, a step of a drag, the grid.

#include <QApplication>
#include <QLabel>
#include <QRubberBand>
#include <QTimer>
#include <QWindow>
#include <array>
#include <memory>

#include "FormFiles.h"
#include "Measure.h"
#include "cardwright/qt/FormDesigner.h"
#include "cardwright/qt/FormInput.h"
#include "cardwright/qt/Library.h"
#include "cardwright/qt/surface/QtDesignSurface.h"
#include "cardwright/robot/input/PlatformInput.h"

namespace {

using cardwright::qt::FormDesigner;
using cardwright::qt::FormInput;
using Clock = std::chrono::steady_clock;

void Require(bool holds) {
  if (!holds) std::abort();
}

void Serve() { QCoreApplication::processEvents(); }

template <class Form>
void Open(const QString& path) {
  Form form;
  Require(form.ProjectRead(path));
}

std::unique_ptr<FormDesigner> OpenShown(const QString& path) {
  auto designer = std::make_unique<FormDesigner>();
  Require(designer->ProjectRead(path));
  designer->show();
  designer->activateWindow();
  Serve();
  return designer;
}

/// The least that a toolkit has to do for nine handles: nine small widgets that go elsewhere.
class BareHandles {
 public:
  explicit BareHandles(QWidget& canvas) {
    for (QWidget*& handle : m_Handles) {
      handle = new QWidget(&canvas);
      handle->setAutoFillBackground(true);
      handle->resize(7, 7);
      handle->show();
    }
  }
  void MoveTo(QPoint at) {
    for (std::size_t i = 0; i < m_Handles.size(); ++i)
      m_Handles[i]->move(at + QPoint(20 * static_cast<int>(i % 3), 20 * static_cast<int>(i / 3)));
  }

 private:
  std::array<QWidget*, 9> m_Handles{};
};

void MeasureSelecting(FormDesigner& designer) {
  const auto controls = cardwright::ControlsOf(designer.Object()->Controls());
  BareHandles bare(designer);
  std::vector<double> ours;
  std::vector<double> floor;
  for (std::size_t i = 1; i < controls.size(); ++i) {
    ours.push_back(bench::Time([&] {
      designer.Object()->SetCtrl(controls[i]);
      Serve();
    }));
    floor.push_back(bench::Time([&] {
      bare.MoveTo(QPoint(static_cast<int>(37 * i % 900), static_cast<int>(37 * i % 700)));
      Serve();
    }));
  }
  bench::Report("Selecting a control, painted: worst of 500", *std::max_element(ours.begin(), ours.end()),
                "ms", 0);
  bench::Report("Selecting a control, painted: median", bench::Median(std::move(ours)), "ms", 2);
  bench::Report("  nine bare widgets", bench::Median(std::move(floor)), "ms", 0);
}

/// A stroke of the mouse, a move in each turn of whatever loop runs; each turn is timed.
std::vector<double> TimeDrag(FormDesigner& designer, QPoint from, int moves) {
  std::vector<double> times;
  QWindow& window = *designer.windowHandle();
  int step = 0;
  auto last = Clock::now();
  QTimer hand;
  const auto send = [&](QEvent::Type type, QPoint at) {
    const bool isMove = type == QEvent::MouseMove;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    cardwright::robot::SendMouse(
        window, {type, at, isMove ? Qt::NoButton : Qt::LeftButton, held, Qt::NoModifier, 1000 + step});
  };
  QObject::connect(&hand, &QTimer::timeout, [&] {
    const auto now = Clock::now();
    if (step > 1) times.push_back(std::chrono::duration<double, std::milli>(now - last).count());
    ++step;
    const QPoint at = from + QPoint(step % 120, step % 90);
    last = Clock::now();
    if (step < moves) return send(QEvent::MouseMove, at);
    hand.stop();
    send(QEvent::MouseButtonRelease, at);
  });
  hand.start(0);
  send(QEvent::MouseButtonPress, from);
  return times;
}

void MeasureDragging(FormDesigner& designer) {
  const auto frame = cardwright::ControlsOf(designer.Object()->Controls())[7];
  designer.Object()->SetCtrl(frame);
  designer.Object()->SetGridStep(2);
  designer.Object()->SetGridAlignment(true);
  Serve();
  auto* const handle = designer.findChild<QWidget*>(QStringLiteral("picResize"));
  Require(handle != nullptr);
  constexpr int kMoves = 400;
  std::vector<double> times = TimeDrag(designer, handle->mapTo(&designer, QPoint(3, 3)), kMoves);
  Require(times.size() > kMoves / 2);
  bench::Report("A step of a drag: worst of 400", *std::max_element(times.begin(), times.end()), "ms", 0);
  bench::Report("A step of a drag: median", bench::Median(std::move(times)), "ms", 4);

  QRubberBand band(QRubberBand::Rectangle, &designer);
  QLabel tip(nullptr, Qt::ToolTip);
  band.show();
  std::vector<double> floor;
  for (int i = 0; i < kMoves; ++i)
    floor.push_back(bench::Time([&] {
      band.setGeometry(100 + i % 120, 100 + i % 90, 170, 21);
      tip.setText(QString::number(i));
      tip.move(i, i);
      tip.show();
      Serve();
    }));
  bench::Report("  the toolkit's own rubber band and label", bench::Median(std::move(floor)), "ms", 0);
}

void MeasureGrid() {
  FormDesigner designer;
  designer.resize(1920, 1080);
  designer.show();
  QWidget bare;
  bare.resize(1920, 1080);
  bare.show();
  Serve();
  std::vector<double> ours;
  std::vector<double> floor;
  for (int i = 0; i < 30; ++i) {
    ours.push_back(bench::Time([&] {
      designer.Object()->SetGrid(8, true);
      designer.repaint();
    }));
    floor.push_back(bench::Time([&] { bare.repaint(); }));
  }
  bench::Report("Grid of 1920 x 1080 at step 8, painted", bench::Median(std::move(ours)), "ms", 8);
  bench::Report("  the same widget without points", bench::Median(std::move(floor)), "ms", 0);
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const cardwright::qt::Library library;
  const std::string file = std::string(CARDWRIGHT_BENCH_DATA) + "/designed.cwf";
  bench::WriteProject(file, bench::MixedForm(25));
  const QString path = QString::fromStdString(file);

  bench::Compare(
      "FormDesigner.ProjectRead, 500 mixed controls", "FormInput.ProjectRead", 1.6, 15,
      [&] { Open<FormDesigner>(path); }, [&] { Open<FormInput>(path); });
  const auto designer = OpenShown(path);
  MeasureSelecting(*designer);
  MeasureDragging(*designer);
  MeasureGrid();
  return 0;
}
