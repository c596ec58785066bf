#pragma once

#include "widgets/tools/find_search.h"
#include "widgets/tools/report_tool.h"

#include <QTimer>

#include <optional>

namespace zkp {

class FindLine;
class FindMarks;

/// Finding a text in a report: the line in which it is typed, the search that goes on in slices of a few
/// milliseconds, and the marks over the hits in sight. Typing on begins anew from the cell where the line
/// was opened; the found cell becomes the current one. Case and accents don't count.
///
/// Commands: `find` (Ctrl+F), `findNext` (F3), `findPrevious` (Shift+F3). Widget: the line, hidden until a
/// search is opened; Escape that nobody else in its window wants closes it.
class FindTool : public ReportTool {
    Q_OBJECT

public:
    explicit FindTool(QObject* parent = nullptr);
    ~FindTool() override;

    bool isOpen() const;
    void open();
    void close();
    void next() { goOn(true); }
    void previous() { goOn(false); }

protected:
    /// A search that was going on ends.
    void reportChanged() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void typed();
    void goOn(bool forward);
    void start(FoundCell from, bool forward, bool withFirst);
    void slice();
    void walk();
    void tell(FindSearch::State state);
    void showFound(FoundCell cell);
    void mark();
    void note(const QString& text);
    FoundCell currentCell() const;

    QPointer<FindLine> line_;
    QPointer<QWidget> window_; // of the open line
    std::optional<FindSearch> search_;
    QPointer<FindMarks> marks_;
    FoldedNeedle needle_;
    FoundCell anchor_;
    bool forward_ = true;
    QTimer timer_;
};

} // namespace zkp
