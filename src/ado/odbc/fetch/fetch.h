#pragma once

#include "ado/batch_queue.h"
#include "ado/odbc/fetch/row_block.h"

#include <memory>
#include <thread>

namespace zkp::ado::odbc {

/// Fetches all records of a statement's current result into columns, in blocks of rows. Long results are
/// fetched on a thread of their own while the calling thread fills the columns and reports progress.
class Fetch {
public:
    Fetch(Statement& statement, const RunOptions& options);
    ~Fetch();
    Fetch(const Fetch&) = delete;
    Fetch& operator=(const Fetch&) = delete;

    Result run();

private:
    void plan();
    void fill(RowBatch& batch);
    void store(RowBatch& batch);
    void runInPlace(RowBatch& batch);
    void runOverlapped();
    void fetchAll();
    Result finish();

    Statement& statement_;
    const RunOptions& options_;
    std::vector<ColumnType> columns_;
    std::vector<store::ColumnBuilder> builders_;
    LongValues values_; ///< as the block, the fetching thread's alone while there is one
    std::unique_ptr<RowBlock> block_;
    bool overlaps_ = false; ///< no column is long
    std::size_t rows_ = 0;

    BatchQueue<RowBatch> queue_;
    std::mutex driver_; ///< held while the driver fetches, and while the host is told of the progress
    std::thread fetcher_;
};

} // namespace zkp::ado::odbc
