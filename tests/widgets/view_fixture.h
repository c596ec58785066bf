#pragma once

#include "print_qt.h"
#include "surface/grid_surface.h"
#include "widgets/grid/grid_view.h"

#include <QApplication>
#include <QImage>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <memory>

namespace zkp {

/// A surface of 100 rows and 4 columns of 1500 twips (100 pixels), rows of 300 twips (20 pixels), in a
/// window of 500 x 210 pixels: the heading, nine whole rows and half a one.
class ViewTest : public testing::Test {
protected:
    static constexpr int kRow = 20;
    static constexpr int kCol = 100;

    ViewTest() {
        surface->setLocale(ReportLocale(QLocale(QStringLiteral("el_GR"))));
        surface->setCols(4);
        surface->setRows(100);
        surface->setRowHeight(-1, 300);
        for (int col = 0; col < 4; ++col)
            surface->setColWidth(col, 1500);
        view = std::make_unique<GridView>(*surface);
        view->resize(500, 210);
        view->show();
        view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        settle();
    }

    static void settle() {
        for (int i = 0; i < 3; ++i)
            QApplication::processEvents();
    }
    QImage picture() {
        settle();
        return view->viewport()->grab().toImage();
    }
    /// The middle of a cell when the surface stands at its beginning.
    static QPoint cell(int row, int col) { return {col * kCol + kCol / 2, row * kRow + kRow / 2}; }
    /// A pixel of a cell that no text reaches: beside its right border.
    static QPoint corner(int row, int col) { return {(col + 1) * kCol - 3, row * kRow + 2}; }
    void press(QPoint at, Qt::KeyboardModifiers with = Qt::NoModifier) {
        QTest::mousePress(view->viewport(), Qt::LeftButton, with, at);
    }
    void move(QPoint at) {
        const QPoint global = view->viewport()->mapToGlobal(at);
        QMouseEvent event(QEvent::MouseMove, at, global, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &event);
    }
    void release(QPoint at) { QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, at); }
    void click(QPoint at) {
        press(at);
        release(at);
    }
    void key(int key, Qt::KeyboardModifiers with = Qt::NoModifier) {
        QTest::keyClick(view.get(), static_cast<Qt::Key>(key), with);
    }
    /// True when a pixel of the cell differs from its corner: something is written there.
    static bool hasInk(const QImage& image, int row, int col) {
        const QRgb back = image.pixel(corner(row, col));
        for (int y = row * kRow + 1; y < (row + 1) * kRow - 2; ++y)
            for (int x = col * kCol + 3; x < (col + 1) * kCol - 3; ++x)
                if (image.pixel(x, y) != back)
                    return true;
        return false;
    }

    std::unique_ptr<GridSurface> surface = std::make_unique<GridSurface>();
    std::unique_ptr<GridView> view;
};

} // namespace zkp
