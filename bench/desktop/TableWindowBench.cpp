// What a user waits for at a rating table of 10 000 rows: the series, the window's first picture, and every
// page on the way from the first row to the last.
#include <QAbstractItemModel>
#include <QApplication>
#include <QElapsedTimer>
#include <QScrollBar>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "RatingProblems.h"
#include "app/Declarations.h"
#include "desktop/kit/GridTable.h"
#include "desktop/rating/TableView.h"
#include "rating/RatingSeries.h"

namespace {

/// Milliseconds until `act` is done and all that it asks for is painted.
template <class Act>
double Wait(Act act) {
  QElapsedTimer clock;
  clock.start();
  act();
  QApplication::processEvents();
  return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

}  // namespace

int main(int argc, char* argv[]) {
  const QApplication application(argc, argv);
  const frmMain& main = RatingProblems::EmptyWindow();
  RatingProblems::Valley();
  RatingProblems::SetRange(10000, 20000);
  const double series = Wait([&] { RunRatingSeries(main, RatingRange, LastValue::Snapped, [](int) {}); });

  frmTable form(main);
  const double loaded = Wait([&] { form.Load(); });
  TableView view(form, nullptr);
  auto* const table = view.findChild<GridTable*>();
  const double shown = Wait([&] {
    view.show();
    table->viewport()->repaint();
  });

  QScrollBar* const bar = table->verticalScrollBar();
  std::vector<double> pages;
  while (bar->value() < bar->maximum()) {
    pages.push_back(Wait([&] {
      bar->setValue(bar->value() + bar->pageStep());
      table->viewport()->repaint();
    }));
  }
  const double jump = Wait([&] {
    bar->setValue(0);
    table->viewport()->repaint();
  });
  std::ranges::sort(pages);
  std::printf("%d rows: series %.0f ms, series as rows %.0f ms, window shown %.0f ms\n",
              table->model()->rowCount(), series, loaded, shown);
  std::printf("%zu pages: median %.2f ms, longest %.2f ms; back to the top %.2f ms\n", pages.size(),
              pages[pages.size() / 2], pages.back(), jump);
}
