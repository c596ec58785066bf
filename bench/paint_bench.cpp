// How long the view needs for a page, against the toolkit's own table view over a thin model of the
// same surface, painted off screen in the same run. Usage: paint_bench [--rows N]

#include "paint_data.h"
#include "widgets/grid/grid_view.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <random>

namespace zkp::bench {

namespace {

constexpr QSize kWindow(1600, 900);
constexpr int kRowPixels = 21; // 41 rows and the heading
constexpr int kColumnPixels = 158;
constexpr int kTwipsPerPixel = 15;

class ThinModel : public QAbstractTableModel {
public:
    explicit ThinModel(const GridSurface& surface)
        : surface_(surface) {}
    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : surface_.Rows() - 1;
    }
    int columnCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : kColumns; }
    QVariant data(const QModelIndex& index, int role) const override {
        if (role == Qt::DisplayRole)
            return surface_.TextMatrix(index.row() + 1, index.column());
        if (role == Qt::TextAlignmentRole && index.column() >= 6)
            return QVariant(Qt::AlignRight | Qt::AlignVCenter);
        return {};
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (role == Qt::DisplayRole && orientation == Qt::Horizontal)
            return surface_.TextMatrix(0, section);
        return {};
    }
    void reload(const std::function<void()>& load) {
        beginResetModel();
        load();
        endResetModel();
    }

private:
    const GridSurface& surface_;
};

/// Counts paints, so that a step that painted nothing cannot pass for a fast one.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget* widget) { widget->installEventFilter(this); }
    int count = 0;
    bool swallows = false;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Paint)
            return false;
        count += !swallows;
        return swallows;
    }
};

void settle() {
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

/// Median microseconds of a step with its paint; `prepare` is not counted.
double median(int times, PaintCounter& paints, const std::function<void(int)>& prepare,
              const std::function<void(int)>& step) {
    std::vector<double> all;
    for (int i = 0; i < times; ++i) {
        prepare(i);
        const int before = paints.count;
        QElapsedTimer timer;
        timer.start();
        step(i);
        while (paints.count == before)
            QCoreApplication::processEvents();
        all.push_back(static_cast<double>(timer.nsecsElapsed()) / 1000);
    }
    std::nth_element(all.begin(), all.begin() + times / 2, all.end());
    return all[static_cast<std::size_t>(times / 2)];
}

struct Times {
    double first = 0;
    double page = 0;
    double line = 0;
};

/// Some other place at every step, the same places for both views.
std::vector<int> places(int rows) {
    std::mt19937 random(7);
    std::vector<int> result(64);
    for (int& place : result)
        place = 1 + static_cast<int>(random() % static_cast<unsigned>(std::max(1, rows - 60)));
    return result;
}

Times ofGridView(int rows) {
    GridSurface surface;
    setUp(surface, kColumnPixels * kTwipsPerPixel, kRowPixels * kTwipsPerPixel);
    load(surface, rows, 0);
    GridView view(surface);
    view.resize(kWindow);
    view.show();
    settle();
    PaintCounter paints(view.viewport());
    const auto where = places(rows);
    const auto at = [&](int i) { return where[static_cast<std::size_t>(i) % where.size()]; };
    const auto nothing = [](int) { settle(); };
    Times times;
    times.first = median(
        21, paints,
        [&](int i) {
            settle();
            load(surface, rows, 1 + static_cast<unsigned>(i));
        },
        [](int) {});
    times.page = median(101, paints, nothing, [&](int i) { surface.setTopRow(at(i)); });
    surface.setTopRow(1);
    times.line = median(101, paints, nothing, [&](int i) { surface.setTopRow(2 + i); });
    return times;
}

Times ofTableView(int rows) {
    GridSurface surface;
    setUp(surface, kColumnPixels * kTwipsPerPixel, kRowPixels * kTwipsPerPixel);
    load(surface, rows, 0);
    ThinModel model(surface);
    QTableView view;
    QFont font(QStringLiteral("Arial"));
    font.setPointSizeF(8);
    view.setFont(font);
    view.verticalHeader()->hide();
    view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view.verticalHeader()->setDefaultSectionSize(kRowPixels);
    view.horizontalHeader()->setFixedHeight(kRowPixels);
    view.horizontalHeader()->setDefaultSectionSize(kColumnPixels);
    view.setFrameShape(QFrame::NoFrame);
    view.setWordWrap(false);
    view.setModel(&model);
    view.resize(kWindow);
    view.show();
    settle();
    PaintCounter paints(view.viewport());
    const auto where = places(rows);
    const auto at = [&](int i) { return where[static_cast<std::size_t>(i) % where.size()]; };
    const auto nothing = [](int) { settle(); };
    Times times;
    // The sections of a million rows are counted with the load, not with the paint.
    const auto reload = [&](int i) {
        settle();
        paints.swallows = true;
        model.reload([&] { load(surface, rows, 1 + static_cast<unsigned>(i)); });
        settle();
        view.verticalScrollBar()->setValue(0);
        settle();
    };
    times.first = median(21, paints, reload, [&](int) {
        paints.swallows = false;
        view.viewport()->update();
        view.horizontalHeader()->viewport()->update();
    });
    times.page = median(101, paints, nothing, [&](int i) { view.verticalScrollBar()->setValue(at(i)); });
    view.verticalScrollBar()->setValue(0);
    times.line = median(101, paints, nothing, [&](int i) { view.verticalScrollBar()->setValue(1 + i); });
    return times;
}

void tell(const char* what, double ours, double theirs, const char* wanted) {
    std::printf("%-42s %8.0f us / %8.0f us = %5.2f   (%s)\n", what, ours, theirs, ours / theirs, wanted);
}

} // namespace

int run(int rows) {
    const Times ours = ofGridView(rows);
    const Times theirs = ofTableView(rows);
    const Times few = ofGridView(1000);
    std::printf("%d rows x %d columns, %d x %d, medians; the view / the toolkit's table view\n", rows,
                kColumns, kWindow.width(), kWindow.height());
    tell("first paint after a load", ours.first, theirs.first, "at most 1.0, wanted 0.5");
    tell("a full page", ours.page, theirs.page, "at most 0.8, wanted 0.3");
    tell("one line", ours.line, theirs.line, "at most 1.1, wanted 0.7");
    tell("a page here / a page of 1,000 rows", ours.page, few.page, "at most 1.3, wanted 1.0");
    return 0;
}

} // namespace zkp::bench

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const qsizetype at = arguments.indexOf(QStringLiteral("--rows"));
    const int rows = at < 0 ? 1'000'000 : arguments.value(at + 1).toInt();
    return zkp::bench::run(std::max(rows, 100));
}
