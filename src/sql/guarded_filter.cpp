#include "sql/guarded_filter.h"

#include "base/text.h"
#include "base/texts/filters.h"
#include "sql/filter_keys.h"

namespace zkp {

namespace {

const QString kOpen = QStringLiteral("( ");

/// Keys are found between blanks, and a pasted filter may have other gaps.
QString withBlanks(QString text, const std::vector<QuotedText>& quoted) {
    auto next = quoted.begin();
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (next != quoted.end() && i == next->at) {
            i += next->size - 1;
            ++next;
        } else if (text[i] == u'\t' || text[i] == u'\r' || text[i] == u'\n') {
            text[i] = u' ';
        }
    }
    return text;
}

/// Where a key would be replaced in a constant or [name]; -1 where it would not.
qsizetype quotedKey(const QString& condition, const std::vector<QuotedText>& quoted, const QString& key,
                    const QString& physical) {
    for (const QuotedText& one : quoted) {
        const QString before = condition.mid(one.at, one.size);
        QString after = before;
        if (replaceKey(after, key, physical) && after != before)
            return one.at + before.indexOf(key);
    }
    return -1;
}

/// What a dictionary's own expressions hold is not a person's to answer for.
FilterScan scanTranslated(const QString& condition) {
    return scanFilter(condition, {.foreignSigns = true, .subselects = true});
}

} // namespace

GuardedFilter guardedFilter(const QString& typed, bool allowsSubselects) {
    const FilterScan scan = scanFilter(typed, {.subselects = allowsSubselects});
    if (!scan.refusal.isEmpty())
        return {{}, scan.refusal};
    const QString text = withBlanks(typed, scan.quoted);
    const QStringView condition = trimmed(text);
    if (condition.isEmpty())
        return {QStringLiteral(" 0=0 "), {}}; // what every builder and every database takes
    return {kOpen + condition.toString() + QStringLiteral(" )"), {}, condition.data() - text.constData()};
}

WatchedCondition::WatchedCondition(const QString& condition)
    : capitals_(nameKey(condition))
    , text_(capitals_)
    , quoted_(scanTranslated(capitals_).quoted) {}

bool WatchedCondition::replaceKey(const QString& key, const QString& physical) {
    if (reason_ || key.isEmpty() || !text_.contains(key))
        return false;
    at_ = quotedKey(capitals_, quoted_, key, physical);
    if (at_ >= 0) {
        reason_ = texts::keyInConstant;
        return false;
    }
    const QString before = text_;
    zkp::replaceKey(text_, key, physical);
    if (text_ != before && !scanTranslated(text_).isOneBracket()) {
        reason_ = texts::keyOutOfBrackets;
        at_ = std::max<qsizetype>(capitals_.indexOf(key), 0);
    }
    return true;
}

QString WatchedCondition::refusal(qsizetype offset) const {
    return reason_ ? reason_(std::max<qsizetype>(at_ - kOpen.size(), 0) + offset + 1) : QString();
}

} // namespace zkp
