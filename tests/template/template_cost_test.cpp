#include "template_fixture.h"

// Opening a template costs what it shows, whatever the report's length.

using namespace Qt::StringLiterals;
using namespace zkp;
using namespace zkp::test;

namespace {

class TemplateCostTest : public TemplateTest {
protected:
    /// A control that shows so many records in a page of 41 rows, with a band and alternating colours.
    std::unique_ptr<ZkpGrid> showing(int records) {
        auto control = std::make_unique<ZkpGrid>(host);
        control->setCols(4);
        for (int c = 0; c < 4; ++c)
            control->setColDataField(c, u"N"_s);
        control->MSFlexGrid1().setVisibleRows(41);
        control->Fill(cn,
                      u"with recursive n(N) as (select 1 union all select N + 1 from n where N < %1) "
                      u"select N from n"_s.arg(records),
                      ZKP_SQLStatement);
        control->refresh();
        EXPECT_EQ(control->RecCount(), records);
        return control;
    }

    GridSurface::Costs costOfOpening(int records) {
        const auto control = showing(records);
        control->setTotalsBackcolor(0x112233);
        control->SaveTemplate({}, u"ABCD7"_s);
        control->MSFlexGrid1().takeCosts();
        control->opentemplate(cn, {}, u"ABCD7"_s);
        EXPECT_EQ(control->Rows(), records + 1);
        return control->MSFlexGrid1().takeCosts();
    }
};

} // namespace

TEST_F(TemplateCostTest, OpeningATemplateTouchesNoRowThatDoesNotShow) {
    const GridSurface::Costs small = costOfOpening(1'000);
    const GridSurface::Costs large = costOfOpening(1'000'000);
    EXPECT_EQ(large.rowsTouched, small.rowsTouched);
    EXPECT_EQ(large.styleWrites, small.styleWrites);
    EXPECT_EQ(large.textsMade, small.textsMade);
    EXPECT_EQ(large.rowsCopied, small.rowsCopied);
    EXPECT_LE(large.rowsTouched, 41);
    EXPECT_LE(large.textsMade, 41 * 4);
    EXPECT_LE(large.styleWrites, 41 * 4 + 100);
}
