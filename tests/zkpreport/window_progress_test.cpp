#include "base/texts/tools.h"
#include "window_fixture.h"

#include <QTimer>

namespace {

using namespace zkp;

/// What the label of the load shows each time it is painted, and whether events came in meanwhile.
class PaintLog : public QObject {
public:
    explicit PaintLog(QLabel& label)
        : label_(label) {
        label.installEventFilter(this);
    }
    QStringList painted;

private:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && !label_.text().isEmpty())
            painted += label_.text();
        return QObject::eventFilter(watched, event);
    }
    QLabel& label_;
};

/// A report of many rows, made once for the program.
class WindowProgress : public WindowTest {
protected:
    static QString manyRows() {
        static const QTemporaryDir folder;
        static const QString file = [] {
            demo::Options options;
            options.file = folder.filePath(QStringLiteral("many.db"));
            options.policies = 45'000;
            demo::makeDatabase(options);
            return options.file;
        }();
        return file;
    }
    QLabel& label() { return part<QLabel>("loadProgress"); }
};

TEST_F(WindowProgress, ALoadPaintsTheRowsReadAndLetsNoEventsIn) {
    settle();
    PaintLog log(label());
    int events = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++events; });
    timer.start(0);
    host->onPendingEvents = [&] { EXPECT_EQ(events, 0) << "none came in during the fetch"; };
    ASSERT_TRUE(window->showDatabase(manyRows()));
    EXPECT_EQ(events, 0);
    timer.stop();
    ASSERT_FALSE(log.painted.isEmpty());
    EXPECT_EQ(log.painted.front(), texts::loadBegins());
    EXPECT_THAT(log.painted.value(1).toStdString(), testing::StartsWith("Διαβάστηκαν 1"));
    EXPECT_TRUE(log.painted.contains(texts::layingOut(QStringLiteral("45.000"))))
        << qPrintable(log.painted.join(u'|'));
    settle();
    EXPECT_EQ(label().text(), QString()) << "and is gone when the report is there";
}

TEST_F(WindowProgress, AShortLoadTellsNoRows) {
    settle();
    PaintLog log(label());
    ASSERT_TRUE(open());
    EXPECT_EQ(log.painted, QStringList{texts::loadBegins()});
    settle();
    EXPECT_EQ(label().text(), QString());
}

TEST_F(WindowProgress, ALoadThatFailsLeavesNothingBehind) {
    ASSERT_TRUE(open());
    applyFilter(QStringLiteral("NOSUCHFIELD=1"));
    EXPECT_FALSE(host->messages.empty());
    EXPECT_EQ(label().text(), QString());
}

} // namespace
