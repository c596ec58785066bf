#include "host/host.h"

#include "grid_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

class GreenOnly : public Host, public StyleDialogs {
public:
    StyleDialogs& styleDialogs() override { return *this; }
    std::optional<std::uint32_t> colorDialog(std::uint32_t /*start*/) override { return 0x00FF00; }
};

class CountsBoxes : public Host, public MessageBoxes {
public:
    using Host::Host;

    int shown = 0;

    MessageBoxes& boxes() override { return *this; }
    int msgBox(const QString& text, int style, const QString& title) override {
        ++shown;
        return MessageBoxes::msgBox(text, style, title);
    }
};

} // namespace

TEST(HostServices, AControlWorksWithAHostThatGivesOneServiceAlone) {
    ZkpGrid grid(std::make_shared<GreenOnly>());
    grid.ChooseSectionStyle(4, 0);
    EXPECT_EQ(grid.TotalsBackcolor(), 0x00FF00u);
    const QString before = grid.TotalsFontName();
    grid.ChooseSectionFont(4, 2); // cancelled
    EXPECT_EQ(grid.TotalsFontName(), before);
    grid.FillGrid(); // its box shows nowhere
    EXPECT_EQ(grid.host().screenPointer().pointer(), kPointerDefault);
}

TEST(HostServices, AControlTakesEachServiceFromTheHostThatGivesIt) {
    const auto below = std::make_shared<ScriptedHost>();
    below->onColorDialog = [](std::uint32_t) { return 0x0000FF; };
    const auto host = std::make_shared<CountsBoxes>(below);
    ZkpGrid grid(host);
    grid.ChooseSectionStyle(4, 0);
    EXPECT_EQ(grid.TotalsBackcolor(), 0x0000FFu);
    below->setPointer(kPointerHourglass);
    grid.FillGrid(); // without a connection
    EXPECT_EQ(host->shown, 1);
    EXPECT_TRUE(below->messages.empty());
    EXPECT_EQ(below->pointer(), kPointerDefault);
}
