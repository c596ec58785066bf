#include "interaction/dialog_helpers.h"

#include "support_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

TEST(SelectAllText, SelectsFromTheFirstCharacterToTheLast) {
    TextBoxModel box;
    box.Text = u" αβγ "_s;
    box.SelStart = 2;
    box.SelLength = 1;
    SelectAllText(box);
    EXPECT_EQ(box.SelStart, 0);
    EXPECT_EQ(box.SelLength, 5);
    box.Text.clear();
    SelectAllText(box);
    EXPECT_EQ(box.SelLength, 0);
}

TEST(CenterForm, WithoutAnOwnerStandsInTheMiddleOfTheScreen) {
    FormPlace form;
    form.Width = 3001;
    form.Height = 2000;
    CenterForm(form, ScreenSize{15000, 10000});
    EXPECT_EQ(form.Left, 5999.5);
    EXPECT_EQ(form.Top, 4000);
    EXPECT_EQ(form.Width, 3001);
    EXPECT_EQ(form.Height, 2000);
}

TEST(CenterForm, WithAnOwnerStandsInTheMiddleOfItsInnerArea) {
    FormPlace form;
    form.Width = 4000;
    form.Height = 1000;
    form.ScaleWidth = 1; // the form's own inner area does not count
    FormPlace owner;
    owner.Left = 777;
    owner.Width = 9999;
    owner.Height = 9999;
    owner.ScaleWidth = 6000;
    owner.ScaleHeight = 800;
    CenterForm(form, owner);
    EXPECT_EQ(form.Left, 1000);
    EXPECT_EQ(form.Top, -100); // a form that is larger than its owner
}

TEST(SelectInList, ChoosesTheRowWithTheTextTrimmedAndExactOtherwise) {
    ListModel list{{u"Alpha"_s, u" Beta "_s, u"beta"_s}, -1};
    SelectInList(list, u"  Beta"_s);
    EXPECT_EQ(list.ListIndex, 1);
    SelectInList(list, u"beta"_s);
    EXPECT_EQ(list.ListIndex, 2);
    SelectInList(list, u"BETA"_s);
    EXPECT_EQ(list.ListIndex, 2); // not found: as it was
}

TEST(SelectInList, TheLastMatchWins) {
    ListModel list{{u"a"_s, u"b"_s, u"a"_s, u"a "_s, u"c"_s}, 1};
    int found = -1;
    SelectInList(list, u"a"_s, &found);
    EXPECT_EQ(found, 3);
    EXPECT_EQ(list.ListIndex, 3);
}

TEST(SelectInList, AMatchInTheFirstRowIsFoundButNotChosen) {
    ListModel list{{u"a"_s, u"b"_s}, 1};
    int found = -1;
    SelectInList(list, u"a"_s, &found);
    EXPECT_EQ(found, 0);
    EXPECT_EQ(list.ListIndex, 1);
}

TEST(SelectInList, ABlankTextDoesNothing) {
    ListModel list{{u"a"_s, u""_s, u" "_s}, 0};
    int found = 2;
    SelectInList(list, u"  "_s, &found);
    EXPECT_EQ(found, 2);
    EXPECT_EQ(list.ListIndex, 0);
}

TEST(SelectInList, WithoutAMatchTheCallersValueIsChosen) {
    ListModel list{{u"a"_s, u"b"_s, u"c"_s}, 0};
    int found = 2;
    SelectInList(list, u"x"_s, &found);
    EXPECT_EQ(found, 2);
    EXPECT_EQ(list.ListIndex, 2);
    found = 3; // behind the last row
    EXPECT_EQ(test::errorNumber([&] { SelectInList(list, u"x"_s, &found); }), 380u);
    EXPECT_EQ(list.ListIndex, 2);
}

TEST(SetGreekCharset, AFontWithAGreekFormTakesTheCharacterSet) {
    FontModel font;
    font.Name = u"Arial"_s;
    SetGreekCharset(font);
    EXPECT_EQ(font.Charset, 161);
    EXPECT_EQ(font.Name, u"Arial"_s);
    font.nameInCharset = [](const QString& name, int) { return name; };
    SetGreekCharset(font);
    EXPECT_EQ(font.Charset, 161);
}

TEST(SetGreekCharset, AFontWithoutAGreekFormKeepsItsNameWithSetZero) {
    FontModel font;
    font.Name = u"Wingdings"_s;
    font.Charset = 2;
    font.nameInCharset = [](const QString& name, int charset) { return charset == 161 ? u"Arial"_s : name; };
    SetGreekCharset(font);
    EXPECT_EQ(font.Charset, 0);
    EXPECT_EQ(font.Name, u"Wingdings"_s);
}
