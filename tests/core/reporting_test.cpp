#include "core/report_state.h"
#include "core/reporting.h"

#include "host/scripted_host.h"
#include "print_qt.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

class ReportingTest : public testing::Test {
protected:
    /// A failure under which a handler has destroyed the control.
    void failAfterTheEnd() {
        state.lifetime.destroyed = true;
        throw Error(kErrDatabase, u"too late"_s);
    }

    ReportState state;
    ScriptedHost host;
    Reporting reporting{state.lifetime, host};
};

} // namespace

TEST_F(ReportingTest, AnOperationThatEndsWellShowsNothing) {
    bool ran = false;
    EXPECT_TRUE(reporting.run([&] { ran = true; }));
    EXPECT_TRUE(ran);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(ReportingTest, AFailureOfAnyKindShowsTheErrorBoxAndEndsThere) {
    host.setPointer(kPointerHourglass);
    EXPECT_FALSE(reporting.run([] { throw Error(kErrDatabase, u"locked"_s); }));
    EXPECT_FALSE(reporting.run([] { throw std::runtime_error("broken"); }));
    EXPECT_FALSE(reporting.run([] { throw 5; }));
    ASSERT_EQ(host.messages.size(), 3u);
    EXPECT_EQ(host.messages[0].text, u"Παρουσιάστικε Εξαίρεση : \r\rLOCKED\r\r"_s);
    EXPECT_EQ(host.messages[0].style, kMsgBoxCritical);
    EXPECT_TRUE(host.messages[1].text.contains(u"BROKEN"));
    EXPECT_EQ(host.pointer(), kPointerDefault);
}

TEST_F(ReportingTest, ADestroyedControlUnwindsWithoutAWord) {
    EXPECT_THROW(reporting.run([] { throw ControlDestroyed{}; }), ControlDestroyed);
    EXPECT_THROW(reporting.run([this] { failAfterTheEnd(); }), ControlDestroyed);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(ReportingTest, AFailureMayBeToldInAnotherWay) {
    QStringList told;
    const auto tell = [&](const Error& error) { told += error.description(); };
    EXPECT_TRUE(reporting.run([] {}, tell));
    EXPECT_FALSE(reporting.run([] { throw Error(kErrDatabase, u"locked"_s); }, tell));
    EXPECT_EQ(told, QStringList{u"locked"_s});
    EXPECT_THROW(reporting.run([this] { failAfterTheEnd(); }, tell), ControlDestroyed);
    EXPECT_EQ(told.size(), 1);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(ReportingTest, AStepWhoseFailureIsPassedOverShowsNothing) {
    reporting.passOver([] { throw Error(kErrDatabase, u"locked"_s); });
    EXPECT_TRUE(host.messages.empty());
    EXPECT_THROW(reporting.passOver([] { throw ControlDestroyed{}; }), ControlDestroyed);
    EXPECT_THROW(reporting.passOver([this] { state.lifetime.destroyed = true; }), ControlDestroyed)
        << "a step that ended well, but destroyed the control";
}
