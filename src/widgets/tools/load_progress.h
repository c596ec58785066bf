#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QPointer>
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

/// Tells on a label how a load goes. A load lets no events in, so the label is painted at once, by
/// itself, and a few times a second at most; nothing else happens while it is.
class LoadProgress {
public:
    explicit LoadProgress(QLabel& label);

    /// The statement goes to the database; until the first rows come there is nothing to tell.
    void begin();
    /// What the connection's fetch callback reports.
    void note(std::int64_t rows);
    /// The records are there and become rows of the report; told of a fetch that was long enough to report.
    void layOut(std::int64_t rows);
    void end();

private:
    void show(const QString& text);

    QPointer<QLabel> label_;
    QElapsedTimer timer_;
    std::int64_t lastShown_;
    FetchFigures figures_;
};

} // namespace zkp
