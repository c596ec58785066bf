#include "sql/filter_translation.h"

#include "base/error.h"
#include "base/text.h"
#include "base/texts/statements.h"
#include "sql/filter_keys.h"
#include "sql/guarded_filter.h"

#include <utility>

namespace zkp {

namespace {

const QString kEverything = QStringLiteral("0=0");
const QString kNothing = QStringLiteral(" 0=1 ");

} // namespace

/// A filter on its way, all in capitals, constants too: what the host wrote, and behind it what a person
/// typed, if anything.
class FilterTranslation::Text {
public:
    /// The report's standing condition in front. An empty filter leaves a dangling " and ", as wanted, and a
    /// host's text that holds the condition already does not get it again.
    Text(const BuilderInputs& inputs, const TypedFilter* typed) {
        hosts_ = typed ? upper(typed->front()) : nameKey(inputs.data.Filter);
        const QString standing = nameKey(inputs.master.MasterFilter);
        if (!standing.isEmpty() && !hosts_.contains(standing))
            hosts_.prepend(u'(' + standing + QStringLiteral(") and "));
        if (typed)
            typed_.emplace(typed->condition());
    }

    /// False when the key does not occur.
    bool replaceKey(const QString& key, const QString& physical) {
        const bool inHosts = zkp::replaceKey(hosts_, key, physical);
        return (typed_ && typed_->replaceKey(key, physical)) || inHosts;
    }

    QString whole() const { return typed_ ? hosts_ + typed_->text() : hosts_; }
    QString refusal() const { return typed_ ? typed_->refusal() : QString(); }

private:
    QString hosts_;
    std::optional<WatchedCondition> typed_;
};

void FilterTranslation::TranslateFilter(QString& Tables) {
    inputs_.beginFilter();
    const bool isTyped = inputs_.isFilterTyped();
    const QString given = nameKey(inputs_.data.Filter);
    const bool letsAllPass =
        given.isEmpty() || given == QStringLiteral("TRUE") || (isTyped && given == kEverything);
    if (isBlank(inputs_.data.clmns) || (isBlank(inputs_.master.MasterFilter) && letsAllPass))
        return;
    try {
        Text text(inputs_, isTyped ? &inputs_.typedFilter() : nullptr);
        translate(text, Tables);
        if (!text.refusal().isEmpty())
            throw Error(kErrInvalidCall, text.refusal());
        inputs_.setFilter(text.whole());
    } catch (const std::exception&) {
        inputs_.tellFailure(texts::filterFailed());
        if (isTyped)
            inputs_.setFilter(kNothing);
    }
}

void FilterTranslation::translate(Text& text, QString& Tables) {
    const QString master = nameKey(inputs_.master.MasterTable);
    QString capitals; // of the filter, while `isCurrent`; made only for a row that asks
    bool isCurrent = false;
    for (FilterKeys keys(inputs_.data, inputs_.source); keys.next();) {
        if (keys.hasPhysical() && text.replaceKey(keys.key(), keys.physical()))
            isCurrent = false;
        const std::optional<QString>& table = keys.table();
        if (!table || *table == master || Tables.contains(u' ' + *table + u' '))
            continue;
        if (!std::exchange(isCurrent, true))
            capitals = nameKey(text.whole());
        if (capitals.contains(keys.physical()))
            Tables += QStringLiteral(", ") + *table + u' ';
    }
}

} // namespace zkp
