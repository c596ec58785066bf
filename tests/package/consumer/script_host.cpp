// A host that lets a script work on its own control.
#include <script/script_runner.h>
#include <zkp_grid.h>

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    zkp::ZkpGrid grid;
    grid.setColCaption(0, QStringLiteral("Αρ. Συμβολαίου"));

    const auto tell = [](const QString& line) { std::puts(qPrintable(line)); };
    zkp::script::ScriptRunner runner(tell, tell, QStringLiteral("script_host"));
    runner.addControl(QStringLiteral("report"), grid);
    return runner.runFile(application.arguments().value(1));
}
