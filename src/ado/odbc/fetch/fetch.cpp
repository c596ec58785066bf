#include "ado/odbc/fetch/fetch.h"

#include "ado/constants.h"

#include <algorithm>

namespace zkp::ado::odbc {

namespace {

constexpr std::size_t kMostRows = 256;
constexpr std::size_t kBlockBytes = 4u << 20;
constexpr std::size_t kBatchesOnTheWay = 4;
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
    const auto bound = wholeBlocks ? columns_.size() : static_cast<std::size_t>(firstLong - columns_.begin());
    std::size_t rowBytes = 1;
    for (const ColumnType& column : columns_)
        rowBytes += column.width + sizeof(SQLLEN);
    const std::size_t rows = wholeBlocks ? std::clamp<std::size_t>(kBlockBytes / rowBytes, 16, kMostRows) : 1;
    block_ = std::make_unique<RowBlock>(columns_, bound, rows);
}

/// Most results are one block.
Result Fetch::run() {
    RowBatch first(columns_);
    fill(first);
    store(first);
    if (overlaps_ && first.rows == block_->rows())
        runOverlapped();
    else
        runInPlace(first);
    return finish();
}

void Fetch::fill(RowBatch& batch) {
    batch.clear();
    batch.isLast = !block_->fetch(statement_, values_, batch);
}

void Fetch::runInPlace(RowBatch& batch) {
    while (!batch.isLast) {
        fill(batch);
        store(batch);
    }
}

void Fetch::store(RowBatch& batch) {
    const std::size_t before = rows_;
    batch.appendTo(builders_);
    rows_ += batch.rows;
    if (!options_.progress || rows_ / kRowsBetweenReports == before / kRowsBetweenReports)
        return;
    // The host may use the connection while it is told.
    const std::lock_guard lock(driver_);
    options_.progress(static_cast<std::int64_t>(rows_));
}

void Fetch::runOverlapped() {
    for (std::size_t i = 0; i < kBatchesOnTheWay; ++i)
        queue_.giveFree(std::make_unique<RowBatch>(columns_));
    fetcher_ = std::thread(&Fetch::fetchAll, this);
    for (;;) {
        auto batch = queue_.takeFilled();
        if (batch->failure)
            throw *batch->failure;
        if (batch->isLast)
            break;
        store(*batch);
        queue_.giveFree(std::move(batch));
    }
    fetcher_.join();
}

void Fetch::fetchAll() {
    while (auto batch = queue_.takeFree()) {
        try {
            const std::lock_guard lock(driver_);
            fill(*batch);
        } catch (const Error& error) {
            batch->failure = error;
        } catch (const std::exception& e) {
            batch->failure.emplace(kErrDatabase, QString::fromUtf8(e.what()));
        }
        const bool ends = batch->isLast || batch->failure;
        queue_.giveFilled(std::move(batch));
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
