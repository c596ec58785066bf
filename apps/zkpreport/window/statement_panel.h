#pragma once

#include "load/load_outcome.h"

#include <QWidget>

class QLabel;
class QPlainTextEdit;

namespace zkp::app {

/// The statement of the last load, as built and as sent, with its figures. The texts can be selected
/// and copied, not changed.
class StatementPanel : public QWidget {
    Q_OBJECT

public:
    explicit StatementPanel(QWidget* parent = nullptr);

    void setOutcome(const LoadOutcome& outcome);
    void clear();

    QString built() const;
    QString sent() const;
    QString figures() const;

private:
    QLabel* figures_;
    QPlainTextEdit* built_;
    QPlainTextEdit* sent_;
};

} // namespace zkp::app
