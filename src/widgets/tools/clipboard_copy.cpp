#include "widgets/tools/clipboard_copy.h"

#include "widgets/grid/surface_selection.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <algorithm>

namespace zkp {

namespace {

QString plainCell(const QString& text) {
    const auto parts = [](QChar c) { return c == u'\t' || c == u'\n' || c == u'\r'; };
    if (!text.startsWith(u'"') && std::none_of(text.cbegin(), text.cend(), parts))
        return text;
    QString quoted = text;
    quoted.replace(u'"', QStringLiteral("\"\""));
    return u'"' + quoted + u'"';
}

QString markedUp(const QString& text) {
    QString html = text.toHtmlEscaped();
    html.replace(u'\n', QStringLiteral("<br>"));
    return html;
}

/// Columns 0 to 2 of the nine alignments stand left, 3 to 5 in the middle, 6 to 8 right.
QString alignmentOf(const GridSurface& surface, int row, int col) {
    const int alignment = surface.ColAlignment(col);
    if (alignment >= 3 && alignment <= 5)
        return QStringLiteral(" align=\"center\"");
    const bool right = alignment >= 6 && (alignment <= 8 || surface.shownNumber(row, col));
    return right ? QStringLiteral(" align=\"right\"") : QString();
}

/// A block of cells on its way into both forms.
class CellWriter {
public:
    CellWriter(const ReportRows& rows, const CellRange& block)
        : rows_(rows)
        , block_(block)
        , cols_(shownColumns(rows.surface(), block.left, block.right)) {
        const auto height = static_cast<std::int64_t>(block.bottom - block.top + 1);
        asHtml_ = height * static_cast<std::int64_t>(cols_.size()) <= CopiedCells::kMostCellsAsHtml;
    }

    CopiedCells write(const QStringList& headings) {
        if (asHtml_)
            cells_.html = QStringLiteral("<meta charset=\"utf-8\"><table border=\"1\" cellspacing=\"0\">\n");
        writeHeadings(headings);
        for (int row = block_.top; row <= block_.bottom; ++row)
            writeRow(row);
        if (asHtml_)
            cells_.html += QStringLiteral("</table>\n");
        return std::move(cells_);
    }

private:
    void writeHeadings(const QStringList& headings) {
        QStringList line;
        QString html;
        for (const int col : cols_) {
            line += plainCell(headings.value(col));
            html += QStringLiteral("<th>%1</th>").arg(markedUp(headings.value(col)));
        }
        cells_.text += line.join(u'\t') + u'\n';
        if (asHtml_)
            cells_.html += QStringLiteral("<tr>%1</tr>\n").arg(html);
    }

    void writeRow(int row) {
        if (asHtml_)
            cells_.html += isSumRow(rows_.kind(row)) ? QStringLiteral("<tr style=\"font-weight:bold\">")
                                                     : QStringLiteral("<tr>");
        for (std::size_t i = 0; i < cols_.size(); ++i) {
            if (i > 0)
                cells_.text += u'\t';
            writeCell(row, cols_[i]);
        }
        cells_.text += u'\n';
        if (asHtml_)
            cells_.html += QStringLiteral("</tr>\n");
    }

    void writeCell(int row, int col) {
        const QString text = rows_.text(row, col);
        if (joins(row, col, text))
            return; // the cell above, which it shows as one with, has it
        cells_.text += plainCell(text);
        if (!asHtml_)
            return;
        int last = row;
        while (last < block_.bottom && joins(last + 1, col, rows_.text(last + 1, col)))
            ++last;
        QString attributes = alignmentOf(rows_.surface(), row, col);
        if (last > row)
            attributes += QStringLiteral(" rowspan=\"%1\" valign=\"top\"").arg(last - row + 1);
        cells_.html += QStringLiteral("<td") + attributes + u'>' + markedUp(text) + QStringLiteral("</td>");
    }

    bool joins(int row, int col, const QString& text) const {
        return row > block_.top && rows_.joinsAbove(row, col, text);
    }

    ReportRows rows_;
    CellRange block_;
    std::vector<int> cols_;
    bool asHtml_ = true;
    CopiedCells cells_;
};

} // namespace

CopiedCells copySelection(const ReportRows& rows, const QStringList& headings) {
    const GridSurface& surface = rows.surface();
    CellRange block = selectedBlock(surface);
    while (block.bottom > block.top && rows.isBlank(block.bottom))
        --block.bottom;
    if (isEmpty(block) || shownColumns(surface, block.left, block.right).empty())
        return {};
    if (block.top == block.bottom && block.left == block.right)
        return {plainCell(rows.text(block.top, block.left)), {}};
    return CellWriter(rows, block).write(headings);
}

void putOnClipboard(const CopiedCells& cells) {
    if (cells.text.isEmpty())
        return;
    auto* data = new QMimeData;
    data->setText(cells.text);
    if (!cells.html.isEmpty())
        data->setHtml(cells.html);
    QGuiApplication::clipboard()->setMimeData(data);
}

} // namespace zkp
