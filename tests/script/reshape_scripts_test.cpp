#include "print_qt.h"
#include "script_fixture.h"

#include <QDir>

// Each script of scripts/reshape is a case; harness.js, which stands before each, is none itself.

namespace {

QString folder() {
    return QStringLiteral(ZKP_SOURCE_DIR "/tests/script/scripts/reshape");
}

std::vector<std::string> cases() {
    std::vector<std::string> names;
    for (const QString& file : QDir(folder()).entryList({QStringLiteral("*.js")}, QDir::Files, QDir::Name)) {
        if (file != QLatin1String("harness.js"))
            names.push_back(file.chopped(3).toStdString());
    }
    return names;
}

class ReshapeScript : public ScriptTest, public testing::WithParamInterface<std::string> {
protected:
    int runFile(const std::string& name) {
        return runner.runFile(folder() + QStringLiteral("/%1.js").arg(QString::fromStdString(name)), {});
    }

    std::string said() const { return (output + errors).join(u'\n').toStdString(); }
};

TEST_P(ReshapeScript, Passes) {
    ASSERT_EQ(runFile("harness"), 0) << said();
    EXPECT_EQ(runFile(GetParam()), 0) << said();
    // A case that stops before its last line has not passed.
    EXPECT_EQ(output.value(output.size() - 1), QStringLiteral("passed"));
}

INSTANTIATE_TEST_SUITE_P(Of, ReshapeScript, testing::ValuesIn(cases()),
                         [](const auto& one) { return one.param; });

} // namespace
