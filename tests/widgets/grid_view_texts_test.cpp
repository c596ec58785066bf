#include "view_fixture.h"

#include "widgets/grid/surface_painter.h"

#include <QHelpEvent>
#include <QToolTip>

namespace zkp {
namespace {

const QStringList kCaptions{
    QStringLiteral("Πλήθος"),  QStringLiteral("Μέσος Όρος"),        QStringLiteral("Ελάχιστο"),
    QStringLiteral("Μέγιστο"), QStringLiteral("Ημ/νία Συμβολαίου"), QStringLiteral("Τραυματίες"),
    QStringLiteral("W"),       QStringLiteral("1.234.567,89")};

/// Texts that have no room.
class GridViewTexts : public ViewTest {
protected:
    /// What shows when the pointer rests on a place.
    QString tipAt(QPoint at) {
        QHelpEvent event(QEvent::ToolTip, at, view->viewport()->mapToGlobal(at));
        QApplication::sendEvent(view->viewport(), &event);
        return event.isAccepted() ? QToolTip::text() : QString();
    }
};

/// At 96, 120, 144 and an odd number of pixels to the inch.
class FittedColumn : public ViewTest, public testing::WithParamInterface<int> {};

TEST_P(FittedColumn, CutsNoTextOfThePage) {
    const TwipScale scale{double(GetParam())};
    surface->setCols(1);
    for (const char* family : {"Liberation Sans", "DejaVu Sans", "Liberation Serif"})
        for (const double size : {8.0, 9.5, 12.0})
            for (const bool bold : {false, true})
                for (const QString& caption : kCaptions) {
                    SCOPED_TRACE((caption + QLatin1String(family)).toStdString() + std::to_string(size));
                    StylePatch patch;
                    patch.fontName = QLatin1String(family);
                    patch.fontSize = size;
                    patch.bold = bold;
                    surface->applyStyle({0, 0, 0, 0}, patch);
                    surface->setTextMatrix(0, 0, caption);
                    surface->setColWidth(0, 300);
                    SurfacePainter painter;
                    const auto page = [&] { return PageLayout::of(*surface, {500, 210}, scale); };
                    const PageLayout before = page();
                    const QPalette palette = view->palette();
                    const int width = painter.widestText({*surface, before, palette}, 0);
                    surface->userResizeColumn(0, static_cast<int>(std::lround(scale.twips(width))));
                    const PageLayout after = page();
                    ASSERT_EQ(after.cols[0].size, width);
                    EXPECT_FALSE(painter.isCut({*surface, after, palette}, after.rows[0], after.cols[0]));
                    surface->setColWidth(0, static_cast<int>(std::lround(scale.twips(width - 1))));
                    const PageLayout less = page();
                    EXPECT_TRUE(painter.isCut({*surface, less, palette}, less.rows[0], less.cols[0]))
                        << "not a pixel too wide";
                }
}

INSTANTIATE_TEST_SUITE_P(Scales, FittedColumn, testing::Values(96, 120, 144, 109));

TEST_F(GridViewTexts, AFittedColumnCutsNothingHoweverNarrowItWas) {
    surface->setCols(1);
    for (const QString& caption : kCaptions + QStringList{QString(60, QChar(u'Ω'))}) {
        SCOPED_TRACE(caption.toStdString());
        surface->setTextMatrix(0, 0, caption);
        surface->setColWidth(0, 150);
        settle();
        EXPECT_TRUE(tipAt({5, 10}).contains(caption));
        key(Qt::Key_Down, Qt::AltModifier);
        settle();
        EXPECT_EQ(tipAt({5, 10}), QString());
    }
}

TEST_F(GridViewTexts, ACutTextShowsUnderTheRestingPointer) {
    const QString heading = QStringLiteral("Ασφαλισμένα Κεφάλαια Συμβολαίου");
    const QString client = QStringLiteral("Αντωνόπουλος <Υιοί> & Χατζηγεωργίου");
    surface->setTextMatrix(0, 1, heading);
    surface->setTextMatrix(0, 2, QStringLiteral("Κλάδος"));
    surface->setTextMatrix(3, 1, client);
    settle();
    EXPECT_TRUE(tipAt(cell(0, 1)).contains(heading));
    EXPECT_TRUE(tipAt(cell(3, 1)).contains(client.toHtmlEscaped())) << tipAt(cell(3, 1)).toStdString();
    EXPECT_EQ(tipAt(cell(0, 2)), QString()) << "it shows whole";
    EXPECT_EQ(tipAt(cell(3, 2)), QString());
    EXPECT_EQ(tipAt({480, 100}), QString()) << "beside the columns";
}

TEST_F(GridViewTexts, ATipIsNoBook) {
    surface->setTextMatrix(3, 1, QString(1'000'000, QChar(u'Ω')));
    EXPECT_LT(tipAt(cell(3, 1)).size(), 1200);
    view->detach();
    EXPECT_EQ(tipAt(cell(3, 1)), QString());
}

} // namespace
} // namespace zkp
