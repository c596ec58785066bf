#pragma once

#include "sql/builder_inputs.h"

namespace zkp {

/// The rights model: the user's identity and level as a condition on the report's identity columns.
/// The three forms differ in blanks and brackets, and the differences are wanted.
class Hierarchy {
public:
    Hierarchy(BuilderInputs& inputs, IdentityState& identity)
        : inputs_(inputs)
        , identity_(identity) {}

    /// Asks the database for the level (`Ierarxia`) and the identity at that level (`IerID`) of
    /// `ProductID`. Failures reach the caller.
    void LoadIerarxia();

    /// Form A: writes " 0=0 " for an empty or "TRUE" `Filter`, then appends the condition to the
    /// property. It grows with each statement built, as wanted.
    void restrictFilter();
    /// Form B: the condition behind a filter text that is not the property.
    QString restricted(const QString& filter) const;
    /// Form C: the condition as a recordset filter; empty for an unknown level.
    QString recordsetFilter() const;

    /// " 0=0 " for a blank text or "TRUE", otherwise the text.
    static QString normalized(const QString& filter);

private:
    BuilderInputs& inputs_;
    IdentityState& identity_;
};

} // namespace zkp
