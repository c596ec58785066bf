#include "demo/policy_data.h"

#include "demo/policy_maker.h"

namespace zkp::demo {

namespace {

void write(Insert& insert, const Policy& policy) {
    const Identities& whose = policy.identities;
    insert.row(policy.id, policy.number, policy.agent, policy.branch, policy.product, policy.customer,
               policy.issued, policy.started, policy.ends, policy.entered, policy.status, policy.payWay,
               policy.instalments, policy.renewals, policy.paid, policy.rate, policy.plate, policy.remarks,
               policy.premium, policy.net, policy.tax, policy.commission, policy.insured, policy.net,
               policy.claimsPaid, whose.product, whose.agency, whose.assistant, whose.unit, whose.manager);
}

void write(Insert& insert, int id, const Claim& claim, const Policy& policy) {
    const Identities& whose = policy.identities;
    insert.row(id, claim.number, policy.id, policy.number, policy.agent, policy.branch, policy.product,
               policy.customer, claim.occurred, claim.reported, claim.paidOn, claim.cause, claim.status,
               claim.injured, claim.estimate, claim.paid, claim.reserve, whose.product, whose.agency,
               whose.assistant, whose.unit, whose.manager);
}

} // namespace

void makePolicies(Database& database, Random random, std::span<const Agent> agents, int branches,
                  int customers, int count) {
    Insert policies(database, "POLICIES");
    Insert claims(database, "CLAIMS");
    PolicyMaker maker(random, agents, branches, customers, count);
    int claimId = 0;
    for (int i = 0; i < count; ++i) {
        const Policy policy = maker.next();
        write(policies, policy);
        for (const Claim& claim : maker.claims())
            write(claims, ++claimId, claim, policy);
    }
}

} // namespace zkp::demo
