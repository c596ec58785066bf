#include "template_fixture.h"

#include "template/template_store.h"

#include <QDateTime>

#include <thread>

using namespace Qt::StringLiterals;
using namespace zkp;
using namespace zkp::test;

namespace {

class TemplateStoreTest : public TemplateTest {
protected:
    void save(const QString& name) { grid->SaveTemplate({}, name); }
    void saveAs(const QString& keyName, const QString& name) {
        grid->setKeyName(keyName);
        save(name);
    }
    QByteArray stored(const QString& where) { return one(u"select ZKP_ from "_s + where).toByteArray(); }
    qlonglong count(const QString& from) { return one(u"select count(*) from "_s + from).toLongLong(); }
};

} // namespace

// --- Saving

TEST_F(TemplateStoreTest, ANumberedNameIsStoredInItsRowOfFrms) {
    saveAs(u"K"_s, u"ABCD7"_s);
    EXPECT_EQ(stored(u"frms where lstCode = 7"_s), shapeOf(*grid)->Contents());
    EXPECT_TRUE(stored(u"frms where lstCode = 12"_s).isNull());
    EXPECT_EQ(count(u"frms"_s), 3);
    EXPECT_EQ(count(u"frms2"_s), 0);
    EXPECT_EQ(opened(u"ABCD7"_s)->KeyName(), u"K"_s);
}

TEST_F(TemplateStoreTest, AnyOtherNameGetsItsRowOfFrms2) {
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    saveAs(u"K"_s, u"Μηνιαίο"_s);
    const ado::RecordsetPtr rows = open(u"select * from frms2"_s);
    ASSERT_EQ(rows->RecordCount(), 1);
    EXPECT_EQ(rows->Collect(u"lstCode"_s), QVariant(u"Μηνιαίο"_s));
    EXPECT_EQ(rows->Collect(u"ZKP_"_s).toByteArray(), shapeOf(*grid)->Contents());
    const QDateTime datein = rows->Collect(u"datein"_s).toDateTime();
    EXPECT_GE(datein, before);
    EXPECT_LE(datein, QDateTime::currentDateTime());
    EXPECT_EQ(opened(u"Μηνιαίο"_s)->KeyName(), u"K"_s);
}

TEST_F(TemplateStoreTest, SavingAgainReplacesTheTemplateInItsRow) {
    saveAs(u"one"_s, u"Μηνιαίο"_s);
    open(u"update frms2 set datein = '2001-01-01 00:00:00'"_s);
    saveAs(u"two"_s, u"Μηνιαίο"_s);
    EXPECT_EQ(count(u"frms2"_s), 1);
    EXPECT_EQ(opened(u"Μηνιαίο"_s)->KeyName(), u"two"_s);
    EXPECT_GT(one(u"select datein from frms2"_s).toDateTime().date().year(), 2001);
}

TEST_F(TemplateStoreTest, PathAndNumberChangeNothingAndALeftOutNameIsANameOfItsOwn) {
    grid->SaveTemplate(u"C:\\elsewhere"_s, u"ABCD7"_s, 12);
    EXPECT_FALSE(stored(u"frms where lstCode = 7"_s).isNull());
    EXPECT_TRUE(stored(u"frms where lstCode = 12"_s).isNull());
    grid->SaveTemplate();
    EXPECT_EQ(one(u"select lstCode from frms2"_s), QVariant(u"#NONE#"_s));
    EXPECT_EQ(errorNumber([&] { grid->SaveTemplate({}, u"A"_s, 70000); }), kErrOverflow);
}

TEST_F(TemplateStoreTest, AFractionBelowAHalfIsSavedInRowNoughtAndOpenedByName) {
    saveAs(u"K"_s, u"ABCD0.4"_s);
    EXPECT_FALSE(stored(u"frms where lstCode = 0"_s).isNull());
    EXPECT_EQ(count(u"frms2"_s), 0);
    EXPECT_EQ(opened(u"ABCD0.4"_s)->KeyName(), u""_s) << "looked for in frms2";
    EXPECT_EQ(count(u"frms2"_s), 0);
}

