#include "ado/odbc/fetch.h"

#include "ado/constants.h"

#include <algorithm>

namespace zkp::ado::odbc {

namespace {

constexpr std::size_t kMostRows = 1024;
constexpr std::size_t kBlockBytes = 4u << 20;
constexpr std::size_t kBlocksOnTheWay = 4;
constexpr std::size_t kRowsBetweenReports = 10'000;

} // namespace

Fetch::Fetch(Statement& statement, const RunOptions& options)
    : statement_(statement)
    , options_(options)
    , values_(statement) {
    for (int column = 0; column < statement.columnCount(); ++column)
        columns_.push_back(describeColumn(statement, column));
    builders_.resize(columns_.size());
    plan();
}

/// The driver must not write into buffers that are gone, whatever the statement does next.
Fetch::~Fetch() {
    queue_.cancel();
    if (fetcher_.joinable())
        fetcher_.join();
    unbindAll(statement_);
}

/// Where the driver can't go back into a block for a long value, rows come one by one from the first
/// long column on: every driver takes bound columns first and then the others in their order.
void Fetch::plan() {
    const auto firstLong = std::find_if(columns_.begin(), columns_.end(),
                                        [](const ColumnType& column) { return column.isLong; });
    overlaps_ = firstLong == columns_.end();
    const bool wholeBlocks = overlaps_ || statement_.session().readsInsideBlocks();
    bound_ = wholeBlocks ? columns_.size() : static_cast<std::size_t>(firstLong - columns_.begin());
    std::size_t rowBytes = 1;
    for (const ColumnType& column : columns_)
        rowBytes += column.width + sizeof(SQLLEN);
    blockRows_ = wholeBlocks ? std::clamp<std::size_t>(kBlockBytes / rowBytes, 16, kMostRows) : 1;
}

std::unique_ptr<RowBlock> Fetch::newBlock() const {
    return std::make_unique<RowBlock>(columns_, bound_, blockRows_);
}

/// Most results are one block.
Result Fetch::run() {
    const auto first = newBlock();
    if (first->fetch(statement_)) {
        store(*first);
        if (overlaps_ && first->rows() == blockRows_)
            runOverlapped();
        else
            runInPlace(*first);
    }
    return finish();
}

void Fetch::runInPlace(RowBlock& block) {
    while (block.fetch(statement_))
        store(block);
}

void Fetch::store(RowBlock& block) {
    const std::size_t before = rows_;
    block.appendTo(builders_, values_);
    rows_ += block.rows();
    if (!options_.progress || rows_ / kRowsBetweenReports == before / kRowsBetweenReports)
        return;
    // The host may use the connection while it is told.
    const std::lock_guard lock(driver_);
    options_.progress(static_cast<std::int64_t>(rows_));
}

void Fetch::runOverlapped() {
    for (std::size_t i = 0; i < kBlocksOnTheWay; ++i)
        queue_.giveFree(newBlock());
    fetcher_ = std::thread(&Fetch::fetchAll, this);
    for (;;) {
        auto block = queue_.takeFilled();
        if (block->failure)
            throw *block->failure;
        if (block->isLast)
            break;
        store(*block);
        queue_.giveFree(std::move(block));
    }
    fetcher_.join();
}

void Fetch::fetchAll() {
    while (auto block = queue_.takeFree()) {
        try {
            const std::lock_guard lock(driver_);
            block->isLast = !block->fetch(statement_);
            // A driver may say less of a column than it holds, as PostgreSQL's of a varchar without a length.
            block->readCut(values_);
        } catch (const Error& error) {
            block->failure = error;
        } catch (const std::exception& e) {
            block->failure.emplace(kErrDatabase, QString::fromUtf8(e.what()));
        }
        const bool ends = block->isLast || block->failure;
        queue_.giveFilled(std::move(block));
        if (ends)
            return;
    }
}

Result Fetch::finish() {
    Result result;
    result.table.rows = rows_;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        FieldInfo& info = columns_[i].info;
        const bool whole =
            !builders_[i].has(store::ValueKind::Amount) && !builders_[i].has(store::ValueKind::Double);
        if (columns_[i].byValues && whole && !builders_[i].hasLongInteger())
            info = {info.name, adInteger, 4};
        else if (columns_[i].byValues && whole)
            info = {info.name, adBigInt, 8};
        result.fields.push_back(info);
        result.table.columns.push_back(builders_[i].finish());
    }
    return result;
}

} // namespace zkp::ado::odbc
