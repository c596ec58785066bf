#include "demo/settings_data.h"

#include <array>

namespace zkp::demo {

namespace {

/// A user: which agent, of which level, with whose identity at that level (an agent too).
struct User {
    int agent;
    std::string_view level;
    int lead;
    std::string Agent::*identity;
};

// Some lead the part that they sell in, others a part where none of their own policies are. The last
// one has a level that means nothing, and so no restriction.
constexpr std::array<User, 13> kUsers{{
    {0, "0", 0, &Agent::producer},
    {4, "0", 4, &Agent::producer},
    {1, "5", 1, &Agent::producer},
    {7, "5", 7, &Agent::producer},
    {3, "1", 3, &Agent::agency},
    {10, "1", 0, &Agent::agency},
    {9, "2", 9, &Agent::assistant},
    {2, "2", 12, &Agent::assistant},
    {18, "3", 18, &Agent::unit},
    {5, "3", 20, &Agent::unit},
    {6, "4", 6, &Agent::manager},
    {8, "4", 36, &Agent::manager},
    {14, "7", 14, &Agent::producer},
}};

void makeReports(Database& database) {
    Insert insert(database, "Reports");
    insert.row("POLICIESDATA", "POLICIES", "PolicyID", std::nullopt, "POLICIESCLMNS", "Συμβόλαια");
    insert.row("CLAIMSDATA", "CLAIMS", "ClaimID", "STATUS<>'Άκυρη'", "CLAIMSCLMNS", "Ζημίες");
    insert.row("LOSSRATIODATA", "POLICIES", "", std::nullopt, "LOSSRATIOCLMNS", "Δείκτης Ζημιών");
    // No master table: its statements are always those over the view itself.
    insert.row("QRYPRODUCT", "", std::nullopt, "", "PRODUCTCLMNS", "Προϊόντα");
}

void makeGeneral(Database& database) {
    Insert insert(database, "QRN_Main");
    insert.row(2, 6, "30");
    insert.row(2, 7, "300");
    insert.row(2, 18, "0");
}

} // namespace

void makeSettings(Database& database, std::span<const Agent> agents) {
    makeReports(database);
    makeGeneral(database);
    Insert procedures(database, "procedures");
    procedures.row("Sec_GetUserIerarxiaID", "SELECT Ierarxia, IerID FROM SECUSERS WHERE UserID = ?1");

    Insert insert(database, "SECUSERS");
    for (const User& user : kUsers) {
        const Agent& agent = agents[static_cast<std::size_t>(user.agent)];
        const Agent& lead = agents[static_cast<std::size_t>(user.lead)];
        insert.row(agent.producer, agent.name, user.level, lead.*user.identity);
    }
}

} // namespace zkp::demo
