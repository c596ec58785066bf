#include <QApplication>

#include <gtest/gtest.h>

// Windows want an application object of their own kind, which must go before the program's statics do.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
