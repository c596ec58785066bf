#include "ado/sqlite/fetch.h"

#include "ado/sqlite/aggregate_types.h"

namespace zkp::ado::sqlite {

namespace {

constexpr std::size_t kBatchesOnTheWay = 6;
constexpr std::size_t kRowsBetweenReports = 10'000;

} // namespace

Fetch::Fetch(std::shared_ptr<Database> database, Statement& statement, Deadline deadline,
             const RunOptions& options)
    : database_(std::move(database))
    , statement_(statement)
    , deadline_(deadline)
    , options_(options)
    , builders_(static_cast<std::size_t>(statement.columnCount())) {
    const Turn turn(*database_);
    for (int column = 0; column < statement.columnCount(); ++column)
        declared_.push_back(declaredType(sqlite3_column_decltype(statement.handle(), column)));
    declareAggregates(database_->handle(), sqlite3_sql(statement.handle()), declared_);
}

Fetch::~Fetch() {
    if (!stepper_.joinable())
        return;
    queue_.cancel();
    // The stepper may be deep in a join that gives no row for long.
    sqlite3_interrupt(database_->handle());
    stepper_.join();
}

Result Fetch::run() {
    auto first = std::make_unique<RowBatch>(statement_.columnCount());
    fill(*first);
    store(*first);
    if (first->failure)
        throw *first->failure;
    if (!first->isLast)
        runOverlapped();
    return finish();
}

/// Takes rows until the batch is full or the statement ends.
void Fetch::fill(RowBatch& batch) {
    batch.clear();
    const Turn turn(*database_, deadline_);
    while (!batch.isFull()) {
        const int code = sqlite3_step(statement_.handle());
        if (code == SQLITE_ROW) {
            batch.addRow(statement_.handle());
            continue;
        }
        batch.isLast = true;
        if (code != SQLITE_DONE)
            batch.failure = database_->failure(code);
        return;
    }
}

void Fetch::store(const RowBatch& batch) {
    const std::size_t before = rows_;
    for (std::size_t column = 0; column < builders_.size(); ++column)
        batch.appendTo(builders_[column], static_cast<int>(column), declared_[column].storage);
    rows_ += batch.rows();
    if (options_.progress && rows_ / kRowsBetweenReports != before / kRowsBetweenReports)
        options_.progress(static_cast<std::int64_t>(rows_));
}

void Fetch::runOverlapped() {
    for (std::size_t i = 0; i < kBatchesOnTheWay; ++i)
        queue_.giveFree(std::make_unique<RowBatch>(statement_.columnCount()));
    stepper_ = std::thread(&Fetch::stepAll, this);
    bool last = false;
    while (!last) {
        auto batch = queue_.takeFilled();
        store(*batch);
        if (batch->failure)
            throw *batch->failure;
        last = batch->isLast;
        queue_.giveFree(std::move(batch));
    }
    stepper_.join();
}

void Fetch::stepAll() {
    for (;;) {
        auto batch = queue_.takeFree();
        if (!batch)
            return;
        try {
            fill(*batch);
        } catch (const std::exception& e) {
            batch->failure.emplace(kErrDatabase, QString::fromUtf8(e.what()));
        }
        const bool last = batch->isLast || batch->failure;
        queue_.giveFilled(std::move(batch));
        if (last)
            return;
    }
}

Result Fetch::finish() {
    Result result;
    result.table.rows = rows_;
    for (std::size_t column = 0; column < builders_.size(); ++column) {
        const char* name = sqlite3_column_name(statement_.handle(), static_cast<int>(column));
        result.fields.push_back(fieldInfo(QString::fromUtf8(name), declared_[column], builders_[column]));
        result.table.columns.push_back(builders_[column].finish());
    }
    return result;
}

} // namespace zkp::ado::sqlite
