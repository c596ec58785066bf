#pragma once

#include "widgets/tools/selection_sums.h"

#include <QLabel>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <optional>

namespace zkp {

class ZkpGridWidget;

/// Sum, count and average of the selected cells on a label, worked out in slices of a few milliseconds.
/// One cell alone has none.
class SelectionStatus : public QObject {
    Q_OBJECT

public:
    /// `isLoading`: true while a load lets events in; the sums wait then.
    SelectionStatus(QLabel& label, std::function<bool()> isLoading, QObject* parent = nullptr);

    void setReport(ZkpGridWidget* report);
    /// The cells may hold other values.
    void startAgain();

private:
    void follow();
    void slice();

    QLabel& label_;
    std::function<bool()> isLoading_;
    QPointer<ZkpGridWidget> report_;
    std::optional<SelectionSums> sums_;
    CellRange block_;
    QTimer timer_;
};

} // namespace zkp
