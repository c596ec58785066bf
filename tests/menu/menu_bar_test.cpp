#include "menu/menu_bar.h"

#include "error_of.h"
#include "print_qt.h"

#include <gtest/gtest.h>

using namespace zkp;
using namespace zkp::test;

namespace {

Tool named(const char* name) {
    Tool tool;
    tool.Name = u(name);
    return tool;
}

} // namespace

TEST(MenuBar, NamesAreFoundWithoutRegardToCase) {
    MenuBar bar;
    Band& band = bar.addBand(u("BndTemplate"));
    bar.addTool(band, named("txtRecs")).Text = u("5# ");
    EXPECT_EQ(bar.Bands(u("bndtemplate")).Tools(u("TXTRECS")).Text, u("5# "));
    EXPECT_TRUE(bar.hasTool(u("TxtRecs")));
    EXPECT_FALSE(bar.hasTool(u("mnuPrint")));
}

TEST(MenuBar, AMissingBandOrToolIsAnError) {
    MenuBar bar;
    Band& band = bar.addBand(u("A"));
    EXPECT_EQ(errorNumber([&] { bar.Bands(u("B")); }), kErrItemNotFound);
    EXPECT_EQ(errorNumber([&] { bar.Tools(u("x")); }), kErrItemNotFound);
    EXPECT_EQ(errorNumber([&] { band.Tools(u("x")); }), kErrItemNotFound);
    EXPECT_EQ(errorNumber([&] { bar.click(u("x")); }), kErrItemNotFound);
}

TEST(MenuBar, AToolInTwoBandsHasOneState) {
    MenuBar bar;
    Band& first = bar.addBand(u("A"));
    Band& second = bar.addBand(u("B"));
    bar.addTool(first, named("mnuPrint"));
    bar.addTool(second, named("MNUPRINT"));
    first.Tools(u("mnuPrint")).Enabled = false;
    EXPECT_FALSE(second.Tools(u("mnuPrint")).Enabled);
    EXPECT_EQ(second.tools.size(), 1u);
}

TEST(MenuBar, ABandOrToolAddedTwiceStandsOnce) {
    MenuBar bar;
    Band& band = bar.addBand(u("A"));
    EXPECT_EQ(&bar.addBand(u("a")), &band);
    bar.addTool(band, named("x"));
    bar.addTool(band, named("x"));
    EXPECT_EQ(band.tools.size(), 1u);
    EXPECT_EQ(bar.bands().size(), 1u);
}

TEST(MenuBar, SeparatorsStandAsOftenAsTheyAreAdded) {
    MenuBar bar;
    Band& band = bar.addBand(u("A"));
    Tool line = named("miSeparator");
    line.kind = ToolKind::Separator;
    bar.addTool(band, line);
    bar.addTool(band, named("x"));
    bar.addTool(band, line);
    EXPECT_EQ(band.tools.size(), 3u);
    EXPECT_EQ(band.tools[0], band.tools[2]);
}

TEST(MenuBar, AToolIsHeardByWhoeverListensToItsKind) {
    MenuBar bar;
    const auto heard = [&] {
        QString kinds;
        for (const ToolKind kind : {ToolKind::Button, ToolKind::Check, ToolKind::SubMenu, ToolKind::Separator,
                                    ToolKind::List, ToolKind::Text, ToolKind::Label}) {
            Tool tool;
            tool.kind = kind;
            kinds += bar.isHeard(tool) ? u("1") : u("0");
        }
        return kinds;
    };
    const auto listener = [](Tool&) {};
    EXPECT_EQ(heard(), u("0000001"));
    const Listening clicks = bar.toolClicked.add(listener);
    EXPECT_EQ(heard(), u("1111001"));
    const Listening lists = bar.listChanged.add(listener);
    EXPECT_EQ(heard(), u("1111101"));
    const Listening texts = bar.textChanged.add(listener);
    EXPECT_EQ(heard(), u("1111111"));
}