TEST_F(TemplateStoreTest, ANumberWithMoreBehindItCanBeOpenedAndNotSaved) {
    saveAs(u"K"_s, u"ABCD12"_s);
    EXPECT_EQ(opened(u"ABCD12.Zkp"_s)->KeyName(), u"K"_s);
    EXPECT_EQ(errorNumber([&] { save(u"ABCD12.Zkp"_s); }), kErrTypeMismatch);
}

TEST_F(TemplateStoreTest, AMissingRowOfFrmsIsAnErrorOnSavingAndOpening) {
    EXPECT_EQ(errorNumber([&] { save(u"ABCD99"_s); }), kErrNoCurrentRecord);
    EXPECT_EQ(errorNumber([&] { opened(u"ABCD99"_s); }), kErrNoCurrentRecord);
    EXPECT_EQ(count(u"frms"_s), 3);
}

TEST_F(TemplateStoreTest, ANameWithAQuoteIsAnErrorOnSavingAndOpening) {
    save(u"other"_s);
    for (const QString& name : {u"it's"_s, u"O'Neil's"_s, u"a''b"_s, u"x' or 'a'='a"_s, u"x' or 'a'='b"_s,
                                u"x'; delete from frms2; select '"_s}) {
        EXPECT_EQ(errorNumber([&] { save(name); }), kErrBadStatement) << name.toStdString();
        EXPECT_EQ(errorNumber([&] { opened(name); }), kErrBadStatement) << name.toStdString();
    }
    EXPECT_EQ(count(u"frms2"_s), 1);
    EXPECT_EQ(one(u"select lstCode from frms2"_s), QVariant(u"other"_s));
    saveAs(u"K"_s, u"other"_s); // and no transaction is left open
    EXPECT_EQ(opened(u"other"_s)->KeyName(), u"K"_s);
}

TEST_F(TemplateStoreTest, WithoutAConnectionSavingAndOpeningAreErrors) {
    ZkpGrid other(host);
    EXPECT_EQ(errorNumber([&] { other.SaveTemplate({}, u"A"_s); }), kErrNoConnection);
    EXPECT_EQ(errorNumber([&] { other.opentemplate({}, {}, u"A"_s); }), kErrNoConnection);
}

// --- Opening

TEST_F(TemplateStoreTest, OpeningTakesTheConnectionAndTheNameOfTheControlWhenItIsLeftOut) {
    saveAs(u"K"_s, u"ABCD7"_s);
    ZkpGrid other(host);
    other.setFileName(u"ABCD7"_s);
    other.opentemplate(cn);
    EXPECT_EQ(other.Cn(), cn);
    EXPECT_EQ(other.KeyName(), u"K"_s);
}

TEST_F(TemplateStoreTest, AnUnknownNameIsPassedOverAndLeavesNoRow) {
    grid->setKeyName(u"K"_s);
    grid->opentemplate(cn, dir.path(), u"nobody"_s);
    EXPECT_EQ(grid->KeyName(), u"K"_s);
    EXPECT_TRUE(host->messages.empty());
    EXPECT_EQ(count(u"frms2"_s), 0);
}

TEST_F(TemplateStoreTest, AnUnknownNumberShowsTheMissingFileAndAppliesNothing) {
    grid->setKeyName(u"K"_s);
    grid->opentemplate(cn, u"C:\\App\\Forms"_s, u"ABCD7.Zkp"_s);
    EXPECT_EQ(grid->KeyName(), u"K"_s);
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(host->messages[0].text, u(" To αρχείο <<<C:\\App\\Forms\\ABCD7.Zkp>>> Δεν υπάρχει"));
    EXPECT_EQ(host->messages[0].style, kMsgBoxInformation);
    EXPECT_EQ(host->messages[0].title, u""_s);
}

