// Pictures for the eye, under the build folder: pictures/*.png.

#include "interaction/menu_bands.h"
#include "menu/menu_bar.h"
#include "widgets/band/band_bar.h"
#include "widgets/grid/grid_view.h"
#include "widgets/qt_host.h"

#include <QApplication>
#include <QDir>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <array>

namespace zkp {
namespace {

constexpr QSize kSize(1000, 480);
constexpr int kRows = 60;

QPalette darkPalette() {
    QPalette p;
    p.setColor(QPalette::Window, QColor(45, 45, 48));
    p.setColor(QPalette::WindowText, QColor(220, 220, 220));
    p.setColor(QPalette::Base, QColor(30, 30, 30));
    p.setColor(QPalette::Text, QColor(220, 220, 220));
    p.setColor(QPalette::Button, QColor(53, 53, 56));
    p.setColor(QPalette::ButtonText, QColor(220, 220, 220));
    p.setColor(QPalette::Mid, QColor(75, 75, 80));
    p.setColor(QPalette::Highlight, QColor(38, 79, 120));
    p.setColor(QPalette::HighlightedText, QColor(255, 255, 255));
    return p;
}

void style(GridSurface& surface, int row, bool bold, Color back) {
    StylePatch patch;
    patch.bold = bold;
    patch.backColor = back;
    surface.applyStyle({row, 0, row, surface.Cols() - 1}, patch);
}

/// A report as the office has them: two groups, details, a subtotal, the total.
void fill(GridSurface& surface) {
    const QLocale greek(QStringLiteral("el_GR"));
    const struct {
        QString caption;
        int width;
        int alignment;
    } columns[] = {{QStringLiteral("Υποκατάστημα"), 1800, 0}, {QStringLiteral("Κλάδος"), 1500, 0},
                   {QStringLiteral("Συμβόλαιο"), 1300, 0},    {QStringLiteral("Πελάτης"), 2600, 0},
                   {QStringLiteral("Έναρξη"), 1200, 3},       {QStringLiteral("Ασφάλιστρα"), 1500, 6},
                   {QStringLiteral("Ζημίες"), 1500, 6}};
    surface.setLocale(ReportLocale(greek));
    surface.setCols(7);
    surface.setRows(kRows);
    for (int col = 0; col < 7; ++col) {
        surface.setTextMatrix(0, col, columns[col].caption);
        surface.setColWidth(col, columns[col].width);
        surface.setColAlignment(col, columns[col].alignment);
    }
    StylePatch bold;
    bold.bold = true;
    surface.applyStyle({0, 0, 0, 6}, bold);
    surface.applyStyle({1, 0, kRows - 1, 1}, bold);
    for (int row = 1; row < kRows; ++row) {
        surface.setTextMatrix(row, 0, row < 20 ? QStringLiteral("Αθήνα") : QStringLiteral("Θεσσαλονίκη"));
        surface.setTextMatrix(row, 1, row % 11 < 5 ? QStringLiteral("Αυτοκίνητα") : QStringLiteral("Πυρός"));
        surface.setTextMatrix(row, 2, QStringLiteral("ΑΥ-%1").arg(100000 + row * 37));
        surface.setTextMatrix(row, 3,
                              row % 3
                                  ? QStringLiteral("Παπαδοπούλου Αικατερίνη")
                                  : QStringLiteral("Αντωνόπουλος-Χατζηγεωργίου Κωνσταντίνος του Δημητρίου"));
        surface.setTextMatrix(row, 4, QStringLiteral("%1/11/2026").arg(row % 28 + 1));
        surface.setTextMatrix(row, 5, greek.toString(row * 1234.567, 'f', 2));
        surface.setTextMatrix(row, 6, greek.toString(-row * 34.5, 'f', 2));
    }
    surface.setMergeCells(1);
    surface.setMergeCol(0, true);
    surface.setMergeCol(1, true);
    style(surface, 12, true, 0xEAEAE4);
    style(surface, 19, true, 0xD8D8D0);
    surface.Select(3, 3, 6, 5);
}

/// The control's own bands, in the state of a plain column.
[[nodiscard]] std::array<Listening, 3> fillBar(MenuBar& bar) {
    buildMenuBands(bar);
    bar.Tools(u"txtRecs").Text = QStringLiteral("20.000");
    bar.Tools(u"mnuAlignRight").Checked = true;
    bar.Tools(u"mnuGraph").Enabled = false;
    bar.Tools(u"mnuField").list = QStringList{QStringLiteral("Μικτά Ασφάλιστρα (Άθροισμα)")};
    bar.Tools(u"mnuField").ListIndex = 0;
    bar.Tools(u"mnuCaption").Text = QStringLiteral("Ασφάλιστρα");
    const auto heard = [](Tool&) {};
    return {bar.toolClicked.add(heard), bar.listChanged.add(heard), bar.textChanged.add(heard)};
}

/// The window at a scale, saved under a name; returns what was painted.
QImage paintWindow(const QString& name, double scale, const QPalette& palette,
                   void (*change)(GridSurface&) = nullptr) {
    GridSurface surface;
    fill(surface);
    if (change)
        change(surface);
    MenuBar bar;
    const auto listening = fillBar(bar);
    QWidget window;
    window.setPalette(palette);
    window.resize(kSize);
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins({});
    layout->setSpacing(1);
    auto* row = new BandBar(bar, QStringLiteral("BndTemplate"), &window);
    row->setFixedHeight(row->sizeHint().height());
    layout->addWidget(row);
    layout->addWidget(new GridView(surface, &window));
    window.show();
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents();
    QImage image((QSizeF(kSize) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(palette.color(QPalette::Window));
    window.render(&image);
    const QString folder = QStringLiteral(ZKP_BINARY_DIR "/pictures");
    QDir().mkpath(folder);
    EXPECT_TRUE(image.save(folder + QChar(u'/') + name + QStringLiteral(".png")));
    return image;
}

TEST(Pictures, LightAtFullSize) {
    const QImage image = paintWindow(QStringLiteral("report_100"), 1, QApplication::palette());
    EXPECT_EQ(image.size(), kSize);
}

TEST(Pictures, LightAtTwiceTheSize) {
    const QImage image = paintWindow(QStringLiteral("report_200"), 2, QApplication::palette());
    EXPECT_EQ(image.size(), kSize * 2);
}

TEST(Pictures, TheRowOfToolsAtManyWidths) {
    MenuBar bar;
    const auto listening = fillBar(bar);
    QWidget window;
    BandBar row(bar, QStringLiteral("BndTemplate"), &window);
    const int height = row.sizeHint().height();
    QImage image(700, 8 * (height + 10), QImage::Format_RGB32);
    image.fill(Qt::white);
    window.resize(700, height);
    window.show();
    for (int i = 0; i < 8; ++i) {
        row.resize(700 - 85 * i, height);
        QApplication::processEvents();
        row.render(&image, QPoint(0, i * (height + 10)));
    }
    EXPECT_TRUE(image.save(QStringLiteral(ZKP_BINARY_DIR "/pictures/row_of_tools.png")));
}

TEST(Pictures, TheDialogs) {
    const auto save = [](const char* name) {
        QTimer::singleShot(0, qApp, [name] {
            QWidget* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            EXPECT_TRUE(dialog->grab().save(
                QStringLiteral(ZKP_BINARY_DIR "/pictures/%1.png").arg(QLatin1String(name))));
            dialog->close();
        });
    };
    QtHost host;
    save("dialog_color");
    host.colorDialog(0x8040C0);
    save("dialog_font");
    host.fontDialog({QStringLiteral("Liberation Sans"), 10});
    save("dialog_box");
    host.msgBox(QStringLiteral("Να ανανεώσω τώρα τη λίστα;"), kMsgBoxQuestion + 3, QStringLiteral("QRN"));
    save("dialog_input");
    host.inputBox(QStringLiteral("Τίτλος"), QStringLiteral("Αλλαγή Τίτλου Υποδείγματος"), {});
}

/// A heading carried over others, where it may be dropped and where not.
void paintDrag(const QString& name, double scale, const QPalette& palette, int pointer) {
    GridSurface surface;
    fill(surface);
    GridView view(surface);
    view.setPalette(palette);
    view.resize(700, 120);
    view.show();
    QApplication::processEvents();
    QWidget* port = view.viewport();
    const auto send = [&](QEvent::Type type, QPoint at) {
        QMouseEvent event(type, at, port->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(port, &event);
    };
    send(QEvent::MouseButtonPress, {40, 8});
    send(QEvent::MouseMove, {90, 8});
    send(QEvent::MouseMove, {240, 8});
    view.setPointer(pointer);
    QApplication::processEvents();
    QImage image((QSizeF(port->size()) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    port->render(&image);
    EXPECT_TRUE(image.save(QStringLiteral(ZKP_BINARY_DIR "/pictures/%1.png").arg(name)));
    send(QEvent::MouseButtonRelease, {240, 8});
}

TEST(Pictures, AHeadingOnItsWay) {
    paintDrag(QStringLiteral("drag_100"), 1, QApplication::palette(), kPointerCustom);
    paintDrag(QStringLiteral("drag_200"), 2, QApplication::palette(), kPointerCustom);
    paintDrag(QStringLiteral("drag_refused_100"), 1, QApplication::palette(), kPointerNoDrop);
    paintDrag(QStringLiteral("drag_refused_200"), 2, QApplication::palette(), kPointerNoDrop);
    paintDrag(QStringLiteral("drag_refused_dark"), 1, darkPalette(), kPointerNoDrop);
}

TEST(Pictures, ACutTextUnderTheRestingPointer) {
    GridSurface surface;
    fill(surface);
    GridView view(surface);
    view.resize(700, 120);
    view.show();
    QApplication::processEvents();
    QHelpEvent event(QEvent::ToolTip, {350, 60}, view.viewport()->mapToGlobal(QPoint(350, 60)));
    QApplication::sendEvent(view.viewport(), &event);
    QWidget* tip = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowType() == Qt::ToolTip)
            tip = window;
    ASSERT_NE(tip, nullptr);
    EXPECT_TRUE(tip->grab().save(QStringLiteral(ZKP_BINARY_DIR "/pictures/tip.png")));
}

TEST(Pictures, AtAnOddSize) {
    paintWindow(QStringLiteral("report_150"), 1.5, QApplication::palette());
}

TEST(Pictures, DarkHasNoLightSlabs) {
    const QImage image = paintWindow(QStringLiteral("report_dark"), 1, darkPalette());
    qint64 light = 0;
    for (int y = 0; y < image.height(); y += 3)
        for (int x = 0; x < image.width(); x += 3)
            light += qGray(image.pixel(x, y)) > 160;
    EXPECT_LT(light * 9, qint64(image.width()) * image.height() / 10)
        << "all but the report's own colours is dark";
}

TEST(Pictures, SelectionByRow) {
    paintWindow(QStringLiteral("selection_by_row"), 1, QApplication::palette(), [](GridSurface& surface) {
        GridSurface::Look look = surface.look();
        look.SelectionMode = 1;
        surface.setLook(look);
    });
}

TEST(Pictures, LargeFontsAndAllAlignments) {
    paintWindow(QStringLiteral("alignments"), 1, QApplication::palette(), [](GridSurface& surface) {
        surface.setMergeCells(0);
        for (int row = 1; row <= 9; ++row)
            surface.setRowHeight(row, 600);
        for (int col = 0; col < 7; ++col)
            surface.setColAlignment(col, col < 4 ? col : col + 2);
        StylePatch patch;
        patch.fontSize = 12;
        patch.underline = true;
        surface.applyStyle({2, 0, 2, 6}, patch);
        patch = {};
        patch.italic = true;
        patch.strikethru = true;
        patch.foreColor = 0x2020C0;
        surface.applyStyle({3, 0, 3, 6}, patch);
    });
}

} // namespace
} // namespace zkp
