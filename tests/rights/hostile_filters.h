#pragma once

#include <QString>

#include <vector>

namespace zkp::rights {

/// A text that somebody types as a filter to see more than he may.
struct HostileFilter {
    const char* kind;
    QString text;
};

/// Two hundred of them, by their kinds. The keys are those of policies, and most are of claims too.
const std::vector<HostileFilter>& hostileFilters();

} // namespace zkp::rights
