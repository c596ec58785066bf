// How long a recordset takes to open from PostgreSQL against a bare loop that fetches the same statement in
// blocks of the same size and touches every value, and against one row at a time, with bound columns and
// with each value asked for; and how many bytes a totals report brings over the wire against the plain one.
// Without a server (the connection string in ZKP_TEST_POSTGRES) it says so and ends.
//
//   server_fetch_bench [--rows N] [--runs N]

#include "measured_process.h"

#include "ado/recordset.h"

#include <QCoreApplication>
#include <QFile>

#include <sql.h>
#include <sqlext.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <functional>

namespace {

using zkp::bench::Sample;
using zkp::bench::Words;

constexpr char kPlain[] = "SELECT * FROM ZB_POLICIES";
constexpr char kTotals[] =
    "SELECT BRANCH, PRODUCT, Count(*) As Cnt, Sum(NET) As SUM_NET, Sum(TAX) As SUM_TAX "
    "FROM ZB_POLICIES Group By BRANCH, PRODUCT";
constexpr std::size_t kBlock = 256;
constexpr int kColumns = 10;

std::uint64_t touched = 0;

QString server() {
    return QString::fromUtf8(qgetenv("ZKP_TEST_POSTGRES"));
}

void makeTable(int rows) {
    const auto connection = std::make_shared<zkp::ado::Connection>();
    connection->setCommandTimeout(0);
    connection->Open(server());
    connection->Execute(QStringLiteral("DROP TABLE IF EXISTS ZB_POLICIES"));
    connection->Execute(QStringLiteral(
        "CREATE TABLE ZB_POLICIES (POLICYNO VARCHAR(20), CUSTOMER VARCHAR(60), BRANCH VARCHAR(40), "
        "PRODUCT VARCHAR(40), CITY VARCHAR(40), SINCE DATE, NET DECIMAL(19,4), TAX DECIMAL(19,4), "
        "GROSS DECIMAL(19,4), YEARS INTEGER)"));
    connection->Execute(
        QStringLiteral("INSERT INTO ZB_POLICIES SELECT 'POL-' || lpad(n::text, 9, '0'), "
                       "'Παπαδόπουλος Νικόλαος ' || n * 7919::bigint % 5000, 'Κατάστημα ' || n % 50, "
                       "'Κλάδος ' || n % 20, 'Θεσσαλονίκη ' || n % 300, "
                       "DATE '2020-01-01' + n % 2000, n * 7919::bigint % 10000000 / 100.0, "
                       "n % 100000 / 100.0, n * 7919::bigint % 10000000 / 100.0 + 17.25, n % 40 "
                       "FROM generate_series(1, %1) n")
            .arg(rows));
    connection->Execute(QStringLiteral("ANALYZE ZB_POLICIES"));
}

/// A bound column of a block.
struct Column {
    SQLSMALLINT type;
    std::size_t width;
    std::vector<char> bytes;
    std::vector<SQLLEN> lengths;
};

std::vector<Column> makeColumns(std::size_t rows) {
    const std::array<std::pair<SQLSMALLINT, std::size_t>, kColumns> forms{{{SQL_C_CHAR, 81},
                                                                           {SQL_C_CHAR, 241},
                                                                           {SQL_C_CHAR, 161},
                                                                           {SQL_C_CHAR, 161},
                                                                           {SQL_C_CHAR, 161},
                                                                           {SQL_C_TYPE_DATE, 6},
                                                                           {SQL_C_CHAR, 72},
                                                                           {SQL_C_CHAR, 72},
                                                                           {SQL_C_CHAR, 72},
                                                                           {SQL_C_SBIGINT, 8}}};
    std::vector<Column> columns;
    columns.reserve(forms.size());
    for (const auto& [type, width] : forms)
        columns.push_back({type, width, std::vector<char>(width * rows), std::vector<SQLLEN>(rows)});
    return columns;
}

void touch(const Column& column, std::size_t rows) {
    for (std::size_t row = 0; row < rows; ++row) {
        const char* value = column.bytes.data() + row * column.width;
        for (SQLLEN i = 0; i < column.lengths[row]; ++i)
            touched += static_cast<unsigned char>(value[i]);
    }
}

void fetchBlocks(SQLHSTMT statement, std::size_t rows) {
    SQLULEN fetched = 0;
    SQLSetStmtAttr(statement, SQL_ATTR_ROW_ARRAY_SIZE, reinterpret_cast<SQLPOINTER>(rows), 0);
    SQLSetStmtAttr(statement, SQL_ATTR_ROWS_FETCHED_PTR, &fetched, 0);
    std::vector<Column> columns = makeColumns(rows);
    SQLUSMALLINT number = 0;
    for (Column& column : columns)
        SQLBindCol(statement, ++number, column.type, column.bytes.data(), static_cast<SQLLEN>(column.width),
                   column.lengths.data());
    while (SQL_SUCCEEDED(SQLFetch(statement))) {
        for (const Column& column : columns)
            touch(column, fetched);
    }
}

void fetchValues(SQLHSTMT statement) {
    std::vector<Column> columns = makeColumns(1);
    while (SQL_SUCCEEDED(SQLFetch(statement))) {
        SQLUSMALLINT number = 0;
        for (Column& column : columns) {
            SQLGetData(statement, ++number, column.type, column.bytes.data(),
                       static_cast<SQLLEN>(column.width), column.lengths.data());
            touch(column, 1);
        }
    }
}

/// The driver's own loop, with nothing between.
void bareLoop(const std::function<void(SQLHSTMT)>& fetch) {
    SQLHANDLE environment = nullptr;
    SQLHANDLE connection = nullptr;
    SQLHANDLE statement = nullptr;
    SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &environment);
    SQLSetEnvAttr(environment, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
    SQLAllocHandle(SQL_HANDLE_DBC, environment, &connection);
    QByteArray text = server().toUtf8();
    if (!SQL_SUCCEEDED(SQLDriverConnect(connection, nullptr, reinterpret_cast<SQLCHAR*>(text.data()), SQL_NTS,
                                        nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT)))
        std::exit(1);
    SQLAllocHandle(SQL_HANDLE_STMT, connection, &statement);
    std::string sql = kPlain;
    SQLExecDirect(statement, reinterpret_cast<SQLCHAR*>(sql.data()), SQL_NTS);
    fetch(statement);
    SQLFreeHandle(SQL_HANDLE_STMT, statement);
    SQLDisconnect(connection);
}

void recordset(const char* sql) {
    const auto connection = std::make_shared<zkp::ado::Connection>();
    connection->setCommandTimeout(0);
    connection->Open(server());
    const auto records = std::make_shared<zkp::ado::Recordset>();
    records->Open(QString::fromLatin1(sql), connection);
    touched += static_cast<std::uint64_t>(records->RecordCount());
}

/// All that has come over the loopback device so far.
double wireBytes() {
    QFile file(QStringLiteral("/proc/net/dev"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.simplified().startsWith("lo:"))
            return line.simplified().split(' ').value(1).toDouble();
    }
    return 0;
}

int work(const Words& words) {
    if (words[0] == "blocks")
        bareLoop([](SQLHSTMT statement) { fetchBlocks(statement, kBlock); });
    else if (words[0] == "rows")
        bareLoop([](SQLHSTMT statement) { fetchBlocks(statement, 1); });
    else if (words[0] == "values")
        bareLoop(fetchValues);
    else
        recordset(words[0] == "totals" ? kTotals : kPlain);
    return touched == 0;
}

void measureAll(int rows, int runs) {
    if (server().isEmpty()) {
        std::printf("No server: ./test --servers starts one and names it in ZKP_TEST_POSTGRES.\n");
        return;
    }
    makeTable(rows);
    std::vector<Sample> blocks;
    std::vector<Sample> single;
    std::vector<Sample> values;
    std::vector<Sample> ours;
    for (int i = 0; i < runs; ++i) {
        blocks.push_back(zkp::bench::measure({"blocks"}));
        single.push_back(zkp::bench::measure({"rows"}));
        values.push_back(zkp::bench::measure({"values"}));
        ours.push_back(zkp::bench::measure({"recordset"}));
    }
    const Sample block = medians(blocks);
    const Sample row = medians(single);
    const Sample value = medians(values);
    const Sample own = medians(ours);
    std::printf("%d rows, 10 columns, medians of %d runs\n", rows, runs);
    std::printf("bare loop in blocks %.2f s, row by row %.2f s, value by value %.2f s, recordset %.2f s\n",
                block.seconds, row.seconds, value.seconds, own.seconds);
    std::printf("ratio to blocks %.2f (processor %.2f), to row by row %.2f, to value by value %.2f\n",
                (own / block).seconds, (own / block).processor, (own / row).seconds, (own / value).seconds);

    const double before = wireBytes();
    const Sample totals = zkp::bench::measure({"totals"});
    const double between = wireBytes();
    zkp::bench::measure({"recordset"});
    std::printf("totals by two groups %.2f s and %.0f bytes over the wire, the plain form %.2f s and %.0f\n",
                totals.seconds, between - before, own.seconds, wireBytes() - between);
}

} // namespace

int main(int argc, char** argv) {
    return zkp::bench::benchMain(argc, argv, work, measureAll);
}
