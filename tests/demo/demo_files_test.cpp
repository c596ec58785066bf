#include "demo/demo_database.h"
#include "demo/sqlite_reader.h"

#include "base/error.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <iostream>

#include <sys/resource.h>

namespace zkp::demo::test {

namespace {

/// A digest of every row of every table, in the order in which they were added.
QByteArray dataOf(const QString& file) {
    const Reader reader(file);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const auto& table :
         reader.column("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"))
        for (const auto& row : reader.rows("SELECT * FROM " + table))
            for (const auto& value : row)
                hash.addData(QByteArray::fromStdString(value + '\x1f'));
    return hash.result();
}

std::uint32_t errorOf(const Options& options, QString* words = nullptr) {
    try {
        makeDatabase(options);
    } catch (const Error& error) {
        if (words)
            *words = error.description();
        return error.number();
    }
    return 0;
}

/// While it lives, no file of this process grows past `bytes`: what a full disk looks like to a writer.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t bytes)
        : formerHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &former_);
        const rlimit small{bytes, former_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk() {
        setrlimit(RLIMIT_FSIZE, &former_);
        std::signal(SIGXFSZ, formerHandler_);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

private:
    rlimit former_{};
    void (*formerHandler_)(int);
};

class DemoFiles : public ::testing::Test {
protected:
    QString path(const char* name) const { return folder_.filePath(QString::fromUtf8(name)); }
    QStringList files() const {
        return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden | QDir::System);
    }

    QTemporaryDir folder_;
};

} // namespace

TEST_F(DemoFiles, TheSameSeedGivesTheSameData) {
    makeDatabase({path("a.db"), 2000, 7});
    makeDatabase({path("b.db"), 2000, 7});
    EXPECT_EQ(dataOf(path("a.db")), dataOf(path("b.db")));
}

TEST_F(DemoFiles, AnotherSeedGivesOtherData) {
    makeDatabase({path("a.db"), 300, 1});
    makeDatabase({path("b.db"), 300, 2});
    EXPECT_NE(dataOf(path("a.db")), dataOf(path("b.db")));
}

TEST_F(DemoFiles, OnlyTheFileItselfIsLeft) {
    makeDatabase({path("δείγμα.db"), 50, 1});
    EXPECT_EQ(files(), QStringList{QStringLiteral("δείγμα.db")});
    EXPECT_EQ(Reader(path("δείγμα.db")).column("PRAGMA integrity_check"), std::vector<std::string>{"ok"});
}

TEST_F(DemoFiles, TheNumberOfPoliciesIsExact) {
    for (const int policies : {0, 1, 100, 101, 350}) {
        const QString file = path(std::to_string(policies).c_str());
        makeDatabase({file, policies, 1});
        EXPECT_EQ(Reader(file).number("SELECT count(*) FROM POLICIES"), policies);
    }
}

TEST_F(DemoFiles, AnExistingFileIsRefusedAndKept) {
    QFile file(path("a.db"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("mine");
    file.close();
    QString words;
    EXPECT_EQ(errorOf({path("a.db"), 10, 1}, &words), kErrDatabase);
    EXPECT_TRUE(words.contains(QStringLiteral("exists already"))) << words.toStdString();
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("mine"));
    EXPECT_EQ(files(), QStringList{QStringLiteral("a.db")});
}

TEST_F(DemoFiles, AFolderUnderThatNameIsRefused) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("a.db")));
    EXPECT_EQ(errorOf({path("a.db"), 10, 1}), kErrDatabase);
}

TEST_F(DemoFiles, ALinkToNowhereIsRefused) {
    ASSERT_TRUE(QFile::link(path("nowhere.db"), path("a.db")));
    EXPECT_EQ(errorOf({path("a.db"), 10, 1}), kErrDatabase);
    EXPECT_EQ(files(), QStringList{QStringLiteral("a.db")});
}

TEST_F(DemoFiles, AMissingFolderIsAClearError) {
    QString words;
    EXPECT_EQ(errorOf({path("none/a.db"), 10, 1}, &words), kErrDatabase);
    EXPECT_TRUE(words.contains(path("none/a.db"))) << words.toStdString();
    EXPECT_TRUE(words.contains(QStringLiteral("unable to open"))) << words.toStdString();
    EXPECT_TRUE(files().isEmpty());
}

// Root may write into any ordinary folder, so the kernel's own is taken.
TEST_F(DemoFiles, AFolderThatTakesNoFilesIsAClearError) {
    EXPECT_EQ(errorOf({QStringLiteral("/proc/a.db"), 10, 1}), kErrDatabase);
    EXPECT_FALSE(QFile::exists(QStringLiteral("/proc/a.db")));
}

TEST_F(DemoFiles, AFullDiskLeavesNoFile) {
    QString words;
    {
        const SmallDisk disk(100'000);
        EXPECT_EQ(errorOf({path("a.db"), 2000, 1}, &words), kErrDatabase);
    }
    EXPECT_TRUE(words.contains(path("a.db"))) << words.toStdString();
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(DemoFiles, AnEmptyNameAndANegativeNumberAreRefused) {
    EXPECT_EQ(errorOf({QString(), 10, 1}), kErrInvalidCall);
    EXPECT_EQ(errorOf({path("a.db"), -1, 1}), kErrInvalidCall);
    EXPECT_TRUE(files().isEmpty());
}

// No time is asserted: it is printed to be looked at.
TEST_F(DemoFiles, AHundredThousandPolicies) {
    QElapsedTimer timer;
    timer.start();
    makeDatabase({path("a.db"), 100'000, 1});
    std::cout << "100,000 policies in " << timer.elapsed() << " ms\n";
    EXPECT_EQ(Reader(path("a.db")).number("SELECT count(*) FROM POLICIES"), 100'000);
}

} // namespace zkp::demo::test