TEST(MenuBar, ADisabledToolDoesNothing) {
    MenuBar bar;
    Band& band = bar.addBand(u("A"));
    Tool list = named("list");
    list.list = {u("one"), u("two")};
    list.Enabled = false;
    bar.addTool(band, list);
    int calls = 0;
    const auto count = [&](Tool&) { ++calls; };
    const Listening heard[] = {bar.toolClicked.add(count), bar.listChanged.add(count),
                               bar.textChanged.add(count)};
    bar.click(u("list"));
    bar.changeList(u("list"), 1);
    bar.changeText(u("list"), u("x"));
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(bar.Tools(u("list")).ListIndex, -1);
    EXPECT_EQ(bar.Tools(u("list")).Text, QString());
}

TEST(MenuBar, WhatTheUserDoesReachesTheToolThenTheListener) {
    MenuBar bar;
    Band& band = bar.addBand(u("A"));
    Tool list = named("list");
    list.list = {u("one"), u("two")};
    bar.addTool(band, list);
    QString heard;
    const Listening clicks = bar.toolClicked.add([&](Tool& tool) { heard += u("click ") + tool.Name; });
    const Listening lists = bar.listChanged.add(
        [&](Tool& tool) { heard += u(" list ") + QString::number(tool.ListIndex) + tool.Text; });
    const Listening texts = bar.textChanged.add([&](Tool& tool) { heard += u(" text ") + tool.Text; });
    bar.click(u("LIST"));
    bar.changeList(u("list"), 1);
    bar.changeText(u("list"), u("x"));
    EXPECT_EQ(heard, u("click list list 1two text x"));
    EXPECT_EQ(errorNumber([&] { bar.changeList(u("list"), 2); }), kErrSubscript);
}

TEST(MenuBar, APopupIsRememberedAndShown) {
    MenuBar bar;
    bar.addBand(u("mnuChooceObject"));
    QString shown;
    const Listening view =
        bar.views.add({.popupWanted = [&](const Band& band, bool&) { shown = band.Name; }});
    bar.popup(u("MNUCHOOCEOBJECT"));
    EXPECT_EQ(shown, u("mnuChooceObject"));
    EXPECT_EQ(bar.lastPopup(), u("mnuChooceObject"));
    EXPECT_EQ(errorNumber([&] { bar.popup(u("other")); }), kErrItemNotFound);
}

TEST(MenuBar, EveryListenerHearsAndNoneSilencesAnother) {
    MenuBar bar;
    bar.addTool(bar.addBand(u("A")), named("x"));
    QString heard;
    const Listening control = bar.toolClicked.add([&](Tool&) { heard += u("control "); });
    Listening other = bar.toolClicked.add([&](Tool&) { heard += u("other "); });
    const Listening one = bar.views.add({.changed = [&] { heard += u("one "); }});
    const Listening two = bar.views.add({.changed = [&] { heard += u("two "); }});
    bar.click(u("x"));
    bar.Refresh();
    other.stop();
    bar.click(u("x"));
    EXPECT_EQ(heard, u("control other one two control "));
}

TEST(MenuBar, APopupIsOpenedByOneViewAndAllHearOfIt) {
    MenuBar bar;
    bar.addBand(u("A"));
    std::vector<bool> open;
    const auto hears = [&](const Band&, bool& isOpen) { open.push_back(isOpen); };
    const auto opens = [&](const Band&, bool& isOpen) { open.push_back(std::exchange(isOpen, true)); };
    const Listening listening[] = {bar.views.add({.popupWanted = hears}),
                                   bar.views.add({.popupWanted = opens}),
                                   bar.views.add({.popupWanted = opens})};
    bar.popup(u("A"));
    EXPECT_EQ(open, (std::vector<bool>{false, false, true}));
}

TEST(MenuBar, AListenerMayAddToolsAndStopItself) {
    MenuBar bar;
    Band& band = bar.addBand(u("A"));
    bar.addTool(band, named("x"));
    int calls = 0;
    Listening clicks;
    clicks = bar.toolClicked.add([&](Tool& tool) {
        ++calls;
        clicks.stop();
        for (int i = 0; i < 100; ++i)
            bar.addTool(band, named(qPrintable(QString::number(i))));
        tool.Checked = true;
    });
    bar.click(u("x"));
    bar.click(u("x"));
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(bar.Tools(u("x")).Checked);
}
