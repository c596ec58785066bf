#include "report_data.h"

#include <sqlite3.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace zkp::bench {

namespace {

constexpr std::array kSurnames{"Παπαδόπουλος", "Γεωργίου",   "Οικονόμου", "Νικολάου",  "Δημητρίου",
                               "Βασιλείου",    "Καραγιάννη", "Μακρής",    "Χατζηδάκη", "Αντωνίου"};
constexpr std::array kFirstNames{"Ιωάννης", "Μαρία", "Γεώργιος", "Ελένη", "Κωνσταντίνος", "Αικατερίνη"};
constexpr std::array kTowns{"Αθήνα",  "Θεσσαλονίκη", "Πάτρα",    "Ηράκλειο",
                            "Λάρισα", "Βόλος",       "Ιωάννινα", "Χανιά"};
constexpr std::array kProducts{"Αυτοκινήτου", "Πυρός", "Ζωής", "Υγείας", "Αστικής Ευθύνης", "Μεταφορών"};

[[noreturn]] void fail(sqlite3* database) {
    std::fprintf(stderr, "report_bench: %s\n", sqlite3_errmsg(database));
    std::exit(1);
}

class Database {
public:
    explicit Database(const std::string& file) {
        if (sqlite3_open(file.c_str(), &handle_) != SQLITE_OK)
            fail(handle_);
    }
    ~Database() { sqlite3_close(handle_); }
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    void run(const char* text) {
        if (sqlite3_exec(handle_, text, nullptr, nullptr, nullptr) != SQLITE_OK)
            fail(handle_);
    }
    sqlite3_stmt* prepare(const std::string& text) {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(handle_, text.c_str(), -1, &statement, nullptr) != SQLITE_OK)
            fail(handle_);
        return statement;
    }

private:
    sqlite3* handle_ = nullptr;
};

/// The records of POLICIES, one after the other.
class Policies {
public:
    explicit Policies(sqlite3_stmt* insert)
        : insert_(insert) {}

    void insert(int number) {
        char policy[16];
        std::snprintf(policy, sizeof policy, "P%09d", number);
        const unsigned person = below(6000);
        const unsigned branch = below(40);
        text(1, policy);
        text(2, name(kSurnames, person) + " " + name(kFirstNames, person / 10) + " " +
                    std::to_string(person / 60));
        text(3, "Κατάστημα " + name(kTowns, branch) + " " + std::to_string(branch / 8 + 1));
        text(4, name(kProducts, below(6)));
        text(5, name(kTowns, below(8)));
        text(6, "A" + std::to_string(below(500)));
        const double net = below(500'000) / 100.0;
        sqlite3_bind_double(insert_, 7, net);
        sqlite3_bind_double(insert_, 8, below(50'000) / 100.0);
        sqlite3_bind_double(insert_, 9, net + below(10'000) / 100.0);
        sqlite3_bind_int(insert_, 10, static_cast<int>(below(12)) + 1);
        sqlite3_step(insert_);
        sqlite3_reset(insert_);
    }

private:
    unsigned below(unsigned bound) { return static_cast<unsigned>(random_() % bound); }
    template <class Names>
    static std::string name(const Names& names, unsigned number) {
        return names[number % names.size()];
    }
    void text(int place, const std::string& value) {
        sqlite3_bind_text(insert_, place, value.data(), static_cast<int>(value.size()), SQLITE_TRANSIENT);
    }

    sqlite3_stmt* insert_;
    std::mt19937 random_{2026};
};

} // namespace

void makeReportDatabase(const std::string& file, int rows) {
    Database database(file);
    database.run("CREATE TABLE POLICIES (POLICYNO TEXT, CUSTOMER TEXT, BRANCH TEXT, PRODUCT TEXT, CITY TEXT,"
                 " AGENT TEXT, NET MONEY, TAX MONEY, PREMIUM MONEY, INSTALMENTS INTEGER)");
    database.run("BEGIN");
    sqlite3_stmt* insert = database.prepare("INSERT INTO POLICIES VALUES (?,?,?,?,?,?,?,?,?,?)");
    Policies policies(insert);
    for (int i = 1; i <= rows; ++i)
        policies.insert(i);
    sqlite3_finalize(insert);
    database.run("COMMIT");
}

unsigned long long readEveryValue(const std::string& file, const std::string& text) {
    Database database(file);
    sqlite3_stmt* statement = database.prepare(text);
    const int columns = sqlite3_column_count(statement);
    unsigned long long sum = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        for (int c = 0; c < columns; ++c) {
            switch (sqlite3_column_type(statement, c)) {
            case SQLITE_INTEGER:
                sum += static_cast<unsigned long long>(sqlite3_column_int64(statement, c));
                break;
            case SQLITE_FLOAT:
                sum += static_cast<unsigned long long>(sqlite3_column_double(statement, c) * 100);
                break;
            case SQLITE_TEXT:
                sum += sqlite3_column_text(statement, c)[0] +
                       static_cast<unsigned long long>(sqlite3_column_bytes(statement, c));
                break;
            default:
                break;
            }
        }
    }
    sqlite3_finalize(statement);
    return sum;
}

} // namespace zkp::bench
