#pragma once

#include "ado/batch_queue.h"
#include "ado/sqlite/row_batch.h"
#include "ado/sqlite/statement.h"

#include <thread>

namespace zkp::ado::sqlite {

/// Fetches all rows of a bound statement into columns. Long results are stepped through on a
/// thread of their own while the calling thread fills the columns and reports progress.
class Fetch {
public:
    Fetch(std::shared_ptr<Database> database, Statement& statement, Deadline deadline,
          const RunOptions& options);
    ~Fetch();
    Fetch(const Fetch&) = delete;
    Fetch& operator=(const Fetch&) = delete;

    Result run();

private:
    void fill(RowBatch& batch);
    void store(const RowBatch& batch);
    void runOverlapped();
    void stepAll();
    Result finish();

    std::shared_ptr<Database> database_;
    Statement& statement_;
    Deadline deadline_;
    const RunOptions& options_;
    std::vector<Declared> declared_;
    std::vector<store::ColumnBuilder> builders_;
    std::size_t rows_ = 0;

    BatchQueue<RowBatch> queue_;
    std::thread stepper_;
};

} // namespace zkp::ado::sqlite
