// How long a recordset takes to open against a raw loop that steps through the same statement and
// touches every value, with and without ORDER BY, and what a cell then occupies. Each measurement
// runs in a process of its own, so that none profits from the memory of another.
//
//   fetch_bench [--rows N] [--runs N]

#include "ado/recordset.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <algorithm>
#include <cstdio>
#include <random>
#include <vector>

namespace {

constexpr char kPlain[] = "SELECT * FROM POLICIES";
constexpr char kOrdered[] = "SELECT * FROM POLICIES ORDER BY BRANCH, CUSTOMER";

struct Sample {
    double seconds = 0;
    double peakBytes = 0; ///< above the process before the statement
};

double peakBytes() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).simplified().split(' ').first().toDouble() * 1024;
    }
    return 0;
}

void run(sqlite3* db, const char* sql) {
    char* words = nullptr;
    if (sqlite3_exec(db, sql, nullptr, nullptr, &words) != SQLITE_OK) {
        std::fprintf(stderr, "%s\n", words);
        std::exit(1);
    }
}

/// A Greek word of some syllables, the same for the same number.
std::string greekWord(unsigned number, int syllables) {
    static const char* const parts[] = {"πα", "νι", "κο", "λα", "ου",  "δη", "μη", "τρι",
                                        "ος", "γε", "ωρ", "γι", "στα", "θε", "ρα", "κης"};
    std::string word;
    for (int i = 0; i < syllables; ++i) {
        word += parts[number % 16];
        number = number / 16 + 7 * number % 13;
    }
    return word;
}

/// 6 texts, 4 of them Greek, 3 amounts and an integer, as reports have them: few branches and
/// products, some thousand names, one text that no two records share.
void makeDatabase(const QString& file, int rows) {
    sqlite3* db = nullptr;
    sqlite3_open(file.toUtf8().constData(), &db);
    run(db, "CREATE TABLE POLICIES (POLICYNO VARCHAR(20), CUSTOMER NVARCHAR(60), BRANCH NVARCHAR(40),"
            " PRODUCT NVARCHAR(40), CITY NVARCHAR(40), CODE VARCHAR(10), NET MONEY, TAX MONEY, GROSS MONEY,"
            " YEARS INTEGER)");
    run(db, "BEGIN");
    sqlite3_stmt* insert = nullptr;
    sqlite3_prepare_v2(db, "INSERT INTO POLICIES VALUES (?,?,?,?,?,?,?,?,?,?)", -1, &insert, nullptr);
    std::mt19937 random(42);
    const auto below = [&random](unsigned n) { return static_cast<unsigned>(random() % n); };
    const auto text = [insert](int place, const std::string& value) {
        sqlite3_bind_text(insert, place, value.c_str(), static_cast<int>(value.size()), SQLITE_TRANSIENT);
    };
    for (int i = 0; i < rows; ++i) {
        char number[32];
        std::snprintf(number, sizeof number, "POL-%09d", (i * 7919ll) % 1'000'000'007 > 0 ? i : i + 1);
        text(1, number);
        const unsigned customer = below(5000);
        text(2, greekWord(customer, 4) + " " + greekWord(customer * 31 + 5, 3));
        text(3, "Κατάστημα " + greekWord(below(50), 3));
        text(4, "Κλάδος " + greekWord(below(20), 4));
        text(5, greekWord(below(300), 4));
        text(6, "C" + std::to_string(below(400)));
        const double net = below(10'000'000) / 100.0;
        sqlite3_bind_double(insert, 7, net);
        sqlite3_bind_double(insert, 8, below(1'000'000) / 100.0);
        sqlite3_bind_double(insert, 9, net + 17.25);
        sqlite3_bind_int(insert, 10, static_cast<int>(below(40)));
        sqlite3_step(insert);
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
    run(db, "COMMIT");
    sqlite3_close(db);
}

std::uint64_t touched = 0;

void rawLoop(const QString& file, const char* sql) {
    sqlite3* db = nullptr;
    sqlite3_open(file.toUtf8().constData(), &db);
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(db, sql, -1, &statement, nullptr);
    const int columns = sqlite3_column_count(statement);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        for (int c = 0; c < columns; ++c) {
            switch (sqlite3_column_type(statement, c)) {
            case SQLITE_INTEGER:
                touched += static_cast<std::uint64_t>(sqlite3_column_int64(statement, c));
                break;
            case SQLITE_FLOAT:
                touched += sqlite3_column_double(statement, c) > 0;
                break;
            case SQLITE_TEXT:
                touched += sqlite3_column_text(statement, c)[0];
                touched += static_cast<std::uint64_t>(sqlite3_column_bytes(statement, c));
                break;
            default:
                break;
            }
        }
    }
    sqlite3_finalize(statement);
    sqlite3_close(db);
}

/// One measurement, in the child process.
int measure(const QString& what, const QString& file) {
    const bool ordered = what.endsWith(QStringLiteral("ordered"));
    const char* sql = ordered ? kOrdered : kPlain;
    const double before = peakBytes();
    QElapsedTimer timer;
    timer.start();
    if (what.startsWith(QStringLiteral("raw"))) {
        rawLoop(file, sql);
    } else {
        const auto connection = std::make_shared<zkp::ado::Connection>();
        connection->setCommandTimeout(0);
        connection->Open(QStringLiteral("sqlite:") + file);
        const auto recordset = std::make_shared<zkp::ado::Recordset>();
        recordset->Open(QString::fromLatin1(sql), connection);
        touched += static_cast<std::uint64_t>(recordset->RecordCount());
    }
    std::printf("%f %f\n", static_cast<double>(timer.nsecsElapsed()) / 1e9, peakBytes() - before);
    return touched == 0;
}

Sample sample(const QString& what, const QString& file) {
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--measure"), what, file});
    child.waitForFinished(-1);
    const QList<QByteArray> words = child.readAllStandardOutput().simplified().split(' ');
    if (child.exitCode() != 0 || words.size() != 2) {
        std::fprintf(stderr, "%s\n", child.readAllStandardError().constData());
        std::exit(1);
    }
    return {words[0].toDouble(), words[1].toDouble()};
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void compare(const char* title, const QString& suffix, const QString& file, int rows, int runs) {
    std::vector<double> raw;
    std::vector<double> ours;
    std::vector<double> peaks;
    for (int i = 0; i < runs; ++i) {
        raw.push_back(sample(QStringLiteral("raw-") + suffix, file).seconds);
        const Sample fetch = sample(QStringLiteral("fetch-") + suffix, file);
        ours.push_back(fetch.seconds);
        peaks.push_back(fetch.peakBytes);
    }
    std::printf("%-22s raw loop %.3f s, recordset %.3f s, ratio %.2f, %.1f bytes a cell at the peak\n", title,
                median(raw), median(ours), median(ours) / median(raw), median(peaks) / (rows * 10.0));
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    if (arguments.value(1) == QStringLiteral("--measure"))
        return measure(arguments.value(2), arguments.value(3));

    const auto option = [&arguments](const char* name, int standard) {
        const auto at = arguments.indexOf(QString::fromLatin1(name));
        return at < 0 ? standard : arguments.value(at + 1).toInt();
    };
    const int rows = std::max(1, option("--rows", 1'000'000));
    const int runs = std::max(1, option("--runs", 5));
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("fetch.db"));
    makeDatabase(file, rows);
    std::printf("%d rows, 10 columns, medians of %d runs\n", rows, runs);
    compare("with ORDER BY", QStringLiteral("ordered"), file, rows, runs);
    compare("without ORDER BY", QStringLiteral("plain"), file, rows, runs);
    return 0;
}
