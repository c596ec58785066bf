#include "surface/style_layers.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace zkp {

namespace {

CellStyle plainStyle(bool fixedPart) {
    CellStyle style;
    if (fixedPart) {
        style.backColor = systemColor(kSysButtonFace);
        style.foreColor = systemColor(kSysButtonText);
    }
    return style;
}

std::size_t slotOf(const std::array<StyleSetId, 5>& places, bool fixedPart) {
    std::uint64_t hash = fixedPart ? 1 : 2;
    for (const StyleSetId place : places)
        hash = (hash ^ place) * 0x9E3779B97F4A7C15u;
    return hash >> 58; // 64 slots
}

} // namespace

/// Rows and cells mostly take turns without meeting: their writes share a number until they do.
void StyleLayers::stampFor(Layer layer, bool meetsOtherLayer) {
    const auto isOfRows = [](Layer l) { return l == Layer::Row || l == Layer::Cell; };
    const bool shares = layer == lastLayer_ || (isOfRows(layer) && isOfRows(lastLayer_));
    if (!shares || meetsOtherLayer)
        ++stamp_;
    lastLayer_ = layer;
}

StyleSetId StyleLayers::patched(StyleSetId id, const StylePatch& patch, StyleOrigin origin) {
    ++writes_;
    collectWhenWasteful();
    if (last_.stamp != stamp_ || last_.from != id || last_.origin != origin || last_.patch != patch)
        last_ = {stamp_, id, patch, origin, pool_.patched(id, patch, origin, stamp_)};
    return last_.to;
}

void StyleLayers::writeSurface(const StylePatch& patch, StyleOrigin origin) {
    stampFor(Layer::Surface);
    surface_ = patched(surface_, patch, origin);
}

void StyleLayers::writeFixed(const StylePatch& patch, StyleOrigin origin) {
    stampFor(Layer::Fixed);
    fixed_ = patched(fixed_, patch, origin);
}

void StyleLayers::writeBody(const StylePatch& patch, StyleOrigin origin) {
    stampFor(Layer::Body);
    body_ = patched(body_, patch, origin);
}

void StyleLayers::writeColumn(ColumnId column, const StylePatch& patch, StyleOrigin origin) {
    if (column >= columns_.size())
        columns_.resize(column + 1, 0);
    stampFor(Layer::Column);
    columns_[column] = patched(columns_[column], patch, origin);
}

void StyleLayers::writeRow(RowId row, const StylePatch& patch, StyleOrigin origin) {
    bool meets = false;
    cells_.forEachInRow(row, [&](StyleSetId cell) { meets = meets || pool_.hasStamp(cell, stamp_); });
    stampFor(Layer::Row, meets);
    rows_.set(row, 0, patched(rows_.get(row, 0), patch, origin));
}

void StyleLayers::writeCell(RowId row, ColumnId column, const StylePatch& patch, StyleOrigin origin) {
    stampFor(Layer::Cell, pool_.hasStamp(rows_.get(row, 0), stamp_));
    cells_.set(row, column, patched(cells_.get(row, column), patch, origin));
}

const MarkedStyle& StyleLayers::resolveMarked(RowId row, ColumnId column, bool fixedRow,
                                              bool fixedColumn) const {
    const bool fixedPart = fixedRow || fixedColumn;
    Places places{surface_, fixedPart ? fixed_ : body_, 0, 0, 0};
    if (!fixedRow && column < columns_.size())
        places[2] = columns_[column];
    if (row != kNoRow) {
        places[3] = rows_.get(row, 0);
        places[4] = cells_.get(row, column);
    }
    Resolved& memory = resolved_[slotOf(places, fixedPart)];
    if (!memory.filled || memory.places != places || memory.fixedPart != fixedPart)
        memory = {true, fixedPart, places, compose(places, fixedPart)};
    return memory.style;
}

MarkedStyle StyleLayers::compose(const Places& places, bool fixedPart) const {
    MarkedStyle cell{plainStyle(fixedPart), {}};
    const auto take = [&](StyleAttribute attribute, auto valueIn, auto& value, auto& mark) {
        const StyleSet* best = nullptr;
        for (const StyleSetId place : places) {
            const StyleSet& set = pool_.at(place);
            if (set.stamps[attribute] != 0 && (!best || set.stamps[attribute] > best->stamps[attribute]))
                best = &set;
        }
        if (!best)
            return;
        value = valueIn(*best);
        if (best->marks[attribute])
            mark = value;
    };
    const auto flag = [](StyleAttribute attribute) {
        return [attribute](const StyleSet& set) { return set.flags[attribute]; };
    };
    auto& [style, marks] = cell;
    take(kStyleBack, std::mem_fn(&StyleSet::back), style.backColor, marks.backColor);
    take(kStyleFore, std::mem_fn(&StyleSet::fore), style.foreColor, marks.foreColor);
    take(kStyleFontSize, std::mem_fn(&StyleSet::fontSize), style.fontSize, marks.fontSize);
    take(kStyleBold, flag(kStyleBold), style.bold, marks.bold);
    take(kStyleItalic, flag(kStyleItalic), style.italic, marks.italic);
    take(kStyleUnderline, flag(kStyleUnderline), style.underline, marks.underline);
    take(kStyleStrikethru, flag(kStyleStrikethru), style.strikethru, marks.strikethru);
    const auto nameIn = [this](const StyleSet& set) { return pool_.fontName(set.fontName); };
    take(kStyleFontName, nameIn, style.fontName, marks.fontName);
    return cell;
}

void StyleLayers::clearRows(const RowRun& run) {
    const auto ignore = [](StyleSetId) {};
    rows_.clearRows(run, ignore);
    cells_.clearRows(run, ignore);
}

void StyleLayers::dropColumn(ColumnId column) {
    if (column < columns_.size())
        columns_[column] = 0;
    cells_.dropColumn(column, [](StyleSetId) {});
}

/// Sets that no place names any more are freed when twice as many are kept as were in use the last
/// time: looking through all places is paid for by the writes in between.
void StyleLayers::collectWhenWasteful() {
    if (pool_.size() < collectAt_)
        return;
    std::vector<bool> used(pool_.limit(), false);
    const auto mark = [&used](StyleSetId id) { used[id] = true; };
    mark(surface_);
    mark(fixed_);
    mark(body_);
    std::for_each(columns_.begin(), columns_.end(), mark);
    std::size_t places = 0;
    const auto markPlace = [&](StyleSetId id) {
        used[id] = true;
        ++places;
    };
    rows_.forEach(markPlace);
    cells_.forEach(markPlace);
    pool_.collect(used);
    resolved_ = {};
    last_ = {};
    collectAt_ = std::max<std::size_t>({4096, pool_.size() * 2, pool_.size() + places});
}

std::int64_t StyleLayers::takeWrites() {
    return std::exchange(writes_, 0);
}

QString StyleLayers::inconsistency(RowId rowLimit) const {
    bool dangling = !pool_.holds(surface_) || !pool_.holds(fixed_) || !pool_.holds(body_);
    const auto check = [&](StyleSetId id) { dangling = dangling || !pool_.holds(id); };
    std::for_each(columns_.begin(), columns_.end(), check);
    rows_.forEach(check);
    cells_.forEach(check);
    if (dangling)
        return QStringLiteral("a style names a set that is not there");
    if (rows_.anyRowFrom(rowLimit) || cells_.anyRowFrom(rowLimit))
        return QStringLiteral("a row that is gone has a style");
    return {};
}

} // namespace zkp
