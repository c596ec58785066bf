#include "surface/grid_surface.h"

#include "surface/naive_surface.h"
#include "surface/sample_column.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

using namespace zkp;
using namespace zkp::test;

namespace {

constexpr int kRecords = 50;

/// The surface and the plain model of it take the same random steps.
class Pair {
public:
    Pair(unsigned seed, int maxRows, int maxCols)
        : random_(seed)
        , maxRows_(maxRows)
        , maxCols_(maxCols) {}

    void step() {
        switch (below(24)) {
        case 0:
            return resizeRows();
        case 1:
            return resizeCols();
        case 2:
            return addLayout();
        case 3:
            return bindMany();
        case 4:
            return moveColumn();
        case 5:
            return sortByTag();
        case 6:
            return sortByText();
        case 7:
            return styleLayer();
        case 8:
            return below(6) == 0 ? clear() : writeText();
        case 9:
            return below(6) == 0 ? changeFixed() : setHeight();
        case 10:
        case 11:
            return styleBlock();
        case 12:
        case 13:
            return setTag();
        case 14:
        case 15:
            return removeRow();
        case 16:
        case 17:
        case 18:
            return insertRow();
        case 19:
        case 20:
            return bindOne();
        default:
            return writeText();
        }
    }

    /// Texts, tags and heights of all rows, and the styles of every `styleStep`-th cell.
    void compare(int styleStep) {
        ASSERT_EQ(surface_.inconsistency(), QString());
        ASSERT_EQ(surface_.Rows(), model_.rows());
        ASSERT_EQ(surface_.Cols(), model_.cols());
        int cell = below(styleStep);
        for (int row = 0; row < model_.rows(); ++row) {
            ASSERT_EQ(surface_.RowData(row), model_.tag(row)) << "row " << row;
            ASSERT_EQ(surface_.RowHeight(row), model_.height(row).value_or(255)) << "row " << row;
            for (int col = 0; col < model_.cols(); ++col) {
                ASSERT_EQ(surface_.TextMatrix(row, col), model_.text(row, col)) << row << ',' << col;
                if (++cell % styleStep == 0) {
                    ASSERT_EQ(surface_.styleAt(row, col), model_.style(row, col)) << row << ',' << col;
                }
            }
        }
    }
    void checkConsistency() { ASSERT_EQ(surface_.inconsistency(), QString()); }

private:
    int below(int n) { return n <= 0 ? 0 : static_cast<int>(random_() % static_cast<unsigned>(n)); }
    int anyRow() { return below(model_.rows()); }
    int anyCol() { return below(model_.cols()); }
    QString anyText() {
        const int kind = below(12);
        if (kind == 0)
            return {};
        if (kind == 1)
            return QString(below(300), QChar(u'Ω'));
        return QStringLiteral("κ%1").arg(below(kind < 6 ? 9 : 100'000));
    }
    StylePatch anyPatch() {
        StylePatch patch;
        const unsigned which = random_();
        if (which & 1)
            patch.backColor = static_cast<Color>(below(5));
        if (which & 2)
            patch.foreColor = static_cast<Color>(below(5));
        if (which & 4)
            patch.fontName = QStringLiteral("font%1").arg(below(3));
        if (which & 8)
            patch.fontSize = below(4) + 0.5;
        if (which & 16)
            patch.bold = below(2) == 0;
        if (which & 32)
            patch.italic = below(2) == 0;
        if (which & 64)
            patch.underline = below(2) == 0;
        if (which & 128)
            patch.strikethru = below(2) == 0;
        return patch;
    }

    void resizeRows() {
        const int rows = below(4) == 0 ? model_.fixedRows : model_.fixedRows + below(maxRows_);
        surface_.setRows(rows);
        model_.setRows(rows);
        if (rows == model_.fixedRows)
            layouts_.clear(); // dropped with the rows that used them
    }
    void resizeCols() {
        const int cols = std::max(1, model_.fixedCols) + below(maxCols_);
        surface_.setCols(cols);
        model_.setCols(cols);
    }
    void changeFixed() {
        const int rows = below(std::min(4, model_.rows() + 1));
        const int cols = below(std::min(3, model_.cols() + 1));
        surface_.setFixedRows(model_.fixedRows = rows);
        surface_.setFixedCols(model_.fixedCols = cols);
    }
    void clear() {
        surface_.Clear();
        model_.clear();
        layouts_.clear();
    }
    void insertRow() {
        if (model_.rows() >= 2 * maxRows_)
            return removeRow();
        const int at = model_.fixedRows + below(model_.rows() - model_.fixedRows + 1);
        QStringList texts;
        for (int i = below(4); i > 0; --i)
            texts += anyText();
        surface_.AddItem(texts.join(u'\t'), at);
        model_.insertRow(at, texts);
    }
    void removeRow() {
        if (model_.rows() == model_.fixedRows)
            return;
        const int at = model_.fixedRows + below(model_.rows() - model_.fixedRows);
        surface_.RemoveItem(at);
        model_.removeRow(at);
    }
    void addLayout() {
        std::vector<CellBinding> bindings;
        NaiveLayout texts;
        for (int col = 0; col < model_.cols(); ++col) {
            const QString prefix = QStringLiteral("ρ%1-").arg(below(1000));
            if (below(4) == 0) {
                bindings.push_back({});
                continue;
            }
            bindings.push_back({numberedTexts(prefix.toStdString(), kRecords), CellFormat::OwnText});
            for (int i = 0; i < kRecords; ++i)
                texts[model_.columnKey(col)].push_back(prefix + QString::number(i));
        }
        layouts_.push_back({surface_.addLayout(std::move(bindings)), model_.addLayout(std::move(texts))});
    }
    std::pair<GridSurface::LayoutId, int> anyLayout() {
        if (layouts_.empty())
            addLayout();
        return layouts_[static_cast<std::size_t>(below(static_cast<int>(layouts_.size())))];
    }
    void bindOne() {
        if (model_.rows() == 0)
            return;
        const auto [layout, modelLayout] = anyLayout();
        const int row = anyRow();
        const int record = below(kRecords);
        const int tag = below(4);
        surface_.bindRow(row, layout, static_cast<std::uint32_t>(record), tag);
        model_.bind(row, modelLayout, record, tag);
    }
    void bindMany() {
        if (model_.rows() == 0)
            return;
        const auto [layout, modelLayout] = anyLayout();
        const int first = anyRow();
        const int count = std::min(below(model_.rows() - first + 1), kRecords);
        surface_.bindRows(first, count, layout, {}, 1);
        for (int i = 0; i < count; ++i)
            model_.bind(first + i, modelLayout, i, 1);
    }
    void moveColumn() {
        const int from = anyCol();
        const int to = anyCol();
        surface_.setColPosition(from, to);
        model_.moveColumn(from, to);
    }
    void writeBlock() {
        const CellRange block = anyBlock();
        const QString text = below(2) == 0 ? QString() : anyText();
        surface_.Select(block.top, block.left, block.bottom, block.right);
        surface_.setFillStyle(1);
        surface_.setText(text);
        for (int row = block.top; row <= block.bottom; ++row)
            for (int col = block.left; col <= block.right; ++col)
                model_.write(row, col, text);
    }
    void writeText() {
        if (model_.rows() == 0)
            return;
        if (below(8) == 0)
            return writeBlock();
        const int row = anyRow();
        const int col = anyCol();
        const QString text = anyText();
        surface_.setTextMatrix(row, col, text);
        model_.write(row, col, text);
    }
    void setTag() {
        if (model_.rows() == 0)
            return;
        const int row = anyRow();
        const int tag = below(5);
        surface_.setRowData(row, tag);
        model_.setTag(row, tag);
    }
    void setHeight() {
        if (model_.rows() == 0)
            return;
        const int row = anyRow();
        const int twips = below(700);
        surface_.setRowHeight(row, twips);
        model_.setHeight(row, twips);
    }
    CellRange anyBlock() {
        CellRange block{anyRow(), anyCol(), anyRow(), anyCol()};
        if (below(3) == 0) {
            block.left = 0;
            block.right = model_.cols() - 1;
        }
        if (below(3) == 0) {
            block.top = std::min(model_.fixedRows, model_.rows() - 1);
            block.bottom = model_.rows() - 1;
        }
        return {std::min(block.top, block.bottom), std::min(block.left, block.right),
                std::max(block.top, block.bottom), std::max(block.left, block.right)};
    }
    void styleBlock() {
        if (model_.rows() == 0)
            return;
        const CellRange block = anyBlock();
        const StylePatch patch = anyPatch();
        surface_.applyStyle(block, patch);
        model_.styleBlock(block, patch);
    }
    void styleLayer() {
        StylePatch patch;
        switch (below(4)) {
        case 0:
            patch.backColor = static_cast<Color>(below(5));
            surface_.setBackColor(*patch.backColor);
            return model_.styleBody(patch);
        case 1:
            patch.foreColor = static_cast<Color>(below(5));
            surface_.setForeColorFixed(*patch.foreColor);
            return model_.styleFixed(patch);
        case 2:
            patch.fontSize = below(9) + 1;
            surface_.setFontSize(*patch.fontSize);
            return model_.styleAll(patch);
        default:
            patch.bold = below(2) == 0;
            surface_.setFontBold(*patch.bold);
            return model_.styleAll(patch);
        }
    }
    /// Selects a block of body rows and says where it starts and how long it is.
    std::pair<int, int> selectBodyRows(int col) {
        if (model_.rows() - model_.fixedRows < 2)
            return {0, 0};
        const int first = model_.fixedRows + below(model_.rows() - model_.fixedRows - 1);
        const int last = first + 1 + below(model_.rows() - first - 1);
        surface_.Select(first, col, last, col);
        return {first, last - first + 1};
    }
    void reorderModel(int top, int count, const std::function<bool(int, int)>& less) {
        std::vector<int> order(static_cast<std::size_t>(count));
        std::iota(order.begin(), order.end(), 0);
        std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return less(top + a, top + b); });
        model_.reorder(top, order);
    }
    void sortByTag() {
        const auto [top, count] = selectBodyRows(anyCol());
        if (count == 0)
            return;
        surface_.notifications.compare = [this](int, int) {
            return [this](int a, int b) { return surface_.RowData(a) - surface_.RowData(b); };
        };
        surface_.setSort(kSortCustom);
        reorderModel(top, count, [this](int a, int b) { return model_.tag(a) < model_.tag(b); });
    }
    void sortByText() {
        const int col = anyCol();
        const auto [top, count] = selectBodyRows(col);
        if (count == 0)
            return;
        const bool down = below(2) == 0;
        surface_.setLocale(ReportLocale(QLocale::c())); // whose order of texts is that of the characters
        surface_.setSort(down ? kSortTextDown : kSortTextUp);
        reorderModel(top, count, [&, c = col](int a, int b) {
            return down ? model_.text(b, c) < model_.text(a, c) : model_.text(a, c) < model_.text(b, c);
        });
    }

    std::mt19937 random_;
    int maxRows_;
    int maxCols_;
    GridSurface surface_;
    NaiveSurface model_;
    std::vector<std::pair<GridSurface::LayoutId, int>> layouts_;
};

} // namespace

TEST(SurfaceRandom, ManyShortSequencesGiveWhatThePlainModelGives) {
    for (unsigned seed = 1; seed <= 400; ++seed) {
        Pair pair(seed, 12, 4);
        for (int step = 0; step < 60; ++step) {
            SCOPED_TRACE(testing::Message() << "seed " << seed << " step " << step);
            pair.step();
            pair.compare(step % 10 == 9 ? 1 : 7);
            if (testing::Test::HasFatalFailure())
                return;
        }
    }
}

TEST(SurfaceRandom, LongSequencesOnManyRowsDoToo) {
    for (unsigned seed = 1000; seed < 1003; ++seed) {
        Pair pair(seed, 2500, 6);
        for (int step = 0; step < 1500; ++step) {
            SCOPED_TRACE(testing::Message() << "seed " << seed << " step " << step);
            pair.step();
            pair.checkConsistency();
            if (step % 100 == 99)
                pair.compare(97);
            if (testing::Test::HasFatalFailure())
                return;
        }
    }
}
