#include "failing_disk.h"
#include "template_fixture.h"

// A save that ends at any write, with the power or with the disk: afterwards the old template stands there
// or the new one, whole, and the database is sound.

using namespace Qt::StringLiterals;
using namespace zkp;
using namespace zkp::test;

namespace {

class PowerLossTest : public TemplateTest {
protected:
    PowerLossTest() {
        grid->setKeyName(u"old"_s);
        grid->SaveTemplate({}, u"ABCD7"_s);
        grid->SaveTemplate({}, u"Monthly"_s);
        cn->Close();
    }

    /// Saves the new shape on a disk that fails at a write; false once the save needs fewer writes.
    bool saveFails(const QString& database, const QString& name, FailingDisk::Failure failure, int atWrite) {
        FailingDisk disk;
        const auto connection = std::make_shared<ado::Connection>();
        connection->Open(u"sqlite:"_s + database);
        ZkpGrid control(host);
        control.setCn(connection);
        control.setKeyName(u"new"_s);
        control.setFilter(QString(20'000, u'x')); // more than a page
        disk.failAt(atWrite, failure);
        return errorNumber([&] { control.SaveTemplate({}, name); }) != 0;
    }

    /// What a fresh start of the system finds under the name.
    QString keptAfter(const QString& database, const QString& name) {
        const auto connection = std::make_shared<ado::Connection>();
        connection->Open(u"sqlite:"_s + database);
        const auto answer = [&](const QString& statement) {
            return connection->Execute(statement)->Fields().Item(0).Value();
        };
        EXPECT_EQ(answer(u"PRAGMA integrity_check"_s), QVariant(u"ok"_s));
        EXPECT_EQ(answer(u"select count(*) from frms"_s).toInt(), 3);
        EXPECT_EQ(answer(u"select count(*) from frms2 where lstCode = 'Monthly'"_s).toInt(), 1);
        EXPECT_LE(answer(u"select count(*) from frms2"_s).toInt(), 2);
        ZkpGrid control(host);
        control.opentemplate(connection, dir.path(), name);
        if (control.KeyName() == u"new"_s) {
            EXPECT_EQ(control.Filter().size(), 20'000) << "the whole of it";
        }
        return control.KeyName();
    }

    /// Fails the save at one write after the other, each time on a fresh copy of the database.
    void failEverywhere(const QString& name, const QString& before, FailingDisk::Failure failure) {
        int writes = 0;
        int keptBefore = 0;
        for (bool failed = true; failed; ++writes) {
            ASSERT_LT(writes, 200);
            const QString copy = dir.filePath(u"copy%1-%2.db"_s.arg(name).arg(writes));
            ASSERT_TRUE(QFile::copy(file, copy));
            failed = saveFails(copy, name, failure, writes);
            const QString kept = keptAfter(copy, name);
            EXPECT_TRUE(kept == before || kept == u"new"_s)
                << "write " << writes << ": " << kept.toStdString();
            keptBefore += kept == before ? 1 : 0;
            EXPECT_TRUE(failed || kept == u"new"_s) << "what was saved is there";
        }
        EXPECT_GT(keptBefore, 0);
        EXPECT_GT(writes, 4) << "the disk failed at least at the journal, the pages and the commit";
    }
};

} // namespace

TEST_F(PowerLossTest, ANumberedTemplateIsTheOldOrTheNewOne) {
    failEverywhere(u"ABCD7"_s, u"old"_s, FailingDisk::Failure::PowerLost);
}

TEST_F(PowerLossTest, ANamedTemplateIsTheOldOrTheNewOne) {
    failEverywhere(u"Monthly"_s, u"old"_s, FailingDisk::Failure::PowerLost);
}

TEST_F(PowerLossTest, ANewNameIsThereWholeOrNotAtAll) {
    failEverywhere(u"Another"_s, u""_s, FailingDisk::Failure::PowerLost);
}

TEST_F(PowerLossTest, AFullDiskLeavesTheOldTemplateOrTheNewOne) {
    failEverywhere(u"Monthly"_s, u"old"_s, FailingDisk::Failure::DiskFull);
    failEverywhere(u"ABCD7"_s, u"old"_s, FailingDisk::Failure::DiskFull);
}
