#include "template_fixture.h"

#include "template/template_file.h"
#include "template/template_store.h"

using namespace Qt::StringLiterals;
using namespace zkp;
using namespace zkp::test;

namespace {

class MigrationTest : public TemplateTest {
protected:
    /// A shape with a key name, two columns and its own name in it.
    QByteArray shape(const QString& keyName) {
        ZkpGrid made(host);
        made.setCols(2);
        made.setKeyName(keyName);
        made.setFileName(keyName + u".Zkp"_s);
        made.setPrintCaption(u"caption "_s + keyName);
        made.setfileno(3);
        return shapeOf(made)->Contents();
    }
    QString path(const QString& name) { return dir.filePath(name); }
    bool exists(const QString& name) { return QFile::exists(path(name)); }
    QByteArray stored(const QString& where) { return one(u"select ZKP_ from "_s + where).toByteArray(); }
    QString forms() { return dir.path() + u"\\Forms"_s; }

    std::vector<clsList> listed(const QVariant& number = {}) {
        std::vector<clsList> entries;
        const QVariantList list = grid->FillTemplates(number);
        EXPECT_TRUE(list.isEmpty() || !list.last().isValid()) << "one empty entry at the end";
        for (qsizetype i = 0; i + 1 < list.size(); ++i)
            entries.push_back(list[i].value<clsList>());
        return entries;
    }
};

} // namespace

// --- Opening what only a file holds

