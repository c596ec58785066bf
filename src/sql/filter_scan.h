#pragma once

#include <QString>

#include <vector>

namespace zkp {

/// What a condition may hold beside comparisons, constants and names.
struct FilterRules {
    /// What opens a comment or a quotation in one database and nothing in another.
    bool foreignSigns = false;
    bool subselects = false;
};

/// A constant or [name] of a condition, with its signs.
struct QuotedText {
    qsizetype at = 0;
    qsizetype size = 0;
};

/// What a walk over a condition found, up to the first thing that could lead out of its brackets.
struct FilterScan {
    QString refusal; ///< what that is, with its place; empty when there is nothing
    std::vector<QuotedText> quoted;
    int groups = 0;          ///< how often the text came back to the outside of all brackets
    bool hasOutside = false; ///< whether something else than blanks stands there

    /// One pair of brackets from the first character to the last; blanks around it don't count.
    bool isOneBracket() const { return refusal.isEmpty() && groups == 1 && !hasOutside; }
};

/// Refused are comments, `;`, quotes and brackets without their other half, and what the rules don't
/// allow. Constants and names are not looked into, but for what ends them in some databases only.
FilterScan scanFilter(QStringView text, const FilterRules& rules = {});

} // namespace zkp
