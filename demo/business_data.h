#pragma once

#include "demo/random.h"
#include "demo/sqlite_writer.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zkp::demo {

/// The producer that sells a policy, and whose it is, level by level.
struct Agent {
    int id = 0;
    int branch = 0;
    std::string name;
    std::string producer, agency, assistant, unit, manager;
};

/// An insurance product and the bounds of its policies.
struct Product {
    std::string_view name;
    std::string_view category;
    std::string_view coverCode;
    int netLow = 0, netHigh = 0; ///< euro
    int taxPerMille = 0;
    int commissionPerMille = 0;
    int insuredPerNet = 0;  ///< sum insured, in multiples of the net premium
    int claimsPerMille = 0; ///< how many policies have a claim
    bool vehicle = false;   ///< has a number plate
    bool openEnded = false; ///< may run without an end date
};

/// Fills BRANCHES and returns how many there are. The last one's name is blank.
int makeBranches(Database& database);

/// Fills AGENTS. The first ones sell most; the last but one has a blank name, and all that the last
/// one sold was returned.
std::vector<Agent> makeAgents(Database& database, Random random, int count, int branches);

std::span<const Product> products();
/// Fills PRODUCTS, numbered from 1 in the order of products().
void makeProducts(Database& database);

void makeCustomers(Database& database, Random random, int count);

/// A number with zeros in front.
std::string padded(int number, int digits);

} // namespace zkp::demo
