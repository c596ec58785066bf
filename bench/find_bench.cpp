// Finding and summing in a report: how long until the end, against a plain loop over the
// same cells, and how long events wait meanwhile.

#include "paint_data.h"

#include "widgets/grid/grid_view.h"
#include "widgets/tools/find_tool.h"
#include "widgets/tools/sums_tool.h"
#include "widgets/zkp_grid_widget.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>

#include <cstdio>
#include <cstring>

namespace zkp::bench {

namespace {

constexpr int kColumnTwips = 1500;
constexpr int kRowTwips = 285;
constexpr QSize kWindow{1280, 800};

double millisecondsOf(const std::function<void()>& work) {
    QElapsedTimer clock;
    clock.start();
    work();
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

/// Runs the event loop until something is done, and tells how long it took and the longest turn.
struct Waited {
    double whole = 0;
    double longestTurn = 0;
};

Waited waitUntil(const std::function<bool()>& isDone) {
    Waited waited;
    waited.whole = millisecondsOf([&] {
        while (!isDone())
            waited.longestTurn =
                std::max(waited.longestTurn, millisecondsOf([] { QApplication::processEvents(); }));
    });
    return waited;
}

void tell(const char* what, double start, const Waited& waited, double raw) {
    std::printf("%-34s started in %6.1f ms, done in %8.1f ms, longest turn %5.1f ms; plain loop %8.1f ms, "
                "ratio %.2f\n",
                what, start, waited.whole, waited.longestTurn, raw, waited.whole / raw);
}

void measureFind(ZkpGridWidget& report, int rows) {
    GridSurface& surface = report.grid().MSFlexGrid1();
    FindTool find;
    QWidget& line = *find.widget();
    find.setReport(&report);
    find.open();
    auto* edit = line.findChild<QLineEdit*>(QStringLiteral("findText"));
    auto* note = line.findChild<QLabel*>(QStringLiteral("findNote"));
    const auto isRunning = [&] { return note->text().endsWith(u'%'); };
    qsizetype characters = 0;
    const double raw = millisecondsOf([&] {
        for (int row = 1; row <= rows; ++row)
            for (int col = 0; col < kColumns; ++col)
                characters += surface.TextMatrix(row, col).size();
    });

    double start = millisecondsOf([&] { edit->setText(QStringLiteral("παπαδοπουλος")); });
    tell("a hit nearby", start, waitUntil([&] { return !isRunning(); }), raw);
    surface.setTextMatrix(rows, 9, QStringLiteral("ακριβώς εδώ"));
    start = millisecondsOf([&] { edit->setText(QStringLiteral("ΑΚΡΙΒΩΣ")); });
    tell("a hit in the last cell", start, waitUntil([&] { return !isRunning(); }), raw);
    start = millisecondsOf([&] { edit->setText(QStringLiteral("ουδαμού")); });
    tell("nothing", start, waitUntil([&] { return !isRunning(); }), raw);
    start = millisecondsOf([&] { edit->setText(QStringLiteral("ουδαμού α")); });
    const Waited typedOn = waitUntil([&] { return true; });
    tell("typing on: the search before ends", start, typedOn, raw);
    if (characters == 0)
        std::printf("no texts\n");
}

void measureSums(ZkpGridWidget& report, int rows) {
    GridSurface& surface = report.grid().MSFlexGrid1();
    SumsTool sums;
    const QLabel& label = static_cast<QLabel&>(*sums.widget());
    sums.setReport(&report);
    constexpr int kAmounts = 6; // the first column of amounts
    Decimal sum;
    const double raw = millisecondsOf([&] {
        for (int row = 1; row <= rows; ++row)
            if (const auto number = surface.shownNumber(row, kAmounts))
                sum += *number;
    });
    const double start = millisecondsOf([&] { surface.Select(1, kAmounts, rows, kAmounts); });
    const Waited waited = waitUntil([&] { return !label.text().isEmpty() && !label.text().endsWith(u'%'); });
    tell("sums of one column of amounts", start, waited, raw);
    if (label.text().isEmpty() || sum.isZero())
        std::printf("no sum\n");
}

} // namespace

int run(int rows) {
    ZkpGridWidget report;
    GridSurface& surface = report.grid().MSFlexGrid1();
    report.grid().setCols(kColumns);
    setUp(surface, kColumnTwips, kRowTwips);
    load(surface, rows, 0);
    report.resize(kWindow);
    report.show();
    QApplication::processEvents();
    std::printf("%d rows x %d columns\n", rows, kColumns);
    measureFind(report, rows);
    measureSums(report, rows);
    return 0;
}

} // namespace zkp::bench

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    int rows = 1'000'000;
    for (int i = 1; i + 1 < argc; ++i)
        if (std::strcmp(argv[i], "--rows") == 0)
            rows = std::atoi(argv[i + 1]);
    return zkp::bench::run(rows);
}