TEST_F(TemplateStoreTest, TheFolderIsThatOfTheControlsOwnNumber) {
    const auto folderShown = [&](int own, const QVariant& passed) {
        host->messages.clear();
        grid->setfileno(own);
        grid->opentemplate(cn, {}, u"ABCD7"_s, passed);
        return host->messages.empty() ? QString() : host->messages[0].text.section(u'\\', -2, -2);
    };
    EXPECT_EQ(folderShown(-1, {}), u"Forms"_s);
    EXPECT_EQ(folderShown(-2, {}), u"Forms"_s);
    EXPECT_EQ(folderShown(0, {}), u"Reports"_s);
    EXPECT_EQ(folderShown(-1, 5), u"Forms"_s) << "even where a number was passed";
    EXPECT_EQ(folderShown(5, -1), u"Reports"_s);
}

TEST_F(TemplateStoreTest, OpeningReadsNoDataAndLeavesPropsChanged) {
    grid->setSourceType(ZKP_SQLStatement);
    save(u"A"_s);
    ZkpGrid other(host);
    other.setPropsChanged(true);
    int filled = 0;
    QObject::connect(&other.events(), &Events::StartFilling, [&] { ++filled; });
    other.opentemplate(cn, {}, u"A"_s);
    EXPECT_EQ(filled, 0);
    EXPECT_FALSE(other.PropsChanged()) << "as the template has it";
}

