#include "widgets/band/tool_icons.h"

#include "base/text.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

/// A program that links the library statically would leave the icons behind without this.
static void loadIcons() {
    Q_INIT_RESOURCE(zkpgrid_icons);
}

namespace zkp {

namespace {

struct ToolIcon {
    const char16_t* tool;
    const char* icon; ///< file in icons/, without ".svg"
};

constexpr ToolIcon kIcons[] = {
    {u"mnuTemplate", "template"},
    {u"mnuRefresh", "refresh"},
    {u"mnuPrint", "print"},
    {u"ExportToExcel", "spreadsheet"},
    {u"mnuExport", "export"},
    {u"mnuSaveTemplate", "save"},
    {u"mnuSaveTemplateAs", "save_as"},
    {u"mnuTitle", "title"},
    {u"mnuGraph", "graph"},
    {u"mnuColumn", "column"},
    {u"mnuFormat", "format"},
    {u"mnuField", "column"},
    {u"mnuAddColumn", "add_column"},
    {u"mnuInsertColumn", "insert_column"},
    {u"mnuAddGroup", "add_group"},
    {u"mnuInsertGroup", "insert_group"},
    {u"mnuDelColumn", "delete_column"},
    {u"mnuColumnProperties", "properties"},
    {u"mnuAlignLeft", "align_left"},
    {u"mnuAlignCenter", "align_center"},
    {u"mnuAlignRight", "align_right"},
    {u"mnuSort", "sort"},
    {u"mnuSortAsc", "sort_ascending"},
    {u"mnuSortDesc", "sort_descending"},
    {u"mnuBackColor", "back_color"},
    {u"mnuForeColor", "fore_color"},
    {u"mnuFonts", "font"},
    {u"mnuFixedBackColor", "section_headings"},
    {u"mnuFixedForeColor", "section_headings"},
    {u"mnuFixedFont", "section_headings"},
    {u"mnuGroupedBackColor", "section_groups"},
    {u"mnuGroupedForeColor", "section_groups"},
    {u"mnuGroupedFont", "section_groups"},
    {u"mnuDetailsBackColor", "section_details"},
    {u"mnuDetailsForeColor", "section_details"},
    {u"mnuDetailsFont", "section_details"},
    {u"mnuSubTotalsBackColor", "section_subtotals"},
    {u"mnuSubTotalsForeColor", "section_subtotals"},
    {u"mnuSubTotalsFont", "section_subtotals"},
    {u"mnuTotalsBackColor", "section_totals"},
    {u"mnuTotalsForeColor", "section_totals"},
    {u"mnuTotalsFont", "section_totals"},
    {u"mnuTitleBackColor", "section_title"},
    {u"mnuTitleForeColor", "section_title"},
    {u"mnuStoixeiaForeColor", "section_company"},
    {u"mnuGraphColumn", "column"},
    {u"mnubarGraph", "bar_chart"},
    {u"mnuHorBarGraph", "row_chart"},
    {u"mnuAreaGraph", "area_chart"},
    {u"mnuLineGraph", "line_chart"},
    {u"mnuPieChart", "pie_chart"},
    {u"mnuGiantGraph", "scatter_chart"},
    {u"mnuCylinderGraph", "cylinder_chart"},
    {u"mnuGraphKonoi", "cone_chart"},
    {u"mnuPyramidGraph", "pyramid_chart"},
    {u"mnuGraphProperties", "properties"},
    {u"mnuPrintGraph", "print"},
};

struct IconColors {
    QColor normal;
    QColor active; ///< under the pointer or the keyboard
    QColor disabled;

    const QColor& of(QIcon::Mode mode) const {
        return mode == QIcon::Disabled ? disabled : mode == QIcon::Normal ? normal : active;
    }
};

/// Draws the file anew at the size that is asked for: no pixels are ever stretched.
class LineIcon : public QIconEngine {
public:
    LineIcon(QByteArray drawing, IconColors colors)
        : drawing_(std::move(drawing))
        , colors_(std::move(colors)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        QByteArray drawing = drawing_;
        QSvgRenderer(drawing.replace("currentColor", colors_.of(mode).name().toLatin1()))
            .render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new LineIcon(*this); }

private:
    QByteArray drawing_;
    IconColors colors_;
};

QByteArray drawingOf(const char* icon) {
    loadIcons();
    QFile file(QStringLiteral(":/zkpgrid/icons/%1.svg").arg(QLatin1String(icon)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

IconColors colorsAt(IconPlace place, const QPalette& palette) {
    const auto active = place == IconPlace::Menu ? QPalette::HighlightedText : QPalette::WindowText;
    return {palette.color(QPalette::Active, QPalette::WindowText), palette.color(QPalette::Active, active),
            palette.color(QPalette::Disabled, QPalette::WindowText)};
}

} // namespace

QIcon toolIcon(const QString& tool, const QPalette& palette, IconPlace place) {
    for (const ToolIcon& entry : kIcons)
        if (sameName(QStringView(entry.tool), tool))
            return QIcon(new LineIcon(drawingOf(entry.icon), colorsAt(place, palette)));
    return {};
}

} // namespace zkp
