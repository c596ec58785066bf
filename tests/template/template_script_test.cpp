#include "script/script_fixture.h"

#include <QDir>
#include <QFile>

// Shapes and templates as a script handles them.

using namespace Qt::StringLiterals;

namespace {

class TemplateScript : public ScriptTest {
protected:
    TemplateScript() {
        run(u"cn.Execute(\"CREATE TABLE frms (lstCode INTEGER, ZKP_ BLOB)\");"
            u"cn.Execute(\"CREATE TABLE frms2 (lstCode TEXT, ZKP_ BLOB, datein DATETIME)\");"
            u"cn.Execute(\"INSERT INTO frms (lstCode) VALUES (7)\");"
            u"host.applicationFolder = '%1';"_s.arg(dir.path()));
    }
    ~TemplateScript() override { run(u"host.applicationFolder = ''"_s); }

    QTemporaryDir dir;
};

} // namespace

TEST_F(TemplateScript, AShapeTravelsThroughABag) {
    EXPECT_EQ(linesOf(u"var bag = new PropertyBag();"
                      u"grid.KeyName = 'NAME'; grid.setColCaption(0, 'Όνομα'); grid.EuroVer = false;"
                      u"grid.UserControl_WriteProperties(bag);"
                      u"print(bag.ReadProperty('KEYNAME'), bag.ReadProperty('ColCaption0'));"
                      u"var other = new ZkpGrid();"
                      u"other.UserControl_ReadProperties(bag);"
                      u"print(other.KeyName, other.ColCaption(0), other.TextMatrix(0, 0), other.EuroVer);"
                      u"print(other.Cols, other.Columns.Count, other.Columns.Item(1).EditTag + '|');"
                      u"other.UserControl_ReadProperties(bag);"
                      u"print(other.Columns.Count); other.Cols = other.Cols; print(other.Columns.Count);"_s),
              (QStringList{u"NAME Όνομα"_s, u"NAME Όνομα Όνομα true"_s, u"2 2  |"_s, u"4"_s, u"2"_s}));
}

TEST_F(TemplateScript, AnEmptyBagGivesDefaults) {
    EXPECT_EQ(linesOf(u"var g = new ZkpGrid(); g.UserControl_ReadProperties(new PropertyBag());"
                      u"print(g.Filter, g.UnionFilter, g.PreFilter, g.Cols, g.Columns.Count);"
                      u"print(g.ColEditField1(0), g.ColEditField2(1), g.ColWidth(0));"_s),
              (QStringList{u"true true true 2 2"_s, u"ID Descript 1250"_s}));
}

TEST_F(TemplateScript, TemplatesAreSavedAndOpened) {
    EXPECT_EQ(linesOf(u"grid.KeyName = 'one'; grid.SaveTemplate('', 'ABCD7');"
                      u"grid.KeyName = 'two'; grid.SaveTemplate(undefined, 'Μηνιαίο', 5);"
                      u"var other = new ZkpGrid();"
                      u"other.opentemplate(cn, undefined, 'ABCD7'); print(other.KeyName);"
                      u"other.opentemplate(cn, '', 'Μηνιαίο'); print(other.KeyName);"
                      u"other.Cols = other.Cols; other.SourceType = ZKP_SQLStatement;"
                      u"other.RecordSource = 'SELECT * FROM PEOPLE'; other.refresh();"
                      u"print(other.RecCount, other.TextMatrix(1, 0));"_s),
              (QStringList{u"one"_s, u"two"_s, u"3 Άννα"_s}));
}

TEST_F(TemplateScript, FailuresHaveTheirNumbers) {
    EXPECT_EQ(errorNumber(u"grid.SaveTemplate('', 'ABCD99')"_s), 3021);
    EXPECT_EQ(errorNumber(u"grid.SaveTemplate('', 'ABCD7.Zkp')"_s), 13);
    EXPECT_TRUE(errorOf(u"grid.opentemplate(cn, '', \"it's\")"_s).startsWith(u"2147749396 "_s))
        << "0x80040E14";
    EXPECT_EQ(errorNumber(u"grid.UserControl_ReadProperties('text')"_s), 13);
    EXPECT_EQ(linesOf(u"grid.opentemplate(cn, 'C:\\\\Forms', 'ABCD7'); print(host.messages[0].text);"_s),
              QStringList{u" To αρχείο <<<C:\\Forms\\ABCD7>>> Δεν υπάρχει"_s});
}

TEST_F(TemplateScript, TheListingIsAnArrayWithAnEmptyEntryAtItsEnd) {
    EXPECT_EQ(linesOf(u"grid.FileName = 'x'; print(grid.FillTemplates().length, grid.FileName + '|');"_s),
              QStringList{u"0 |"_s});
    const QString script = u"var bag = new PropertyBag(); bag.WriteProperty('FileName', 'ABCD7');"
                           u"bag.WriteProperty('FileNo', 7); bag.WriteProperty('PrintCaption', 'Παραγωγή');"
                           u"print(Array.from(new Uint8Array(bag.Contents)).join(' '));"_s;
    QByteArray bytes;
    for (const QString& byte : linesOf(script).value(0).split(u' '))
        bytes.append(static_cast<char>(byte.toInt()));
    QByteArray file = QByteArray::fromHex("1120010000000000") + QByteArray(4, '\0') + bytes;
    file[4] = static_cast<char>(bytes.size());
    ASSERT_TRUE(QDir(dir.path()).mkdir(u"Forms"_s));
    QFile target(dir.filePath(u"Forms/a.Zkp"_s));
    ASSERT_TRUE(target.open(QIODevice::WriteOnly));
    target.write(file);
    target.close();
    EXPECT_EQ(linesOf(u"var list = grid.FillTemplates(); print(list.length, list[1]);"
                      u"print(list[0].FileName, list[0].FileNo, list[0].PrintCaption);"
                      u"try { list[0].Filename } catch (e) { print(e.number); }"_s),
              (QStringList{u"2 null"_s, u"ABCD7 7 Παραγωγή"_s, u"438"_s}));
}

TEST_F(TemplateScript, TheMenusHandlersRaiseTheirEvents) {
    EXPECT_EQ(
        linesOf(
            u"for (const name of ['MenuSaveTemplate', 'MenuSaveTemplateAs', 'MenuLoadTemplate', 'MenuTitle'])"
            u"  grid.events[name].connect(function() { print(name); });"
            u"grid.mnuSave_Click(); grid.mnuSaveAs_Click(); grid.mnuLoad_Click(); grid.mnuTitle_Click();"_s),
        (QStringList{u"MenuSaveTemplate"_s, u"MenuSaveTemplateAs"_s, u"MenuLoadTemplate"_s, u"MenuTitle"_s}));
}
