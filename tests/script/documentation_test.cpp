#include "print_qt.h"
#include "script_fixture.h"

#include "demo/demo_database.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

// The examples of docs/scripting.md run as they stand and print what stands behind them.

namespace {

struct Example {
    QString script;
    QStringList output;
};

std::vector<Example> examples() {
    QFile page(QStringLiteral(ZKP_SOURCE_DIR "/docs/scripting.md"));
    EXPECT_TRUE(page.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(page.readAll());
    static const QRegularExpression pair(QStringLiteral("```js\\n(.*?)```\\s*```text\\n(.*?)```"),
                                         QRegularExpression::DotMatchesEverythingOption);
    std::vector<Example> found;
    for (auto match = pair.globalMatch(text); match.hasNext();) {
        const QRegularExpressionMatch one = match.next();
        found.push_back({one.captured(1), one.captured(2).trimmed().split(QLatin1Char('\n'))});
    }
    return found;
}

TEST(Documentation, ItsFiveExamplesPrintWhatStandsBehindThem) {
    needApplication();
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.path()));
    zkp::demo::Options options;
    options.file = QStringLiteral("demo.db");
    options.policies = 500;
    zkp::demo::makeDatabase(options);

    const std::vector<Example> all = examples();
    EXPECT_EQ(all.size(), 5u);
    for (const Example& example : all) {
        QStringList output;
        QStringList errors;
        zkp::script::ScriptRunner runner([&](const QString& line) { output << line; },
                                         [&](const QString& line) { errors << line; });
        EXPECT_EQ(runner.runText(example.script, QStringLiteral("example.js"), {}), 0)
            << qPrintable(errors.join(QLatin1Char('\n')));
        EXPECT_EQ(output, example.output) << qPrintable(example.script);
    }
    QDir::setCurrent(before);
}

} // namespace
