#pragma once

#include "demo/business_data.h"

namespace zkp::demo {

/// Fills POLICIES and CLAIMS. A policy's Poson is its net premium, its PosonLR what was paid on its claims.
void makePolicies(Database& database, Random random, std::span<const Agent> agents, int branches,
                  int customers, int count);

} // namespace zkp::demo
