// SPDX-License-Identifier: MIT
// The workbench on a form of 500 controls: filling the property grid for a selection, selecting a control
// with everything that follows it, a step of the history, and a step back.

#include <QApplication>
#include <QStandardPaths>

#include "FormFiles.h"
#include "Measure.h"
#include "cardwright/qt/values/QtText.h"
#include "workbench/Workbench.h"
#include "workbench/grid/PropertyGrid.h"
#include "workbench/panes/ControlList.h"

namespace {

using cardwright::IControl;
using cardwright::Ref;
using cardwright::workbench::Workbench;

constexpr int kFrames = 25;
constexpr int kRounds = 41;

template <class Work>
double MedianOf(Work&& work) {
  std::vector<double> times;
  for (int round = 0; round < kRounds; ++round) times.push_back(bench::Time([&] { work(round); }));
  return bench::Median(std::move(times));
}

}  // namespace

int main(int argc, char** argv) {
  QStandardPaths::setTestModeEnabled(true);
  QApplication application(argc, argv);
  cardwright::qt::Library library;
  cardwright::desktop::DataSource data(library);
  Workbench window(data);
  window.show();

  const std::string path = CARDWRIGHT_BENCH_DATA "/workbench.cwf";
  bench::WriteProject(path, bench::MixedForm(kFrames));
  if (!window.Project().Open(QString::fromStdString(path)).isEmpty()) return 1;
  QApplication::processEvents();
  auto& designer = window.Project().Designer();
  const std::vector<Ref<IControl>> controls = ControlsOf(designer.Controls());
  const std::string form = " on a form of " + std::to_string(controls.size() - 1) + " controls";
  const auto at = [&](int round) {
    return controls[1 + static_cast<std::size_t>(round) * 97 % (controls.size() - 1)];
  };

  bench::Report("property grid refilled and painted for a selection" + form, MedianOf([&](int round) {
                  window.Grid().Show(at(round));
                  window.Grid().View().viewport()->repaint();
                }),
                "ms", 5);
  bench::Report("control selected, the workbench following" + form,
                MedianOf([&](int round) { designer.SetCtrl(at(round)); }), "ms", 0);
  bench::Report("list of controls filled anew" + form, MedianOf([&](int) { window.List().Show(designer); }),
                "ms", 0);
  bench::Report("a change taken into the history" + form, MedianOf([&](int round) {
                  at(round)->SetLeft(static_cast<float>(round));
                  window.Project().RecordNow();
                }),
                "ms", 0);
  bench::Report("a step undone" + form, MedianOf([&](int) { window.Project().Undo(); }), "ms", 0);
}
