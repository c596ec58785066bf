#pragma once

#include "demo/business_data.h"

#include <optional>
#include <vector>

namespace zkp::demo {

/// Whose a row is, as the rights of users are compared; null where the office sold it itself.
struct Identities {
    std::optional<std::string_view> product, agency, assistant, unit, manager;
};

struct Policy {
    int id = 0;
    std::string number;
    std::optional<int> agent, branch, customer;
    int product = 0;
    Day issued, started;
    std::optional<Day> ends;
    Moment entered;
    std::string_view status;
    std::optional<std::string_view> payWay;
    int instalments = 1, renewals = 0;
    bool paid = false;
    std::optional<double> rate;
    std::optional<std::string> plate;
    std::optional<std::string_view> remarks;
    Money premium, net, tax;
    std::optional<Money> commission, insured;
    Money claimsPaid;
    Identities identities;
};

struct Claim {
    std::string number;
    Day occurred, reported;
    std::optional<Day> paidOn;
    std::string_view cause, status;
    int injured = 0;
    std::optional<Money> estimate;
    Money paid, reserve;
};

/// Thinks up one policy after the other, with the claims made on it.
class PolicyMaker {
public:
    /// `agents` outlives the maker; at least two.
    PolicyMaker(Random random, std::span<const Agent> agents, int branches, int customers, int policies);

    /// The next policy; after it, claims() are its claims.
    Policy next();
    const std::vector<Claim>& claims() const { return claims_; }

private:
    Policy fresh();
    Policy returnOf(Policy sold);
    const Agent* chooseAgent();
    void setPlace(Policy& policy, const Agent* agent);
    void setDates(Policy& policy, const Product& product);
    void setHabits(Policy& policy, const Product& product);
    void setAmounts(Policy& policy, const Product& product);
    void makeClaims(Policy& policy, const Product& product);
    Claim oneClaim(const Policy& policy);

    Random random_;
    std::span<const Agent> agents_;
    int branches_, customers_, policies_;
    int id_ = 0;
    int claimId_ = 0;
    std::optional<Policy> toReturn_;
    std::vector<Claim> claims_;
};

} // namespace zkp::demo
