#pragma once

#include "ado/batch_queue.h"
#include "ado/odbc/row_block.h"

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
    std::unique_ptr<RowBlock> newBlock() const;
    void store(RowBlock& block);
    void runInPlace(RowBlock& block);
    void runOverlapped();
    void fetchAll();
    Result finish();

    Statement& statement_;
    const RunOptions& options_;
    LongValues values_; ///< the fetching thread's alone while there is one
    std::vector<ColumnType> columns_;
    std::vector<store::ColumnBuilder> builders_;
    std::size_t bound_ = 0; ///< how many of the first columns are bound; the others are read one by one
    std::size_t blockRows_ = 1;
    bool overlaps_ = false; ///< no column is long: what is cut all the same is read by the fetching thread
    std::size_t rows_ = 0;

    BatchQueue<RowBlock> queue_;
    std::mutex driver_; ///< held while the driver fetches, and while the host is told of the progress
    std::thread fetcher_;
};

} // namespace zkp::ado::odbc
