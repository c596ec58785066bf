#include "demo/policy_maker.h"

#include <algorithm>
#include <array>

namespace zkp::demo {

namespace {

using std::chrono::days;

constexpr Day kFirstDay = day(2019, 1, 1);
constexpr Day kLastDay = day(2025, 12, 31);
constexpr int kPeriod = (kLastDay - kFirstDay).count();

constexpr std::array<std::string_view, 5> kPayWays{"Μετρητά", "Κάρτα", "Πάγια Εντολή", "Επιταγή",
                                                   "Τραπεζική Κατάθεση"};
constexpr std::array<std::string_view, 7> kRemarks{
    "Ανανέωση με έκπτωση 10%", "Ο πελάτης ζητά ειδοποίηση",
    "Αλλαγή διεύθυνσης",       "Παλιό συμβόλαιο άλλης εταιρείας",
    "Έκπτωση «πολυασφάλισης»", "Τηλεφώνησε: 'ναι, συμφωνώ'",
    "Προϋπόθεση: αυτοψία"};
constexpr std::array<std::string_view, 8> kCauses{"Σύγκρουση", "Κλοπή",    "Πυρκαγιά", "Θραύση κρυστάλλων",
                                                  "Νοσηλεία",  "Πλημμύρα", "Πτώση",    "Υλικές ζημίες"};
// The letters that Greek and Latin writing share, the only ones on a plate.
constexpr std::array<std::string_view, 14> kPlateLetters{"Α", "Β", "Ε", "Ζ", "Η", "Ι", "Κ",
                                                         "Μ", "Ν", "Ο", "Ρ", "Τ", "Υ", "Χ"};

/// A share of an amount that is not negative, to the nearest cent.
Money share(Money amount, int perMille) {
    return {(amount.cents * perMille + 500) / 1000};
}

Money negative(Money amount) {
    return {-amount.cents};
}

std::optional<Money> negative(std::optional<Money> amount) {
    return amount ? std::optional{negative(*amount)} : std::nullopt;
}

} // namespace

PolicyMaker::PolicyMaker(Random random, std::span<const Agent> agents, int branches, int customers,
                         int policies)
    : random_(random)
    , agents_(agents)
    , branches_(branches)
    , customers_(customers)
    , policies_(policies) {}

Policy PolicyMaker::next() {
    ++id_;
    claims_.clear();
    if (toReturn_) {
        Policy policy = returnOf(*std::move(toReturn_));
        toReturn_.reset();
        return policy;
    }
    return fresh();
}

// All that the last agent sold comes back with the next policy, so that his figures net to zero.
Policy PolicyMaker::fresh() {
    const bool retired = id_ % 250 == 100 && id_ < policies_;
    Policy policy;
    policy.id = id_;
    policy.product = 1 + random_.lowBelow(static_cast<int>(products().size()));
    const Product& product = products()[static_cast<std::size_t>(policy.product - 1)];
    setPlace(policy, retired ? &agents_.back() : chooseAgent());
    setDates(policy, product);
    setHabits(policy, product);
    setAmounts(policy, product);
    if (retired)
        toReturn_ = policy;
    else if (random_.chance(25))
        policy = returnOf(std::move(policy));
    else
        makeClaims(policy, product);
    return policy;
}

Policy PolicyMaker::returnOf(Policy sold) {
    sold.id = id_;
    sold.number = padded(id_, 7) + "/Ε";
    sold.status = "Ακύρωση";
    sold.premium = negative(sold.premium);
    sold.net = negative(sold.net);
    sold.tax = negative(sold.tax);
    sold.commission = negative(sold.commission);
    sold.insured = negative(sold.insured);
    return sold;
}

/// Null for what the office sells without an agent.
const Agent* PolicyMaker::chooseAgent() {
    const int others = static_cast<int>(agents_.size()) - 1;
    const int index = random_.lowBelow(others);
    const bool fromBlankAgent = random_.chance(5);
    const bool direct = random_.chance(8);
    if (direct)
        return nullptr;
    return &agents_[static_cast<std::size_t>(fromBlankAgent ? others - 1 : index)];
}

void PolicyMaker::setPlace(Policy& policy, const Agent* agent) {
    const int anyBranch = random_.between(1, branches_);
    const bool elsewhere = random_.chance(100);
    policy.branch = agent && !elsewhere ? agent->branch : anyBranch;
    if (random_.chance(15))
        policy.branch = branches_;
    if (random_.chance(10))
        policy.branch.reset();
    const int customer = 1 + random_.below(customers_);
    if (!random_.chance(5))
        policy.customer = customer;
    const bool noAssistant = random_.chance(10);
    if (!agent)
        return;
    policy.agent = agent->id;
    policy.identities = {agent->producer, agent->agency,
                         noAssistant ? std::string_view{""} : agent->assistant, agent->unit, agent->manager};
}

// Policies are numbered in the order of their issue, give or take a month.
void PolicyMaker::setDates(Policy& policy, const Product& product) {
    const auto along = static_cast<std::int64_t>(id_ - 1) * (kPeriod - 30) / policies_;
    policy.issued = kFirstDay + days{along + random_.below(30)};
    policy.started = policy.issued + days{random_.below(15)};
    const bool openEnded = product.openEnded && random_.chance(400);
    if (!openEnded)
        policy.ends = yearsLater(policy.started, product.openEnded ? random_.between(5, 25) : 1);
    policy.entered.day = policy.issued + days{random_.lowBelow(5)};
    const int minute = random_.between(8 * 60, 17 * 60);
    policy.entered.secondOfDay = random_.chance(100) ? 0 : minute * 60;
    const bool proposal = random_.chance(20);
    const bool ended = policy.ends && *policy.ends <= kLastDay;
    policy.status = proposal ? "Πρόταση" : ended ? "Λήξη" : "Ενεργό";
}

void PolicyMaker::setHabits(Policy& policy, const Product& product) {
    constexpr std::array<int, 5> kInstalments{1, 1, 2, 4, 12};
    policy.renewals = random_.lowBelow(9);
    policy.number = padded(id_, 7) + "/" + std::to_string(policy.renewals);
    policy.instalments = random_.pick(kInstalments);
    policy.paid = random_.chance(830);
    const std::string_view payWay = random_.pick(kPayWays);
    const int knownPayWay = random_.below(100);
    if (knownPayWay >= 4)
        policy.payWay = knownPayWay < 8 ? std::string_view{""} : payWay;
    const std::string_view remark = random_.pick(kRemarks);
    const int remarked = random_.below(100);
    if (remarked >= 70)
        policy.remarks = remarked < 85 ? std::string_view{""} : remark;
    if (!product.vehicle)
        return;
    policy.rate = random_.between(10, 36) / 20.0;
    std::string plate;
    for (int letter = 0; letter < 3; ++letter)
        plate += random_.pick(kPlateLetters);
    plate += "-" + std::to_string(random_.between(1000, 9999));
    policy.plate = random_.chance(20) ? std::string{} : plate;
}

void PolicyMaker::setAmounts(Policy& policy, const Product& product) {
    policy.net = {product.netLow * 100 + random_.lowBelow((product.netHigh - product.netLow) * 100 + 1)};
    policy.tax = share(policy.net, product.taxPerMille);
    policy.premium = {policy.net.cents + policy.tax.cents};
    if (!random_.chance(60))
        policy.commission = share(policy.net, product.commissionPerMille);
    if (!random_.chance(30))
        policy.insured = {policy.net.cents * product.insuredPerNet};
}

void PolicyMaker::makeClaims(Policy& policy, const Product& product) {
    if (!random_.chance(product.claimsPerMille))
        return;
    const int count = 1 + random_.lowBelow(3);
    for (int i = 0; i < count; ++i) {
        claims_.push_back(oneClaim(policy));
        policy.claimsPaid.cents += claims_.back().paid.cents;
    }
}

Claim PolicyMaker::oneClaim(const Policy& policy) {
    Claim claim;
    claim.occurred = policy.started + days{random_.below(365)};
    claim.reported = claim.occurred + days{random_.lowBelow(60)};
    const int year = static_cast<int>(std::chrono::year_month_day{claim.occurred}.year());
    claim.number = "Ζ" + std::to_string(year) + "-" + padded(++claimId_, 6);
    claim.cause = random_.pick(kCauses);
    claim.injured = std::max(0, random_.lowBelow(40) - 32);
    const Money estimate = share(policy.net, random_.between(300, 900) + 30 * random_.lowBelow(500));
    if (!random_.chance(30))
        claim.estimate = estimate;
    const Money settled = share(estimate, random_.between(500, 1150));
    const Day settledOn = claim.reported + days{random_.between(10, 400)};
    const int fate = random_.below(100);
    if (fate < 65) {
        claim.status = "Εξοφλημένη";
        claim.paid = settled;
        claim.paidOn = settledOn;
    } else if (fate < 90) {
        claim.status = "Εκκρεμής";
        claim.paid = share(estimate, 100 * random_.below(5));
        claim.reserve = {estimate.cents - claim.paid.cents};
    } else if (fate < 97) {
        claim.status = "Άκυρη";
    } else {
        // What is got back from who was to blame.
        claim.status = "Ανάκτηση";
        claim.paid = negative(share(settled, 500));
        claim.paidOn = settledOn;
    }
    return claim;
}

} // namespace zkp::demo
