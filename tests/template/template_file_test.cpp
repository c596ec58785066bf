#include "template/template_file.h"

#include "template_fixture.h"

#include <QDir>

using namespace Qt::StringLiterals;
using namespace zkp;
using namespace zkp::test;

namespace {

class TemplateFileTest : public TemplateTest {
protected:
    QByteArray read(const QByteArray& bytes) {
        writeFile(dir.filePath(u"A.Zkp"_s), bytes);
        return readTemplateFile(dir.path(), u"A.Zkp"_s).value_or("NONE");
    }
    std::uint32_t failure(const QByteArray& bytes) {
        return errorNumber([&] { read(bytes); });
    }
};

} // namespace

TEST_F(TemplateFileTest, HoldsAByteArrayBehindItsHead) {
    EXPECT_EQ(read(variantOf("bytes")), "bytes");
    EXPECT_EQ(read(variantOf({})), "");
    EXPECT_EQ(read(variantOf("bytes") + "more"), "bytes") << "one variant, and no more is read";
}

TEST_F(TemplateFileTest, TheLowerBoundSaysNothingAboutTheBytes) {
    QByteArray file = variantOf("bytes");
    file[8] = 1;
    EXPECT_EQ(read(file), "bytes");
}

TEST_F(TemplateFileTest, AnEmptyVariantAndAnEmptyFileHoldNothing) {
    EXPECT_EQ(read({}), "NONE");
    EXPECT_EQ(read(QByteArray(2, '\0')), "NONE");
    EXPECT_EQ(read(QByteArray(16, '\0')), "NONE");
}

TEST_F(TemplateFileTest, RefusesWhatIsNoByteArray) {
    QByteArray text = variantOf("bytes");
    text[0] = 8;
    text[1] = 0;
    EXPECT_EQ(failure(text), kErrInvalidFormat);
    QByteArray dimensions = variantOf("bytes");
    dimensions[2] = 2;
    EXPECT_EQ(failure(dimensions), kErrInvalidFormat);
    EXPECT_EQ(failure("x"), kErrInvalidFormat);
    EXPECT_EQ(failure("Dear reader, this is a letter."), kErrInvalidFormat);
    EXPECT_EQ(failure(variantOf("bytes").first(11)), kErrInvalidFormat);
}

TEST_F(TemplateFileTest, RefusesAHeadThatPromisesMoreThanThereIs) {
    EXPECT_EQ(failure(variantOf("bytes").chopped(1)), kErrInvalidFormat);
    QByteArray huge = variantOf("bytes");
    huge[7] = static_cast<char>(0x7f);
    EXPECT_EQ(failure(huge), kErrInvalidFormat);
    huge[7] = static_cast<char>(0xff);
    EXPECT_EQ(failure(huge), kErrInvalidFormat);
}

TEST_F(TemplateFileTest, AFileThatVanishedAfterTheListingIsAnError) {
    writeFile(dir.filePath(u"A.Zkp"_s), variantOf("bytes"));
    const QStringList names = templateFileNames(dir.path());
    ASSERT_EQ(names, QStringList{u"A.Zkp"_s});
    QFile::remove(dir.filePath(names[0]));
    EXPECT_EQ(errorNumber([&] { readTemplateFile(dir.path(), names[0]); }), kErrFileNotFound);
}

TEST_F(TemplateFileTest, ListsFilesOfItsExtensionInWhateverCase) {
    for (const QString& name : {u"b.Zkp"_s, u"A.ZKP"_s, u"c.zkp"_s, u"d.txt"_s, u"OLD_a.Zkp"_s})
        writeFile(dir.filePath(name), {});
    QDir(dir.path()).mkdir(u"folder.Zkp"_s);
    EXPECT_EQ(templateFileNames(dir.path()),
              (QStringList{u"A.ZKP"_s, u"b.Zkp"_s, u"c.zkp"_s, u"OLD_a.Zkp"_s}));
    EXPECT_EQ(templateFileNames(dir.path() + u"\\nowhere"_s), QStringList{});
}

TEST_F(TemplateFileTest, NamesAreFoundInWhateverCaseAndTheExactOneFirst) {
    writeFile(dir.filePath(u"Sub/ABCD8.ZKP"_s), variantOf("upper"));
    const QString folder = dir.path() + u"\\SUB"_s;
    EXPECT_TRUE(isTemplateFile(folder, u"abcd8.Zkp"_s));
    EXPECT_EQ(readTemplateFile(folder, u"abcd8.Zkp"_s), QByteArray("upper"));
    EXPECT_EQ(templateFileNames(folder), QStringList{u"ABCD8.ZKP"_s});
    writeFile(dir.filePath(u"Sub/abcd8.Zkp"_s), variantOf("exact"));
    EXPECT_EQ(readTemplateFile(folder, u"abcd8.Zkp"_s), QByteArray("exact"));
    retireTemplateFile(folder, u"abcd8.Zkp"_s);
    EXPECT_TRUE(QFile::exists(dir.filePath(u"Sub/OLD_abcd8.Zkp"_s)));
    EXPECT_TRUE(QFile::exists(dir.filePath(u"Sub/ABCD8.ZKP"_s)));
}

TEST_F(TemplateFileTest, AFolderIsNoTemplateFile) {
    QDir(dir.path()).mkdir(u"folder.Zkp"_s);
    EXPECT_FALSE(isTemplateFile(dir.path(), u"folder.Zkp"_s));
    EXPECT_FALSE(isTemplateFile(dir.path(), u""_s));
}

TEST_F(TemplateFileTest, RetiringPutsOldBeforeTheName) {
    writeFile(dir.filePath(u"Sub/A.Zkp"_s), "x");
    retireTemplateFile(dir.path() + u"\\Sub"_s, u"A.Zkp"_s);
    EXPECT_TRUE(QFile::exists(dir.filePath(u"Sub/OLD_A.Zkp"_s)));
    EXPECT_FALSE(QFile::exists(dir.filePath(u"Sub/A.Zkp"_s)));
}

TEST_F(TemplateFileTest, RetiringNeverReplacesAnOlderFile) {
    writeFile(dir.filePath(u"A.Zkp"_s), "new");
    writeFile(dir.filePath(u"OLD_A.Zkp"_s), "old");
    EXPECT_EQ(errorNumber([&] { retireTemplateFile(dir.path(), u"A.Zkp"_s); }), kErrFileExists);
    QFile old(dir.filePath(u"OLD_A.Zkp"_s));
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    EXPECT_EQ(old.readAll(), "old");
}

TEST_F(TemplateFileTest, RetiringAFileThatIsGoneIsAnError) {
    EXPECT_EQ(errorNumber([&] { retireTemplateFile(dir.path(), u"A.Zkp"_s); }), kErrFileAccess);
}
