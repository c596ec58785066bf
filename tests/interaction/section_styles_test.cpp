#include "painted_grid.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

constexpr Color kChosen = 0x00ABCDEF;

struct SectionRow {
    QString back;
    QString fore;
    QString font;
};

/// Headings, group factors, details, subtotals, totals, title, company block.
const SectionRow kTold[] = {
    {u"BackColorFixed"_s, u"ForeColorFixed"_s, u"FixedFont"_s},
    {u"GroupedBackColor"_s, u"GroupedForeColor"_s, u"GroupedFont"_s},
    {u"BackColor"_s, u"ForeColor"_s, u"Font"_s},
    {u"SubTotalsBackColor"_s, u"SubTotalsForeColor"_s, u"SubTotalsFont"_s},
    {u"TotalsBackColor"_s, u"TotalsForeColor"_s, u"TotalsFont"_s},
    {u"TitleBackColor"_s, u"TitleForeColor"_s, {}},
    {{}, u"StoixeiaForeColor"_s, {}},
};

/// A loaded report, so that each drawing is told.
class SectionStylesTest : public PaintedGridTest {
protected:
    SectionStylesTest() { giveRecordSource(); }

    QString value(const QString& property) { return grid->getMember(property).toString(); }

    /// All colours and fonts of the sections.
    QString look() {
        QStringList all;
        for (const SectionRow& row : kTold) {
            for (const QString& colour : {row.back, row.fore})
                all << (colour.isEmpty() ? QString() : value(colour));
            for (const char* part : {"Name", "Size", "Bold", "Italic", "Underline"})
                all << (row.font.isEmpty() ? QString() : value(row.font + QLatin1String(part)));
        }
        return all.join(u' ');
    }
};

} // namespace

TEST_F(SectionStylesTest, AChosenColourIsThatOfItsSectionAndTheReportIsDrawn) {
    for (int section = 0; section < 7; ++section)
        for (const int what : {0, 1}) {
            const QString property = what == 0 ? kTold[section].back : kTold[section].fore;
            if (property.isEmpty())
                continue;
            const Color before = grid->getMember(property).toUInt();
            const Color chosen = kChosen + static_cast<Color>(section);
            Color start = 0;
            host->onColorDialog = [&](Color given) {
                start = given;
                return std::optional(chosen);
            };
            changed.clear();
            grid->ChooseSectionStyle(section, what);
            EXPECT_EQ(start, before) << qPrintable(property);
            EXPECT_EQ(grid->getMember(property).toUInt(), chosen) << qPrintable(property);
            ASSERT_EQ(changed.size(), 1) << qPrintable(property);
            EXPECT_EQ(changed.first().toLower(), property.toLower());
            EXPECT_EQ(told(), u"Start Stop"_s) << qPrintable(property);
        }
}

TEST_F(SectionStylesTest, OnlyTheChosenPropertyIsAnother) {
    host->onColorDialog = [](Color) { return std::optional<Color>(kChosen); };
    const QString before = look();
    grid->ChooseSectionStyle(3, 1);
    grid->setSubTotalsForeColor(kSub + 1);
    EXPECT_EQ(look(), before);
}

TEST_F(SectionStylesTest, ADetailRowShowsItsNewColour) {
    kinds({1, 1, 1, 1, 1, 1, 1});
    host->onColorDialog = [](Color) { return std::optional<Color>(kChosen); };
    grid->ChooseSectionStyle(2, 0);
    EXPECT_EQ(style(1, 1).backColor, kChosen);
}

TEST_F(SectionStylesTest, AChosenFontIsThatOfItsSectionAndTheReportIsDrawn) {
    for (int section = 0; section < 5; ++section) {
        const QString font = kTold[section].font;
        const auto part = [&](const char* name) { return grid->getMember(font + QLatin1String(name)); };
        const FontChoice before{part("Name").toString(), part("Size").toDouble(), part("Bold").toBool(),
                                part("Italic").toBool(), part("Underline").toBool()};
        FontChoice start;
        host->onFontDialog = [&](const FontChoice& given) {
            start = given;
            return std::optional(FontChoice{u"Liberation Serif"_s, 11.0 + section, !before.FontBold,
                                            !before.FontItalic, !before.FontUnderline});
        };
        grid->ChooseSectionFont(section, 2);
        EXPECT_EQ(start.FontName, before.FontName) << section;
        EXPECT_EQ(start.FontSize, before.FontSize) << section;
        EXPECT_EQ(start.FontBold, before.FontBold) << section;
        EXPECT_EQ(part("Name").toString(), u"Liberation Serif"_s) << section;
        EXPECT_EQ(part("Size").toDouble(), 11.0 + section) << section;
        EXPECT_EQ(part("Bold").toBool(), !before.FontBold) << section;
        EXPECT_EQ(part("Italic").toBool(), !before.FontItalic) << section;
        EXPECT_EQ(part("Underline").toBool(), !before.FontUnderline) << section;
        EXPECT_EQ(told(), u"Start Stop"_s) << section;
    }
}

TEST_F(SectionStylesTest, TheHeadingTakesItsFontAtOnce) {
    grid->setRecordSource(QVariant()); // nothing is drawn
    host->onFontDialog = [](const FontChoice& start) {
        FontChoice font = start;
        font.FontSize = 17;
        return std::optional(font);
    };
    grid->ChooseSectionFont(0, 2);
    EXPECT_EQ(style(0, 1).fontSize, 17);
}

TEST_F(SectionStylesTest, ACancelledDialogChangesNothing) {
    const QString before = look();
    changed.clear();
    for (int section = 0; section < 7; ++section) {
        grid->ChooseSectionStyle(section, 0);
        grid->ChooseSectionStyle(section, 1);
        grid->ChooseSectionFont(section, 2);
    }
    EXPECT_EQ(look(), before);
    EXPECT_EQ(changed, QStringList());
    EXPECT_EQ(told(), QString());
}

TEST_F(SectionStylesTest, WhatASectionLacksIsNotAskedFor) {
    int asked = 0;
    host->onColorDialog = [&](Color) {
        ++asked;
        return std::optional<Color>(kChosen);
    };
    host->onFontDialog = [&](const FontChoice& start) {
        ++asked;
        return std::optional(start);
    };
    grid->ChooseSectionStyle(6, 0);
    for (const int section : {-1, 7})
        grid->ChooseSectionStyle(section, 0);
    grid->ChooseSectionStyle(0, 2);
    for (const int section : {-1, 5, 6})
        grid->ChooseSectionFont(section, 2);
    EXPECT_EQ(asked, 0);
}

TEST_F(SectionStylesTest, TheControlMayEndUnderItsDialog) {
    host->onColorDialog = [this](Color) {
        grid.reset();
        return std::optional<Color>(kChosen);
    };
    grid->ChooseSectionStyle(1, 0);
    EXPECT_EQ(grid, nullptr);
}

TEST_F(SectionStylesTest, AHandlerMayEndTheControlBetweenTwoPartsOfAFont) {
    host->onFontDialog = [](const FontChoice& start) { return std::optional(start); };
    QObject::connect(&grid->events(), &Events::PropertyChanged, [this](PropertyArgs& e) {
        if (e.name == u"FixedFontBold")
            grid.reset();
    });
    grid->ChooseSectionFont(0, 2);
    EXPECT_EQ(grid, nullptr);
}
