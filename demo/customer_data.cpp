#include "demo/business_data.h"
#include "demo/greek_names.h"

#include <array>

namespace zkp::demo {

namespace {

constexpr std::array<std::string_view, 8> kCompanyKinds{"Εμπορική",     "Τεχνική",  "Ναυτιλιακή",
                                                        "Ξενοδοχειακή", "Αγροτική", "Μεταφορική",
                                                        "Φαρμακευτική", "Εκδοτική"};

std::string companyName(int number, Random& random) {
    std::string text{random.pick(kCompanyKinds)};
    text += ' ';
    text += surnames()[static_cast<std::size_t>(number) % surnames().size()].male;
    text += random.chance(500) ? " Α.Ε." : " & Υιοί Ο.Ε.";
    return text;
}

} // namespace

void makeCustomers(Database& database, Random random, int count) {
    Insert insert(database, "CUSTOMERS");
    for (int number = 0; number < count; ++number) {
        const bool company = random.chance(120);
        // The people start far from the agents, whose names come first in the same sequence.
        const std::string name = company ? companyName(number, random) : personName(number + 1000);
        const std::string taxNo = (company ? "8" : "1") + padded(random.below(100'000'000), 8);
        const Town& town =
            towns()[static_cast<std::size_t>(random.lowBelow(static_cast<int>(towns().size())))];
        const Day born = day(1940, 1, 1) + std::chrono::days{random.below(23000)};
        const std::string phone = "69" + padded(random.below(100'000'000), 8);
        const bool hasPhone = !random.chance(80);
        const bool hasMail = random.chance(350);
        const bool blankMail = random.chance(200);
        const std::string mail = blankMail ? std::string{} : "c" + std::to_string(number + 1) + "@example.gr";
        insert.row(number + 1, name, taxNo, town.name, company ? std::nullopt : std::optional{born},
                   hasPhone ? std::optional{phone} : std::nullopt,
                   hasMail ? std::optional{mail} : std::nullopt);
    }
}

} // namespace zkp::demo
