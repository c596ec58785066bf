#pragma once

#include "widgets/tools/find_search.h"

#include <QWidget>

namespace zkp {

class ZkpGridWidget;

/// Shows the hits of a search on the rows that stand on screen, the found one stronger: a clear sheet
/// over the report. It writes no style, so that nothing has to be put back.
class FindMarks : public QWidget {
    Q_OBJECT

public:
    explicit FindMarks(ZkpGridWidget& report);

    void setNeedle(const FoldedNeedle& needle);
    /// The cell that the search stands on; none at the start.
    void setFound(FoundCell cell);

    /// The cells that are marked now.
    std::vector<FoundCell> marked() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QRect foundRect() const;

    ZkpGridWidget& report_;
    FoldedNeedle needle_;
    FoundCell found_;
};

} // namespace zkp
