#pragma once

#include "window/dictionary_fields.h"

#include <QWidget>

#include <vector>

class QCheckBox;
class QComboBox;

namespace zkp::app {

/// The choice of up to four group factors, one list for each, outermost first, and of the totals form.
/// A list shows once the one before it has its factor, and offers what no other list has.
class GroupChoice : public QWidget {
    Q_OBJECT

public:
    explicit GroupChoice(QWidget* parent = nullptr);

    /// Offers the group factors of a report; of the chosen ones those stay that it has.
    void setFields(const std::vector<DictionaryField>& fields);
    /// Chooses without a signal. What the report's fields lack goes with setFields.
    void choose(const QStringList& factors, bool isTotals);

    const QStringList& factors() const { return factors_; }
    /// False without a factor.
    bool isTotals() const;

Q_SIGNALS:
    void changed();

private:
    void fill();
    void fillList(int place);
    void onChosen(int place);

    std::vector<DictionaryField> offered_;
    QStringList factors_;
    std::vector<QComboBox*> lists_;
    QCheckBox* totals_;
};

} // namespace zkp::app
