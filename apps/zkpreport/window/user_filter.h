#pragma once

#include <QString>

namespace zkp::app {

/// A user's filter as it may be handed over as `Filter`, or why it may not.
struct UserFilter {
    QString text;    ///< padded with blanks and in brackets; empty for a blank filter
    QString failure; ///< for the user; empty when the filter is accepted

    bool isAccepted() const { return failure.isEmpty(); }
};

/// Filters become part of a statement as text, with the user's rights behind them. One that holds `or`
/// would reach around the rights, and one that opens a comment or closes a bracket that it never opened
/// would cut them off. So the filter comes back in brackets, `( A=1 or B=2 )`, with blanks inside
/// them for the keys that stand first and last, and is refused when it could leave these brackets:
/// comments, `;`, quotes and brackets without their other half. What stands in quotes or in [names]
/// is not looked into.
///
/// It does not judge whether the database understands the filter.
UserFilter checkUserFilter(const QString& typed);

/// True when the text is one pair of brackets from its first character to its last, by the rules
/// above; blanks around it don't count.
bool isInOneBracket(const QString& text);

} // namespace zkp::app
