#pragma once

#include "surface/row_id.h"
#include "surface/row_sequence.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace zkp {

/// A small value per cell, most cells having none (T{}). Values stand by column in pages of 64 rows,
/// so that a dense column costs no more per cell than a sparse one and no cell costs a node. One bit
/// per row tells whether any cell of it has a value.
template <class T>
class CellPages {
public:
    T get(RowId row, ColumnId column) const {
        if (column >= columns_.size() || pageOf(row) >= columns_[column].size())
            return T{};
        const Page* page = columns_[column][pageOf(row)].get();
        return page ? (*page)[row % kPageRows] : T{};
    }

    void set(RowId row, ColumnId column, T value) {
        if (value == T{} && get(row, column) == T{})
            return;
        Page& page = makePage(row, column);
        page[row % kPageRows] = value;
        markRow(row);
    }

    bool rowHasAny(RowId row) const {
        return pageOf(row) < marks_.size() && (marks_[pageOf(row)] >> (row % kPageRows) & 1) != 0;
    }

    /// Calls `gone(value)` for each value of the rows, then takes them away.
    template <class F>
    void clearRows(const RowRun& run, F gone) {
        const RowId end = run.first + static_cast<RowId>(run.count);
        for (RowId row = run.first; row < end && pageOf(row) < marks_.size();) {
            const RowId pageEnd = static_cast<RowId>((pageOf(row) + 1) * kPageRows);
            const RowId stop = std::min(end, pageEnd);
            clearInPage(row, stop, gone);
            row = stop;
        }
    }

    template <class F>
    void dropColumn(ColumnId column, F gone) {
        if (column >= columns_.size())
            return;
        visitColumn(columns_[column], gone);
        columns_[column].clear();
    }

    void clear() {
        columns_.clear();
        marks_.clear();
    }

    /// Calls `f(value&)` for every value.
    template <class F>
    void forEach(F f) {
        for (Column& column : columns_)
            visitColumn(column, f);
    }
    template <class F>
    void forEach(F f) const {
        for (const Column& column : columns_)
            visitColumn(column, [&f](const T& value) { f(value); });
    }

    /// Calls `f(value)` for every value of a row.
    template <class F>
    void forEachInRow(RowId row, F f) const {
        if (!rowHasAny(row))
            return;
        for (ColumnId column = 0; column < columns_.size(); ++column)
            if (const T value = get(row, column); !(value == T{}))
                f(value);
    }

    /// True when a row from that id on has a value.
    bool anyRowFrom(RowId limit) const {
        for (std::size_t page = 0; page < marks_.size(); ++page)
            for (RowId bit = 0; bit < kPageRows; ++bit)
                if ((marks_[page] >> bit & 1) != 0 && page * kPageRows + bit >= limit)
                    return true;
        return false;
    }

private:
    static constexpr std::size_t kPageRows = 64; // as many as a word has bits
    using Page = std::array<T, kPageRows>;
    using Column = std::vector<std::unique_ptr<Page>>;

    static std::size_t pageOf(RowId row) { return row / kPageRows; }

    Page& makePage(RowId row, ColumnId column) {
        if (column >= columns_.size())
            columns_.resize(column + 1);
        Column& pages = columns_[column];
        if (pageOf(row) >= pages.size())
            pages.resize(pageOf(row) + 1);
        std::unique_ptr<Page>& page = pages[pageOf(row)];
        if (!page)
            page = std::make_unique<Page>();
        return *page;
    }

    void markRow(RowId row) {
        if (pageOf(row) >= marks_.size())
            marks_.resize(pageOf(row) + 1, 0);
        marks_[pageOf(row)] |= std::uint64_t{1} << (row % kPageRows);
    }

    /// Rows `first` to before `stop`, all in one page.
    template <class F>
    void clearInPage(RowId first, RowId stop, F& gone) {
        std::uint64_t& marks = marks_[pageOf(first)];
        const std::uint64_t upTo = ~std::uint64_t{0} >> (kPageRows - 1 - (stop - 1) % kPageRows);
        const std::uint64_t wanted = marks & upTo & (~std::uint64_t{0} << (first % kPageRows));
        if (wanted == 0)
            return;
        marks &= ~wanted;
        for (Column& column : columns_) {
            if (pageOf(first) >= column.size() || !column[pageOf(first)])
                continue;
            Page& page = *column[pageOf(first)];
            for (RowId row = first; row < stop; ++row) {
                T& value = page[row % kPageRows];
                if (!(value == T{}))
                    gone(value);
                value = T{};
            }
            if (marks == 0)
                column[pageOf(first)].reset();
        }
    }

    template <class F>
    static void visitColumn(const Column& column, F&& f) {
        for (const std::unique_ptr<Page>& page : column) {
            if (!page)
                continue;
            for (T& value : *page)
                if (!(value == T{}))
                    f(value);
        }
    }

    std::vector<Column> columns_;
    std::vector<std::uint64_t> marks_;
};

} // namespace zkp
