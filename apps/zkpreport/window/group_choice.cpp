#include "window/group_choice.h"

#include "window/shrinking_list.h"
#include "window/texts.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

namespace zkp::app {

namespace {

constexpr int kListWidth = 168;
constexpr int kSpacing = 4;

} // namespace

GroupChoice::GroupChoice(QWidget* parent)
    : QWidget(parent)
    , totals_(new QCheckBox(texts::totalsLabel())) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(kSpacing);
    auto* label = new QLabel(texts::groupsLabel());
    row->addWidget(label);
    for (int place = 0; place < kMostFactors; ++place) {
        auto* list = new ShrinkingList(kListWidth);
        list->setObjectName(QStringLiteral("group%1").arg(place + 1));
        list->setAccessibleName(texts::groupName(place + 1));
        connect(list, &QComboBox::activated, this, [this, place] { onChosen(place); });
        lists_.push_back(list);
        row->addWidget(list);
    }
    label->setBuddy(lists_.front());
    totals_->setObjectName(QStringLiteral("totals"));
    totals_->setToolTip(texts::totalsTip());
    connect(totals_, &QCheckBox::toggled, this, &GroupChoice::changed);
    row->addSpacing(kSpacing);
    row->addWidget(totals_);
    fill();
}

void GroupChoice::setFields(const std::vector<DictionaryField>& fields) {
    offered_.clear();
    for (const DictionaryField& field : fields)
        if (field.isGroup)
            offered_.push_back(field);
    fill();
}

void GroupChoice::choose(const QStringList& factors, bool isTotals) {
    factors_ = factors;
    const QSignalBlocker quiet(totals_);
    totals_->setChecked(isTotals);
}

bool GroupChoice::isTotals() const {
    return totals_->isChecked() && !factors_.isEmpty();
}

void GroupChoice::fill() {
    factors_ = offeredFactors(offered_, factors_);
    for (int place = 0; place < kMostFactors; ++place)
        fillList(place);
    setEnabled(!offered_.empty());
    totals_->setEnabled(!factors_.isEmpty());
    if (factors_.isEmpty()) {
        const QSignalBlocker quiet(totals_);
        totals_->setChecked(false);
    }
}

void GroupChoice::fillList(int place) {
    QComboBox& list = *lists_[static_cast<std::size_t>(place)];
    const QString own = factors_.value(place);
    list.clear();
    list.addItem(texts::noGroup(), QString());
    for (const DictionaryField& field : offered_)
        if (field.key == own || !factors_.contains(field.key))
            list.addItem(field.caption, field.key);
    list.setCurrentIndex(own.isEmpty() ? 0 : list.findData(own));
    list.view()->setMinimumWidth(list.view()->sizeHintForColumn(0));
    list.setVisible(place <= factors_.size());
}

/// A factor that is taken away lets those behind it move up.
void GroupChoice::onChosen(int place) {
    const QString key = lists_[static_cast<std::size_t>(place)]->currentData().toString();
    if (key == factors_.value(place))
        return;
    if (key.isEmpty())
        factors_.removeAt(place);
    else if (place < factors_.size())
        factors_[place] = key;
    else
        factors_ += key;
    fill();
    Q_EMIT changed();
}

} // namespace zkp::app
