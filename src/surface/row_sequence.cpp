#include "surface/row_sequence.h"

#include <algorithm>
#include <utility>

namespace zkp {

namespace {

RowId endOf(const RowRun& run) {
    return run.first + static_cast<RowId>(run.count);
}

/// Adds a run behind the others, as part of the last one when its ids go on.
void pushRun(std::vector<RowRun>& runs, const RowRun& run) {
    if (run.count == 0)
        return;
    if (!runs.empty() && endOf(runs.back()) == run.first)
        runs.back().count += run.count;
    else
        runs.push_back(run);
}

RowRun part(const RowRun& run, int from, int to) {
    return {run.first + static_cast<RowId>(from), std::max(0, to - from)};
}

int rowsOf(const std::vector<RowRun>& runs) {
    int rows = 0;
    for (const RowRun& run : runs)
        rows += run.count;
    return rows;
}

} // namespace

bool RowSequence::stepToNextRun(int position) const {
    const int next = cursor_.start + cursor_.count;
    if (cursor_.count == 0 || position != next)
        return false;
    std::size_t block = cursor_.block;
    std::size_t run = cursor_.run + 1;
    if (run == blocks_[block].runs.size()) {
        ++block;
        run = 0;
    }
    if (block == blocks_.size())
        return false;
    const RowRun& found = blocks_[block].runs[run];
    cursor_ = {block, run, next, found.first, found.count};
    return true;
}

const RowSequence::Cursor& RowSequence::search(int position) const {
    if (stepToNextRun(position))
        return cursor_;
    const PrefixCounts::Place place = counts_.find(position);
    const std::vector<RowRun>& runs = blocks_[place.index].runs;
    int start = position - place.offset;
    std::size_t run = 0;
    while (start + runs[run].count <= position)
        start += runs[run++].count;
    cursor_ = {place.index, run, start, runs[run].first, runs[run].count};
    return cursor_;
}

void RowSequence::append(const RowRun& run) {
    if (run.count == 0)
        return;
    if (blocks_.empty() || blocks_.back().runs.size() >= kMaxRuns) {
        blocks_.emplace_back();
        counts_.append(0);
    }
    Block& last = blocks_.back();
    pushRun(last.runs, run);
    last.rows += run.count;
    counts_.add(blocks_.size() - 1, run.count);
    const RowRun& grown = last.runs.back();
    real_ += run.count;
    blanks_ = std::max(0, blanks_ - run.count);
    cursor_ = {blocks_.size() - 1, last.runs.size() - 1, real_ - grown.count, grown.first, grown.count};
}

void RowSequence::insert(int position, const RowRun& run) {
    if (position == real_) {
        const int blanks = blanks_;
        append(run);
        blanks_ = blanks;
        return;
    }
    const Cursor at = locate(position);
    Block& block = blocks_[at.block];
    std::vector<RowRun>& runs = block.runs;
    const int offset = position - at.start;
    const auto place = runs.begin() + static_cast<std::ptrdiff_t>(at.run);
    if (offset == 0 && at.run > 0 && endOf(runs[at.run - 1]) == run.first) {
        runs[at.run - 1].count += run.count;
    } else if (offset == 0) {
        runs.insert(place, run);
    } else {
        const RowRun rest = part(*place, offset, place->count);
        place->count = offset;
        runs.insert(place + 1, {run, rest});
    }
    moved_ += static_cast<std::int64_t>(runs.size() - at.run);
    block.rows += run.count;
    real_ += run.count;
    counts_.add(at.block, run.count);
    cursor_ = {};
    if (runs.size() > kMaxRuns)
        splitBlock(at.block);
}

void RowSequence::splitBlock(std::size_t index) {
    Block upper;
    std::vector<RowRun>& runs = blocks_[index].runs;
    const auto middle = runs.begin() + static_cast<std::ptrdiff_t>(runs.size() / 2);
    upper.runs.assign(middle, runs.end());
    upper.rows = rowsOf(upper.runs);
    runs.erase(middle, runs.end());
    blocks_[index].rows -= upper.rows;
    moved_ += static_cast<std::int64_t>(upper.runs.size());
    blocks_.insert(blocks_.begin() + static_cast<std::ptrdiff_t>(index) + 1, std::move(upper));
    recount();
}

void RowSequence::erase(int position, int count, const RunVisitor& removed) {
    if (count == 0)
        return;
    splice(position, count, {}, removed);
}

void RowSequence::replace(int position, std::span<const RowId> ids) {
    std::vector<RowRun> runs;
    for (const RowId id : ids)
        pushRun(runs, {id, 1});
    if (!runs.empty())
        splice(position, static_cast<int>(ids.size()), runs, {});
}

void RowSequence::splice(int position, int count, const std::vector<RowRun>& runs,
                         const RunVisitor& removed) {
    const int end = position + count;
    const std::size_t first = counts_.find(position).index;
    const std::size_t last = counts_.find(end - 1).index;
    std::vector<RowRun> merged;
    int start = counts_.before(first);
    bool placed = false;
    for (std::size_t b = first; b <= last; ++b) {
        for (const RowRun& run : blocks_[b].runs) {
            const int cutFrom = std::clamp(position - start, 0, run.count);
            const int cutTo = std::clamp(end - start, 0, run.count);
            pushRun(merged, part(run, 0, cutFrom));
            if (!placed && start + run.count > position) {
                for (const RowRun& added : runs)
                    pushRun(merged, added);
                placed = true;
            }
            if (removed && cutTo > cutFrom)
                removed(part(run, cutFrom, cutTo));
            pushRun(merged, part(run, cutTo, run.count));
            start += run.count;
        }
    }
    real_ += rowsOf(runs) - count;
    putBlocks(first, last, merged);
}

/// The runs take the place of the blocks `first` to `last`.
void RowSequence::putBlocks(std::size_t first, std::size_t last, const std::vector<RowRun>& runs) {
    constexpr std::size_t kFill = kMaxRuns * 3 / 4; // leaves room for insertions
    moved_ += static_cast<std::int64_t>(runs.size());
    cursor_ = {};
    if (first == last && !runs.empty() && runs.size() <= kMaxRuns) {
        const int rows = rowsOf(runs);
        counts_.add(first, rows - blocks_[first].rows);
        blocks_[first].runs = runs;
        blocks_[first].rows = rows;
        return;
    }
    std::vector<Block> fresh;
    for (std::size_t from = 0; from < runs.size(); from += kFill) {
        const std::size_t to = std::min(from + kFill, runs.size());
        Block block;
        block.runs.assign(runs.begin() + static_cast<std::ptrdiff_t>(from),
                          runs.begin() + static_cast<std::ptrdiff_t>(to));
        block.rows = rowsOf(block.runs);
        fresh.push_back(std::move(block));
    }
    const auto place = blocks_.erase(blocks_.begin() + static_cast<std::ptrdiff_t>(first),
                                     blocks_.begin() + static_cast<std::ptrdiff_t>(last) + 1);
    blocks_.insert(place, std::make_move_iterator(fresh.begin()), std::make_move_iterator(fresh.end()));
    recount();
}

void RowSequence::recount() {
    std::vector<int> counts;
    counts.reserve(blocks_.size());
    for (const Block& block : blocks_)
        counts.push_back(block.rows);
    counts_.assign(counts);
}

void RowSequence::clear() {
    blocks_.clear();
    counts_.assign({});
    real_ = 0;
    blanks_ = 0;
    cursor_ = {};
}

void RowSequence::forEachRun(int position, int count, const RunVisitor& visit) const {
    const int end = position + count;
    while (position < end) {
        const Cursor at = locate(position);
        const RowRun run{at.first, at.count};
        const RowRun wanted = part(run, position - at.start, std::min(at.count, end - at.start));
        visit(wanted);
        position += wanted.count;
    }
}

std::int64_t RowSequence::takeMoved() {
    return std::exchange(moved_, 0);
}

QString RowSequence::inconsistency() const {
    int start = 0;
    if (counts_.size() != blocks_.size())
        return QStringLiteral("the tree has another length than the blocks");
    for (std::size_t b = 0; b < blocks_.size(); ++b) {
        const Block& block = blocks_[b];
        if (block.runs.empty() || block.runs.size() > kMaxRuns)
            return QStringLiteral("block %1 has %2 runs").arg(b).arg(block.runs.size());
        if (rowsOf(block.runs) != block.rows || counts_.before(b) != start)
            return QStringLiteral("block %1 counts wrongly").arg(b);
        for (const RowRun& run : block.runs)
            if (run.count <= 0)
                return QStringLiteral("block %1 has an empty run").arg(b);
        start += block.rows;
    }
    if (start != real_ || blanks_ < 0)
        return QStringLiteral("the sequence has %1 rows and counts %2").arg(start).arg(real_);
    return {};
}

} // namespace zkp