TEST_F(MigrationTest, ANumberedFileMovesIntoItsRow) {
    const QByteArray bytes = shape(u"K"_s);
    writeFile(path(u"Forms/ABCD7.Zkp"_s), variantOf(bytes));
    grid->setCols(1);
    grid->opentemplate(cn, {}, u"ABCD7.Zkp"_s);
    EXPECT_EQ(grid->KeyName(), u"K"_s);
    EXPECT_EQ(grid->Columns().Count(), 1 + 2) << "it is applied once";
    EXPECT_EQ(stored(u"frms where lstCode = 7"_s), bytes);
    EXPECT_FALSE(exists(u"Forms/ABCD7.Zkp"_s));
    EXPECT_TRUE(exists(u"Forms/OLD_ABCD7.Zkp"_s));
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(MigrationTest, ANamedFileMovesIntoARowOfFrms2AndIsAppliedTwice) {
    const QByteArray bytes = shape(u"K"_s);
    writeFile(path(u"Forms/Monthly.Zkp"_s), variantOf(bytes));
    grid->setCols(1);
    grid->opentemplate(cn, {}, u"Monthly.Zkp"_s);
    EXPECT_EQ(grid->KeyName(), u"K"_s);
    EXPECT_EQ(grid->Columns().Count(), 1 + 2 + 2);
    EXPECT_EQ(stored(u"frms2 where lstCode = 'Monthly.Zkp'"_s), bytes);
    EXPECT_TRUE(one(u"select datein from frms2"_s).toDateTime().isValid());
    EXPECT_FALSE(exists(u"Forms/Monthly.Zkp"_s));
    EXPECT_TRUE(exists(u"Forms/OLD_Monthly.Zkp"_s));

    ZkpGrid next(host);
    next.opentemplate(cn, {}, u"Monthly.Zkp"_s);
    EXPECT_EQ(next.Columns().Count(), 2) << "once it has moved, it is applied once";
    EXPECT_EQ(next.KeyName(), u"K"_s);
}

TEST_F(MigrationTest, ARowWithoutBytesIsFilledAndNoOtherIsAdded) {
    open(u"insert into frms2 (lstCode) values ('Monthly.Zkp')"_s);
    writeFile(path(u"Forms/Monthly.Zkp"_s), variantOf(shape(u"K"_s)));
    grid->opentemplate(cn, {}, u"Monthly.Zkp"_s);
    EXPECT_EQ(one(u"select count(*) from frms2"_s), QVariant(1));
    EXPECT_EQ(stored(u"frms2"_s), shape(u"K"_s));
}

TEST_F(MigrationTest, APathThatIsPassedIsWhereTheFileIsLookedFor) {
    writeFile(path(u"Elsewhere/ABCD7"_s), variantOf(shape(u"K"_s)));
    grid->opentemplate(cn, dir.path() + u"\\Elsewhere"_s, u"ABCD7"_s);
    EXPECT_EQ(grid->KeyName(), u"K"_s);
    EXPECT_TRUE(exists(u"Elsewhere/OLD_ABCD7"_s));
}

TEST_F(MigrationTest, AFileBesideAFilledRowIsClearedAwayAndNotRead) {
    grid->setKeyName(u"row"_s);
    grid->SaveTemplate({}, u"ABCD7"_s);
    grid->SaveTemplate({}, u"Monthly"_s);
    writeFile(path(u"Forms/ABCD7"_s), variantOf(shape(u"file"_s)));
    writeFile(path(u"Forms/Monthly"_s), "not even a template");
    for (const QString& name : {u"ABCD7"_s, u"Monthly"_s}) {
        ZkpGrid other(host);
        other.opentemplate(cn, {}, name);
        EXPECT_EQ(other.KeyName(), u"row"_s);
        EXPECT_FALSE(exists(u"Forms/"_s + name));
        EXPECT_TRUE(exists(u"Forms/OLD_"_s + name));
    }
}

TEST_F(MigrationTest, ATemplateWhoseFileIsGoneOpensAndNothingIsRenamed) {
    writeFile(path(u"Forms/OLD_ABCD7"_s), "old");
    grid->setKeyName(u"row"_s);
    grid->SaveTemplate({}, u"ABCD7"_s);
    ZkpGrid other(host);
    other.opentemplate(cn, {}, u"ABCD7"_s);
    EXPECT_EQ(other.KeyName(), u"row"_s);
    EXPECT_TRUE(exists(u"Forms/OLD_ABCD7"_s));
}

TEST_F(MigrationTest, BytesThatAreNotOursAreRefusedAndTheFileStays) {
    for (const QString& name : {u"ABCD7.Zkp"_s, u"Monthly.Zkp"_s}) {
        writeFile(path(u"Forms/"_s + name), variantOf("a bag of another system"));
        const Error error = errorOf([&] { grid->opentemplate(cn, {}, name); });
        EXPECT_EQ(error.number(), kErrInvalidFormat);
        EXPECT_TRUE(error.description().contains(name)) << "it names the file";
        EXPECT_TRUE(exists(u"Forms/"_s + name));
        EXPECT_FALSE(exists(u"Forms/OLD_"_s + name));
    }
    EXPECT_TRUE(one(u"select ZKP_ from frms where lstCode = 7"_s).isNull());
    EXPECT_EQ(one(u"select count(*) from frms2"_s), QVariant(0));
    EXPECT_EQ(grid->Filter(), u""_s) << "nothing was applied";
}

TEST_F(MigrationTest, AnEmptyVariantFillsNothing) {
    writeFile(path(u"Forms/ABCD7"_s), QByteArray(16, '\0'));
    writeFile(path(u"Forms/Monthly"_s), QByteArray(16, '\0'));
    EXPECT_EQ(errorNumber([&] { grid->opentemplate(cn, {}, u"ABCD7"_s); }), kErrInvalidFormat);
    EXPECT_TRUE(exists(u"Forms/ABCD7"_s));
    grid->opentemplate(cn, {}, u"Monthly"_s);
    EXPECT_EQ(grid->Filter(), u""_s);
    EXPECT_TRUE(exists(u"Forms/OLD_Monthly"_s));
    EXPECT_EQ(one(u"select lstCode from frms2"_s), QVariant(u"Monthly"_s));
    EXPECT_FALSE(one(u"select ZKP_ from frms2"_s).isValid());
}

TEST_F(MigrationTest, ADatabaseThatTakesNothingLeavesTheFileWhereItIs) {
    writeFile(path(u"Forms/ABCD7"_s), variantOf(shape(u"K"_s)));
    database.refuseWriting(cn, true);
    EXPECT_EQ(errorNumber([&] { grid->opentemplate(cn, {}, u"ABCD7"_s); }), kErrDatabase);
    EXPECT_TRUE(exists(u"Forms/ABCD7"_s));
    database.refuseWriting(cn, false);
    grid->opentemplate(cn, {}, u"ABCD7"_s);
    EXPECT_EQ(grid->KeyName(), u"K"_s);
}

TEST_F(MigrationTest, AnOldFileOfThatNameIsNeverReplaced) {
    writeFile(path(u"Forms/ABCD7"_s), variantOf(shape(u"K"_s)));
    writeFile(path(u"Forms/OLD_ABCD7"_s), "old");
    EXPECT_EQ(errorNumber([&] { grid->opentemplate(cn, {}, u"ABCD7"_s); }), kErrFileExists);
    EXPECT_EQ(stored(u"frms where lstCode = 7"_s), shape(u"K"_s)) << "the template is safe all the same";
    EXPECT_TRUE(exists(u"Forms/ABCD7"_s));
}

TEST_F(MigrationTest, AHandlerMayDestroyTheControlWhileItsTemplateMoves) {
    writeFile(path(u"Forms/Monthly"_s), variantOf(shape(u"K"_s)));
    QObject::connect(&grid->events(), &Events::PropertyChanged, [&](PropertyArgs&) { grid.reset(); });
    grid->opentemplate(cn, {}, u"Monthly"_s);
    EXPECT_EQ(grid, nullptr);
    EXPECT_TRUE(exists(u"Forms/Monthly"_s)) << "the next opening takes it";
}

// --- The listing

TEST_F(MigrationTest, TheListingShowsWhatTheFilesSayOfThemselves) {
    writeFile(path(u"Forms/b.Zkp"_s), variantOf(shape(u"two"_s)));
    writeFile(path(u"Forms/a.Zkp"_s), variantOf(shape(u"one"_s)));
    const std::vector<clsList> expected{{u"one.Zkp"_s, 3, u"caption one"_s},
                                        {u"two.Zkp"_s, 3, u"caption two"_s}};
    EXPECT_EQ(listed(), expected);
    EXPECT_EQ(listed(-1), expected);
    EXPECT_EQ(grid->FillTemplates().size(), 3);
    EXPECT_TRUE(exists(u"Forms/a.Zkp"_s)) << "listing moves nothing";
}

TEST_F(MigrationTest, KeysThatAFileLacksAreListedWithTheirDefaults) {
    writeFile(path(u"Forms/a.Zkp"_s), variantOf(PropertyBag().Contents()));
    EXPECT_EQ(listed(), (std::vector<clsList>{{u" "_s, -1, u" "_s}}));
}

TEST_F(MigrationTest, EveryNumberButMinusOneListsTheReports) {
    writeFile(path(u"Forms/a.Zkp"_s), variantOf(shape(u"form"_s)));
    writeFile(path(u"Reports/a.Zkp"_s), variantOf(shape(u"report"_s)));
    EXPECT_EQ(listed(-1).at(0).FileName, u"form.Zkp"_s);
    for (const int number : {-2, 0, 1, 5})
        EXPECT_EQ(listed(number).at(0).FileName, u"report.Zkp"_s) << number;
}

TEST_F(MigrationTest, TrueIsMinusOneAndATextIsNoNumber) {
    writeFile(path(u"Forms/a.Zkp"_s), variantOf(shape(u"form"_s)));
    EXPECT_EQ(listed(true).size(), 1u);
    EXPECT_EQ(errorNumber([&] { grid->FillTemplates(u"abc"_s); }), kErrTypeMismatch);
}

TEST_F(MigrationTest, MinusTwoListsTheReportsAndOpensFromTheForms) { // wanted
    writeFile(path(u"Forms/ABCD7"_s), variantOf(shape(u"form"_s)));
    writeFile(path(u"Reports/a.Zkp"_s), variantOf(shape(u"report"_s)));
    EXPECT_EQ(listed(-2).at(0).FileName, u"report.Zkp"_s);
    grid->setfileno(-2);
    grid->opentemplate(cn, {}, u"ABCD7"_s);
    EXPECT_EQ(grid->KeyName(), u"form"_s);
}

TEST_F(MigrationTest, WithoutFilesTheListingIsEmptyAndTheFileNameTooAfterEveryListing) {
    grid->setFileName(u"ABCD7"_s);
    EXPECT_EQ(grid->FillTemplates().size(), 0);
    EXPECT_EQ(grid->FileName(), u""_s);
    writeFile(path(u"Forms/a.Zkp"_s), variantOf(shape(u"one"_s)));
    grid->setFileName(u"ABCD7"_s);
    listed();
    EXPECT_EQ(grid->FileName(), u""_s);
}

TEST_F(MigrationTest, OpeningWithoutANameAfterAListingLooksForTheEmptyName) {
    grid->FillTemplates();
    grid->opentemplate(cn);
    EXPECT_TRUE(host->messages.empty()) << "a name of frms2, passed over";
    PropertyBag bag;
    bag.WriteProperty(u"KeyName"_s, u"K"_s);
    open(u"insert into frms2 (lstCode, ZKP_) values ('', "_s + database.constant(bag.Contents()) + u")"_s);
    grid->opentemplate(cn);
    EXPECT_EQ(grid->KeyName(), u"K"_s);
}

TEST_F(MigrationTest, OldFilesAreListedLikeAnyOther) {
    writeFile(path(u"Forms/ABCD7.Zkp"_s), variantOf(shape(u"K"_s)));
    grid->opentemplate(cn, {}, u"ABCD7.Zkp"_s);
    EXPECT_EQ(listed().size(), 1u);
}

TEST_F(MigrationTest, AFileThatIsNoTemplateEndsTheListingWithItsName) {
    writeFile(path(u"Forms/a.Zkp"_s), variantOf(shape(u"one"_s)));
    writeFile(path(u"Forms/b.Zkp"_s), variantOf("a bag of another system"));
    const Error error = errorOf([&] { grid->FillTemplates(); });
    EXPECT_EQ(error.number(), kErrInvalidFormat);
    EXPECT_TRUE(error.description().contains(u"b.Zkp"_s));
}

TEST_F(MigrationTest, TheListingNeedsNoConnection) {
    writeFile(path(u"Forms/a.Zkp"_s), variantOf(shape(u"one"_s)));
    grid->setCn({});
    EXPECT_EQ(listed().size(), 1u);
}
