#pragma once

#include "sql/filter_scan.h"

namespace zkp {

/// A person's filter as it may stand in a statement, or why it may not.
struct GuardedFilter {
    QString condition;    ///< in brackets, padded with blanks; " 0=0 " for a blank filter
    QString refusal;      ///< for the person, with its place; empty when the filter is accepted
    qsizetype offset = 0; ///< how many blanks were typed in front of it
};

/// Filters become part of a statement as text, with the user's rights behind them. One that holds `or`
/// would reach around the rights, and one that opens a comment or closes a bracket that it never opened
/// would cut them off. So the filter comes back in brackets, `( A=1 or B=2 )`, with blanks inside
/// them for the keys that stand first and last, and is refused when it could leave these brackets.
/// Questions to other tables are refused unless they are allowed.
///
/// It does not judge whether the database understands the filter.
GuardedFilter guardedFilter(const QString& typed, bool allowsSubselects = false);

/// A guarded condition on its way into physical names. Keys are replaced wherever they stand: so it is
/// watched that none stands in a constant or [name], whose rest would get loose, and that the condition
/// stays one pair of brackets.
class WatchedCondition {
public:
    explicit WatchedCondition(const QString& condition);

    /// Replaces a dictionary row's key. False when it does not occur, and behind a refusal.
    bool replaceKey(const QString& key, const QString& physical);

    const QString& text() const { return text_; }
    /// Why the condition can't be translated, with its place in what was typed behind `offset` blanks;
    /// empty when it can.
    QString refusal(qsizetype offset = 0) const;

private:
    QString capitals_; ///< the condition before any key was replaced
    QString text_;
    std::vector<QuotedText> quoted_;
    QString (*reason_)(qsizetype) = nullptr;
    qsizetype at_ = -1; ///< where the key stands that went wrong
};

} // namespace zkp
