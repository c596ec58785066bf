#include "interaction/column_commands.h"

#include "base/number.h"
#include "base/scope_guard.h"
#include "base/text.h"
#include "base/texts/columns.h"
#include "core/section_style.h"
#include "interaction/questions.h"

namespace zkp {

void ColumnCommands::addColumn() {
    {
        pointer_.setPointer(kPointerHourglass);
        const ScopeGuard restore([this] { pointer_.setPointer(kPointerDefault); });
        setters_.setCols(surface_.Cols() + 1);
        properties_.setColForTot(surface_.Cols() - 1, false);
        setters_.setRefreshOnChange(false);
    }
    setCol(surface_.Cols() - 1);
    surface_.setRedraw(true);
    Q_EMIT events_.addcolumn();
}

void ColumnCommands::insertColumn() {
    setters_.setRefreshOnChange(false);
    groups_.InsertColumn(clicked_.get());
    raise(&Events::InsertColumn);
}

void ColumnCommands::addGroup() {
    checkGroupBy();
    if (!makeFactor(grouping_.GroupFactorCount))
        return;
    setCol(grouping_.GroupFactorCount - 1);
    Q_EMIT events_.addcolumn();
}

void ColumnCommands::insertGroup() {
    clicked_.take(surface_.Col());
    const int position = clicked_.get();
    checkGroupBy();
    if (!makeFactor(position))
        return;
    surface_.setCol(position);
    lifetime_.throwIfDestroyed();
    Q_EMIT events_.addcolumn();
}

/// False when there could be no column: its box has been shown, and no other column becomes a factor.
bool ColumnCommands::makeFactor(int position) {
    const int before = surface_.Cols();
    groups_.InsertColumn(position);
    lifetime_.throwIfDestroyed();
    if (surface_.Cols() == before)
        return false;
    properties_.setColForTot(position, true);
    if (surface_.Rows() > 0) {
        StylePatch font = fontMarksOf(styleOf(Section::Heading, sections_, surface_));
        font.strikethru.reset(); // the surface's own
        fonts_.CellFonts(0, position, font, StyleOrigin::Section);
    }
    checkGroupBy();
    setters_.setRefreshOnChange(false);
    surface_.setRedraw(true);
    return true;
}

void ColumnCommands::deleteCurrent() {
    if (shownColumns() == 1) {
        boxes_.msgBox(texts::onlyColumn(), kMsgBoxCritical);
        return;
    }
    if (isLastFactor()) {
        boxes_.msgBox(texts::lastFactor(), kMsgBoxCritical);
        return;
    }
    int position = surface_.Col();
    deletecolumn(position);
    surface_.setRedraw(true);
    raise(&Events::DelColumn);
}

int ColumnCommands::shownColumns() const {
    int shown = 0;
    for (int c = 0; c < surface_.Cols(); ++c)
        shown += surface_.ColWidth(c) != 0 && !surface_.ColHidden(c) ? 1 : 0;
    return shown;
}

/// A totals report needs a factor.
bool ColumnCommands::isLastFactor() const {
    return data_.TotalForm && surface_.Cols() > 0 && properties_.ColForTot(surface_.Col()) &&
           grouping_.GroupFactorCount <= 1;
}

void ColumnCommands::deletecolumn(int& position) {
    reporting_.run([&] {
        askForRefresh();
        removeColumn(position);
        checkGroupBy();
        driver_.FillGrid();
        lifetime_.throwIfDestroyed();
    });
}

/// The current column is asked about, not the one that goes; wanted.
void ColumnCommands::askForRefresh() {
    const int current = surface_.Col();
    bool again = false;
    if (!isBlank(properties_.ColDataField(current)) && properties_.ColForTot(current)) {
        again = boxes_.msgBox(texts::refreshNow(), kAskYesNo) == kAnswerYes;
        lifetime_.throwIfDestroyed();
    }
    setters_.setRefreshOnChange(again);
    lifetime_.throwIfDestroyed();
}

/// A position that the collection lacks is its error, and the surface is a column shorter by then; wanted.
void ColumnCommands::removeColumn(int& position) {
    const int last = surface_.Cols() - 1;
    surface_.setColPosition(surface_.Col(), last);
    surface_.setCols(last);
    columns_.Remove(position + 1);
    if (position > surface_.Cols() - 1) {
        position = surface_.Cols() - 1;
        clicked_.take(position); // the current cell is there already, and moves without a word
    }
    surface_.setCol(position);
    lifetime_.throwIfDestroyed();
}

/// The control's `Col` setter.
void ColumnCommands::setCol(int col) {
    surface_.setCol(col);
    lifetime_.throwIfDestroyed();
    events_.notify(QStringLiteral("Col"));
    lifetime_.throwIfDestroyed();
}

/// A handler may write another column, which is then the one that was clicked last.
void ColumnCommands::raise(void (Events::*event)(ColumnArgs&)) {
    lifetime_.throwIfDestroyed();
    ColumnArgs args{clicked_.get()};
    Q_EMIT(events_.*event)(args);
    lifetime_.throwIfDestroyed();
    clicked_.take(toInt32(args.WhatCol));
}

} // namespace zkp
