#include "demo/business_data.h"
#include "demo/greek_names.h"

namespace zkp::demo {

std::string padded(int number, int digits) {
    std::string text = std::to_string(number);
    if (text.size() < static_cast<std::size_t>(digits))
        text.insert(0, static_cast<std::size_t>(digits) - text.size(), '0');
    return text;
}

int makeBranches(Database& database) {
    Insert insert(database, "BRANCHES");
    int id = 0;
    for (const Town& town : towns().first(24)) {
        ++id;
        insert.row(id, town.name, town.region, "2" + padded(310000000 + id * 1117, 9));
    }
    ++id;
    insert.row(id, "", std::nullopt, std::nullopt);
    return id;
}

} // namespace zkp::demo
