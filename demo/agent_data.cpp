#include "demo/business_data.h"
#include "demo/greek_names.h"

namespace zkp::demo {

namespace {

// Three producers make an agency, three agencies an assistant's area, two areas a unit, two units a
// manager's part.
Agent agentNumber(int number, int branches, Random& random) {
    const int agency = number / 3;
    const int assistant = agency / 3;
    const int unit = assistant / 2;
    const int manager = unit / 2;
    Agent agent;
    agent.id = number + 1;
    agent.branch = random.between(1, branches);
    agent.name = personName(number);
    agent.producer = "P" + padded(agent.id, 4);
    agent.agency = "G" + padded(agency + 1, 3);
    agent.assistant = "S" + padded(assistant + 1, 3);
    agent.unit = "U" + padded(unit + 1, 2);
    agent.manager = "M" + padded(manager + 1, 2);
    return agent;
}

/// An agency bears the surname of its first producer, and a number where others bear it already.
std::string agencyName(int agentNumber) {
    const int agency = agentNumber / 3;
    const int namesakes = agency / static_cast<int>(surnames().size());
    const std::string founder = personName(agency * 3);
    std::string text = "Πρακτορείο " + founder.substr(0, founder.find(' '));
    if (namesakes > 0)
        text += ' ' + std::to_string(namesakes + 1);
    return text;
}

} // namespace

std::vector<Agent> makeAgents(Database& database, Random random, int count, int branches) {
    Insert insert(database, "AGENTS");
    std::vector<Agent> agents;
    for (int number = 0; number < count; ++number) {
        Agent agent = agentNumber(number, branches, random);
        if (number == count - 2)
            agent.name.clear();
        const Day hired = day(1995, 1, 1) + std::chrono::days{random.below(8000)};
        const std::string_view town = towns()[static_cast<std::size_t>(agent.branch - 1)].name;
        const auto city = random.chance(40) ? std::nullopt : std::optional{town};
        insert.row(agent.id, agent.name, agencyName(number), city, hired, agent.producer, agent.agency,
                   agent.assistant, agent.unit, agent.manager);
        agents.push_back(std::move(agent));
    }
    return agents;
}

} // namespace zkp::demo