TEST_F(TemplateStoreTest, ATemplateThatIsNoBytesAtAllIsAnEmptyBag) {
    open(u"update frms set ZKP_ = "_s + database.constant({}) + u" where lstCode = 7"_s);
    const auto other = opened(u"ABCD7"_s);
    EXPECT_EQ(other->Filter(), u"true"_s);
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(TemplateStoreTest, ATemplateOfOneByteIsNoTemplate) {
    open(u"update frms set ZKP_ = "_s + database.constant("A") + u" where lstCode = 7"_s);
    const auto other = opened(u"ABCD7"_s);
    EXPECT_EQ(other->Filter(), u""_s) << "nothing was applied";
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(TemplateStoreTest, BytesOfAnotherKindAreRefusedAndNothingIsApplied) {
    QStringList values{database.constant("\1\2\3\4\5"), u"'just a text'"_s};
    if (!database.isServer()) // where columns of bytes take numbers too
        values << u"12345"_s;
    for (const QString& value : std::as_const(values)) {
        open(u"update frms set ZKP_ = "_s + value + u" where lstCode = 7"_s);
        const Error error = errorOf([&] { grid->opentemplate(cn, {}, u"ABCD7"_s); });
        EXPECT_EQ(error.number(), kErrInvalidFormat);
        EXPECT_TRUE(error.description().startsWith(u"ABCD7: "_s)) << "it names the template";
        EXPECT_EQ(grid->Filter(), u""_s);
    }
}

TEST_F(TemplateStoreTest, ATemplateOfALaterVersionIsRefused) {
    save(u"A"_s);
    QByteArray bytes = stored(u"frms2"_s);
    bytes[4] = static_cast<char>(bytes[4] + 1); // the version's place, see docs/template-format.md
    open(u"update frms2 set ZKP_ = "_s + database.constant(bytes));
    EXPECT_EQ(errorNumber([&] { opened(u"A"_s); }), kErrInvalidFormat);
}

TEST_F(TemplateStoreTest, ATemplateOfAnOlderVersionLacksKeysAndThoseReadTheirDefaults) {
    PropertyBag bag;
    bag.WriteProperty(u"Cols"_s, std::int32_t{1});
    bag.WriteProperty(u"ColCaption0"_s, u"A"_s);
    open(u"update frms set ZKP_ = "_s + database.constant(bag.Contents()) + u" where lstCode = 7"_s);
    const auto other = opened(u"ABCD7"_s);
    EXPECT_EQ(other->Columns().Count(), 1);
    EXPECT_EQ(other->ColCaption(0), u"A"_s);
    EXPECT_TRUE(other->ColEditable(0));
    EXPECT_EQ(other->Filter(), u"true"_s);
}

TEST_F(TemplateStoreTest, AHostTrimsTheColumnsThatOpeningAdded) {
    grid->setCols(3);
    grid->setColDataField(2, u"OLD"_s);
    grid->setCols(2);
    grid->setColDataField(0, u"A"_s);
    save(u"two"_s);
    grid->setCols(4);
    grid->opentemplate(cn, {}, u"two"_s);
    EXPECT_EQ(grid->Cols(), 2);
    EXPECT_EQ(grid->Columns().Count(), 6);
    grid->setCols(grid->Cols());
    EXPECT_EQ(grid->Columns().Count(), 2);
    EXPECT_EQ(grid->ColDataField(0), u"A"_s);
}

TEST_F(TemplateStoreTest, NormalSqlNamesFieldsOfColumnsThatWereNotTrimmed) {
    grid->setSourceType(ZKP_Table_QUERY);
    grid->setRecordSource(u"T"_s);
    grid->setCols(1);
    grid->setColDataField(0, u"NEW"_s);
    save(u"one"_s);
    grid->setCols(3);
    grid->setColDataField(2, u"STALE"_s);
    grid->opentemplate(cn, {}, u"one"_s);
    EXPECT_TRUE(grid->NormalSQL().contains(u"STALE"_s)) << "wanted: the count of entries bounds it";
    grid->setCols(grid->Cols());
    EXPECT_FALSE(grid->NormalSQL().contains(u"STALE"_s));
}

// --- Transactions

TEST_F(TemplateStoreTest, ASaveJoinsTheHostsTransaction) {
    save(u"A"_s);
    cn->BeginTrans();
    saveAs(u"K"_s, u"A"_s);
    cn->RollbackTrans();
    EXPECT_EQ(opened(u"A"_s)->KeyName(), u""_s);
    cn->BeginTrans();
    saveAs(u"K"_s, u"A"_s);
    cn->CommitTrans();
    EXPECT_EQ(opened(u"A"_s)->KeyName(), u"K"_s);
}

TEST_F(TemplateStoreTest, TwoControlsThatSaveOneNameLeaveOneWholeTemplate) {
    const auto second = std::make_shared<ado::Connection>();
    second->Open(database.connectionString());
    ZkpGrid other(host);
    other.setCn(second);
    other.setKeyName(u"two"_s);
    saveAs(u"one"_s, u"A"_s);
    other.SaveTemplate({}, u"A"_s);
    EXPECT_EQ(count(u"frms2"_s), 1);
    EXPECT_EQ(opened(u"A"_s)->KeyName(), u"two"_s);
    saveAs(u"one"_s, u"A"_s);
    EXPECT_EQ(count(u"frms2"_s), 1);
    EXPECT_EQ(opened(u"A"_s)->KeyName(), u"one"_s);
}

// Each control with a connection of its own, both at once. Whoever finds the other writing gets an error;
// where only rows are locked, a new name needs the index for that.
TEST_F(TemplateStoreTest, TwoControlsThatSaveOneNameAtOnceLeaveOneWholeTemplate) {
    open(u"create unique index frms2_names on frms2 (lstCode)"_s);
    const auto saveOften = [this](const QString& keyName) {
        const auto connection = std::make_shared<ado::Connection>();
        connection->Open(database.connectionString());
        ZkpGrid control;
        control.setCn(connection);
        control.setKeyName(keyName);
        control.setFilter(keyName.repeated(5'000));
        for (int i = 0; i < 10; ++i)
            errorNumber([&] { control.SaveTemplate({}, u"A"_s); });
    };
    std::thread one(saveOften, u"one"_s);
    std::thread two(saveOften, u"two"_s);
    one.join();
    two.join();
    EXPECT_EQ(count(u"frms2"_s), 1);
    const auto other = opened(u"A"_s);
    EXPECT_TRUE(other->KeyName() == u"one"_s || other->KeyName() == u"two"_s);
    EXPECT_EQ(other->Filter(), other->KeyName().repeated(5'000));
}

TEST_F(TemplateStoreTest, ASaveWhileAnotherWritesFailsAndLeavesTheOldTemplate) {
    saveAs(u"one"_s, u"A"_s);
    const auto second = std::make_shared<ado::Connection>();
    second->Open(database.connectionString());
    second->BeginTrans();
    second->Execute(u"insert into frms2 (lstCode) values ('writing')"_s);
    EXPECT_EQ(errorNumber([&] { saveAs(u"two"_s, u"A"_s); }), kErrDatabase);
    second->RollbackTrans();
    EXPECT_EQ(opened(u"A"_s)->KeyName(), u"one"_s);
    save(u"A"_s);
    EXPECT_EQ(opened(u"A"_s)->KeyName(), u"two"_s) << "the connection works on";
}

TEST_F(TemplateStoreTest, AShapeThatCannotBeWrittenWholeIsShownThrownAndNotKept) {
    saveAs(u"one"_s, u"A"_s);
    grid->setKeyName(u"two"_s);
    grid->MSFlexGrid1().setCols(grid->Cols() + 1); // past the control: the last column has no entry
    EXPECT_TRUE(errorNumber([&] { grid->SaveTemplate({}, u"A"_s); }));
    EXPECT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(opened(u"A"_s)->KeyName(), u"one"_s);
}

TEST_F(TemplateStoreTest, AFullDiskIsAnErrorAndLeavesTheOldTemplate) {
    saveAs(u"one"_s, u"A"_s);
    const qlonglong pages = one(u"PRAGMA page_count"_s).toLongLong();
    open(u"PRAGMA max_page_count = "_s + QString::number(pages));
    grid->setFilter(QString(100'000, u'x'));
    const Error error = errorOf([&] { saveAs(u"two"_s, u"A"_s); });
    EXPECT_EQ(error.number(), kErrDatabase);
    EXPECT_TRUE(error.description().contains(u"full"_s)) << error.what();
    EXPECT_EQ(opened(u"A"_s)->KeyName(), u"one"_s);
    EXPECT_EQ(one(u"PRAGMA integrity_check"_s), QVariant(u"ok"_s));
}

TEST_F(TemplateStoreTest, AConnectionForReadingStillSavesAndOpensTemplates) {
    const auto reading = std::make_shared<ado::Connection>();
    reading->setMode(ado::adModeRead);
    reading->Open(database.connectionString());
    grid->setCn(reading);
    saveAs(u"K"_s, u"ABCD7"_s);
    saveAs(u"L"_s, u"A"_s);
    EXPECT_EQ(opened(u"ABCD7"_s)->KeyName(), u"K"_s);
    EXPECT_EQ(opened(u"A"_s)->KeyName(), u"L"_s);
}

TEST_F(TemplateStoreTest, ADatabaseThatTakesNothingIsAnErrorAndOpensItsTemplates) {
    saveAs(u"one"_s, u"A"_s);
    database.refuseWriting(cn, true);
    const Error error = errorOf([&] { saveAs(u"two"_s, u"A"_s); });
    EXPECT_EQ(error.number(), kErrDatabase);
    EXPECT_EQ(opened(u"A"_s)->KeyName(), u"one"_s);
}

TEST_F(TemplateStoreTest, MenuHandlersRaiseTheirEventsAndDoNothingElse) {
    QStringList raised;
    QObject::connect(&grid->events(), &Events::MenuSaveTemplate, [&] { raised << u"save"_s; });
    QObject::connect(&grid->events(), &Events::MenuSaveTemplateAs, [&] { raised << u"save as"_s; });
    QObject::connect(&grid->events(), &Events::MenuLoadTemplate, [&] { raised << u"load"_s; });
    QObject::connect(&grid->events(), &Events::MenuTitle, [&] { raised << u"title"_s; });
    grid->mnuSave_Click();
    grid->mnuSaveAs_Click();
    grid->mnuLoad_Click();
    grid->mnuTitle_Click();
    EXPECT_EQ(raised, (QStringList{u"save"_s, u"save as"_s, u"load"_s, u"title"_s}));
    EXPECT_EQ(count(u"frms2"_s), 0);
}
