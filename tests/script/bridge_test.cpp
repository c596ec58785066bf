#include "bridge_sample.h"
#include "script_fixture.h"

#include "script/bridge.h"

namespace {

/// The bridge with an object of the tests' own behind it.
class BridgeTest : public testing::Test {
protected:
    BridgeTest() {
        bridge.addConstructor(QStringLiteral("Sample"), [] { return std::make_shared<Sample>(); });
        bridge.addGlobal(QStringLiteral("sample"), bridge.facade(sample));
    }

    QString eval(const char* text) { return engine.evaluate(QString::fromUtf8(text)).toString(); }
    double errorNumber(const char* text) {
        return engine.evaluate(QString::fromUtf8(text)).property(QStringLiteral("number")).toNumber();
    }

    struct Application {
        Application() { needApplication(); }
    } application;
    QJSEngine engine;
    zkp::script::Bridge bridge{engine};
    std::shared_ptr<Sample> sample = std::make_shared<Sample>();
};

TEST_F(BridgeTest, AReferenceParameterIsReadFromAndWrittenBackToAValueMember) {
    EXPECT_EQ(eval("var t = {value: 'a'}; sample.append(t, 'b') + t.value"), QStringLiteral("2ab"));
    EXPECT_EQ(eval("var d = {value: 2}; sample.twice(d); d.value"), QStringLiteral("4"));
    EXPECT_EQ(eval("var v = {value: null}; sample.fill(v); v.value"), QStringLiteral("filled"));
}

TEST_F(BridgeTest, AReferenceParameterTakesAPlainValueToo) {
    EXPECT_EQ(eval("sample.append('xyz', 'b')"), QStringLiteral("4"));
}

TEST_F(BridgeTest, AnEmptyBoxIsAResultWithoutAValueYet) {
    EXPECT_EQ(eval("var t = {value: undefined}; sample.append(t, 'b'); t.value"), QStringLiteral("b"));
}

TEST_F(BridgeTest, AReferenceParameterMindsTheKind) {
    EXPECT_EQ(errorNumber("sample.twice({value: 'x'})"), 13);
    EXPECT_EQ(errorNumber("sample.twice([])"), 13);
    EXPECT_EQ(eval("var box = {}; sample.twice(box); box.value"), QStringLiteral("0")) << "a result without a value yet";
}

TEST_F(BridgeTest, LeftOutArgumentsTakeTheirDeclaredDefault) {
    EXPECT_EQ(eval("sample.join('a')"), QStringLiteral("a-7"));
    EXPECT_EQ(eval("sample.join('a', undefined, undefined)"), QStringLiteral("a-7"));
    EXPECT_EQ(eval("sample.join('a', '+')"), QStringLiteral("a+7"));
    EXPECT_EQ(eval("sample.join('a', '+', 3)"), QStringLiteral("a+3"));
}

TEST_F(BridgeTest, MembersOfTheDelegateStandBehindTheObjectsOwn) {
    EXPECT_EQ(eval("sample.both()"), QStringLiteral("own"));
    EXPECT_EQ(eval("sample.behind()"), QStringLiteral("delegate"));
    EXPECT_EQ(eval("sample.Depth = 5; sample.Depth"), QStringLiteral("5"));
}

TEST_F(BridgeTest, PrivateInvokablesAreReachable) {
    EXPECT_EQ(eval("sample.hidden()"), QStringLiteral("private"));
}

TEST_F(BridgeTest, QtsOwnMembersAreNoMembers) {
    EXPECT_EQ(errorNumber("sample.objectName"), 438);
    EXPECT_EQ(errorNumber("sample.deleteLater"), 438);
    EXPECT_EQ(errorNumber("sample.objectName = 'x'"), 438);
}

TEST_F(BridgeTest, FailuresOfEveryKindReachTheScriptsCatch) {
    EXPECT_EQ(eval("try { sample.fail(); } catch (e) { e.number + e.description + e.source; }"),
              QStringLiteral("77whythere"));
    EXPECT_EQ(eval("try { sample.failOddly(); } catch (e) { e.description; }"), QStringLiteral("odd"));
    EXPECT_EQ(eval("try { sample.Failing; } catch (e) { e.number; }"), QStringLiteral("77"));
    EXPECT_EQ(eval("try { sample.Failing = 1; } catch (e) { e.number; }"), QStringLiteral("77"));
}

TEST_F(BridgeTest, ObjectsThatTheScriptDropsGo) {
    eval("for (var i = 0; i < 5000; ++i) new Sample();");
    engine.collectGarbage();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // The engine may still see a few on its own stack.
    EXPECT_LT(Sample::alive, 100);
}

TEST_F(BridgeTest, ObjectsThatTheScriptHoldsStay) {
    eval("var held = new Sample(); held.Depth = 9;");
    for (int i = 0; i < 3; ++i) {
        eval("for (var i = 0; i < 3000; ++i) new Sample();");
        engine.collectGarbage();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_EQ(eval("held.Depth"), QStringLiteral("9"));
}

TEST_F(BridgeTest, AnObjectKeepsWhatItIsToTheScriptAsLongAsTheScriptHoldsIt) {
    const auto other = std::make_shared<Sample>();
    bridge.addGlobal(QStringLiteral("first"), bridge.facade(other));
    engine.collectGarbage();
    bridge.addGlobal(QStringLiteral("second"), bridge.facade(other));
    EXPECT_EQ(eval("first === second"), QStringLiteral("true"));
    eval("first = second = null;");
    engine.collectGarbage();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    bridge.addGlobal(QStringLiteral("third"), bridge.facade(other));
    EXPECT_EQ(eval("third.both()"), QStringLiteral("own"));
}

} // namespace
