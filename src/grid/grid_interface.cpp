#include "zkp_grid.h"

#include "base/error.h"
#include "grid/parts.h"

#include <optional>

// Painting by section, marking and fonts, one line each.

namespace zkp {

namespace {

/// An argument that a host may leave out; Error 13 for a value of another kind.
template <class T>
std::optional<T> given(const QVariant& argument) {
    if (!argument.isValid())
        return std::nullopt;
    if (!argument.canConvert<T>())
        throw Error(kErrTypeMismatch, QStringLiteral("Type mismatch"));
    return argument.value<T>();
}

StylePatch fontMarks(const QVariant& size, const QVariant& bold, const QVariant& underline,
                     const QVariant& italic, const QVariant& strike) {
    StylePatch marks; // checked in the order of the arguments
    marks.fontSize = given<double>(size);
    marks.bold = given<bool>(bold);
    marks.underline = given<bool>(underline);
    marks.italic = given<bool>(italic);
    marks.strikethru = given<bool>(strike);
    return marks;
}

} // namespace

void ZkpGrid::DrawInterface() {
    run([](Parts& p) { p.interaction.drawing.DrawInterface(); });
}

void ZkpGrid::RefreshInterface(int what) {
    run([&](Parts& p) { p.interaction.drawing.RefreshInterface(what); });
}

void ZkpGrid::PaintGroupBlock(const QVariant& fromTop) {
    run([&](Parts& p) { p.interaction.drawing.PaintGroupBlock(given<bool>(fromTop).value_or(true)); });
}

void ZkpGrid::Selectrow() {
    run([](Parts& p) { p.core.marking.Selectrow(); });
}

void ZkpGrid::Releasemark(int MarkRow) {
    run([&](Parts& p) { p.core.marking.Releasemark(MarkRow); });
}

void ZkpGrid::reversecolor(int MarkRow, uint mBack, uint mfore) {
    run([&](Parts& p) { p.core.marking.reversecolor(MarkRow, mBack, mfore); });
}

void ZkpGrid::ReverseCell(int rw, int ClFrom, int ClTo, uint back, uint fore) {
    run([&](Parts& p) { p.core.marking.ReverseCell(rw, ClFrom, ClTo, back, fore); });
}

void ZkpGrid::RedrawRow(int irow) {
    run([&](Parts& p) { p.core.marking.RedrawRow(irow); });
}

void ZkpGrid::makeRowByrow() {
    run([](Parts& p) { p.core.marking.makeRowByrow(); });
}

/// The name changes nothing, as wanted; so in FontsRow.
void ZkpGrid::CellFonts(int mrw, int mCl, const QVariant& /*mFontname*/, const QVariant& mfontsize,
                        const QVariant& mfontbold, const QVariant& mfontunderline,
                        const QVariant& mfontitalic, const QVariant& mfontstrike) {
    run([&](Parts& p) {
        p.core.fonts.CellFonts(mrw, mCl,
                               fontMarks(mfontsize, mfontbold, mfontunderline, mfontitalic, mfontstrike));
    });
}

void ZkpGrid::FontsRow(int mrw, const QVariant& /*mFontname*/, const QVariant& mfontsize,
                       const QVariant& mfontbold, const QVariant& mfontunderline, const QVariant& mfontitalic,
                       const QVariant& mfontstrike) {
    run([&](Parts& p) {
        p.core.fonts.FontsRow(mrw, fontMarks(mfontsize, mfontbold, mfontunderline, mfontitalic, mfontstrike));
    });
}

void ZkpGrid::SetCellFonts(int row, const QString& name, double size, bool bold, bool italic, bool underline,
                           const QVariant& col, const QVariant& rowEnd, const QVariant& colEnd) {
    run([&](Parts& p) {
        const StylePatch font{
            .fontName = name, .fontSize = size, .bold = bold, .italic = italic, .underline = underline};
        p.core.fonts.SetCellFonts(
            row, font, {.col = given<int>(col), .rowEnd = given<int>(rowEnd), .colEnd = given<int>(colEnd)});
    });
}

} // namespace zkp
