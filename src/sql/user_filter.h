#pragma once

#include "sql/builder_inputs.h"

namespace zkp {

/// Takes filters from persons.
class UserFilter {
public:
    explicit UserFilter(BuilderInputs& inputs)
        : inputs_(inputs) {}

    /// What stands at `ZkpGrid::setUserFilter`.
    QString set(const QString& text);

private:
    QString refusalOfKeys(const QString& condition, qsizetype offset) const;

    BuilderInputs& inputs_;
};

} // namespace zkp
