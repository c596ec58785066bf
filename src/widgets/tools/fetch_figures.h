#pragma once

#include <QString>

#include <cstdint>

namespace zkp {

/// The figures of a fetch that goes on: rows read so far, and how many a second.
class FetchFigures {
public:
    /// Rows read at a moment; fewer than before mean that another fetch has begun.
    void note(std::int64_t rows, std::int64_t milliseconds);
    /// Rows a second since the first note of the fetch; 0 while that can't be told.
    std::int64_t rate() const;
    std::int64_t rows() const { return rows_; }
    QString text() const;

private:
    std::int64_t firstRows_ = 0;
    std::int64_t firstMs_ = 0;
    std::int64_t rows_ = 0;
    std::int64_t ms_ = 0;
};

} // namespace zkp
