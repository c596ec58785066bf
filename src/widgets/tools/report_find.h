#pragma once

#include "widgets/tools/find_line.h"
#include "widgets/tools/find_marks.h"
#include "widgets/tools/find_search.h"

#include <QPointer>
#include <QTimer>

#include <functional>
#include <optional>

namespace zkp {

/// Finding in a report: the line, the search that goes on in slices of a few milliseconds, and the
/// marks. Typing on begins anew from the cell where the line was opened.
class ReportFind : public QObject {
    Q_OBJECT

public:
    /// `isLoading`: true while a load lets events in; the search waits then.
    ReportFind(FindLine& line, std::function<bool()> isLoading, QObject* parent = nullptr);

    /// Another control; a search that was going on ends.
    void setReport(ZkpGridWidget* report);

    bool isOpen() const { return !line_.isHidden(); }
    void open();
    void close();
    void next() { goOn(true); }
    void previous() { goOn(false); }

private:
    void typed();
    void goOn(bool forward);
    void start(FoundCell from, bool forward, bool withFirst);
    void slice();
    void walk();
    void tell(FindSearch::State state);
    void showFound(FoundCell cell);
    void mark();
    FoundCell currentCell() const;

    FindLine& line_;
    std::function<bool()> isLoading_;
    QPointer<ZkpGridWidget> report_;
    std::optional<FindSearch> search_;
    QPointer<FindMarks> marks_;
    FoldedNeedle needle_;
    FoundCell anchor_;
    bool forward_ = true;
    QTimer timer_;
};

} // namespace zkp
