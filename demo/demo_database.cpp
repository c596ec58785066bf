#include "demo/demo_database.h"

#include "demo/dictionary.h"
#include "demo/policy_data.h"
#include "demo/schema.h"
#include "demo/settings_data.h"

#include "base/error.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <atomic>

namespace zkp::demo {

namespace {

/// The streams of choices, one a table (see Random).
enum Stream : std::uint32_t { kAgents = 1, kCustomers = 2, kPolicies = 3 };

/// A name beside the wanted one that is removed again unless the file got its own name.
class PartFile {
public:
    explicit PartFile(const QString& file)
        : wanted_(file) {
        static std::atomic<int> count = 0;
        part_ =
            QStringLiteral("%1.part-%2-%3").arg(file).arg(QCoreApplication::applicationPid()).arg(++count);
        QFile::remove(part_);
    }
    ~PartFile() { QFile::remove(part_); }
    PartFile(const PartFile&) = delete;
    PartFile& operator=(const PartFile&) = delete;

    const QString& path() const { return part_; }

    /// Never takes the place of a file that came into being meanwhile.
    void complete() {
        QFile part(part_);
        if (!part.rename(wanted_))
            throw Error(kErrDatabase, part.errorString());
    }

private:
    QString wanted_;
    QString part_;
};

void fill(Database& database, const Options& options) {
    const int agentCount = std::clamp(options.policies / 150, 40, 400);
    const int customers = std::max(50, options.policies / 3);
    const int branches = makeBranches(database);
    const auto agents = makeAgents(database, {options.seed, kAgents}, agentCount, branches);
    makeProducts(database);
    makeCustomers(database, {options.seed, kCustomers}, customers);
    makePolicies(database, {options.seed, kPolicies}, agents, branches, customers, options.policies);
    makeDictionaries(database);
    makeSettings(database, agents);
}

void write(const QString& path, const Options& options) {
    Database database(path);
    // No journal: a file that fails half-way is thrown away, not mended.
    database.run("PRAGMA page_size = 4096; PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF;"
                 "PRAGMA locking_mode = EXCLUSIVE; PRAGMA cache_size = -65536; PRAGMA encoding = 'UTF-8'");
    database.run("BEGIN");
    database.run(kTables);
    fill(database, options);
    database.run(kIndexes);
    database.run(kViews);
    database.run("ANALYZE");
    // The data reaches the disk before the file gets its name.
    database.run("COMMIT; PRAGMA synchronous = FULL; PRAGMA user_version = 1");
    database.close();
}

} // namespace

void makeDatabase(const Options& options) {
    if (options.file.isEmpty())
        throw Error(kErrInvalidCall, QStringLiteral("The demonstration database needs a file name."));
    if (options.policies < 0)
        throw Error(kErrInvalidCall, QStringLiteral("The number of policies can't be negative."));
    const QFileInfo file(options.file);
    if (file.exists() || file.isSymLink())
        throw Error(kErrDatabase, QStringLiteral("%1 exists already.").arg(options.file));
    try {
        PartFile part(file.absoluteFilePath());
        write(part.path(), options);
        part.complete();
    } catch (const Error& error) {
        throw Error(error.number(),
                    QStringLiteral("Can't make %1: %2").arg(options.file, error.description()));
    }
}

} // namespace zkp::demo
