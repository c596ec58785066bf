#include "report_case.h"

#include "case_rules.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace zkp::reportcases {

namespace {

constexpr QChar kBlank = u'·';

Step stepOf(const QString& path, int line, const QString& text) {
    const auto colon = text.indexOf(u':');
    const QString head = text.left(colon).trimmed();
    if (colon < 0 || head.isEmpty())
        throw BadCase(path, line, QStringLiteral("a step is \"verb name: value\""));
    Step step;
    step.line = line;
    step.verb = head.section(u' ', 0, 0);
    step.name = head.section(u' ', 1).trimmed();
    step.value = text.mid(colon + 1).trimmed();
    return step;
}

/// The first of the cases returned holds the steps ahead of the first title.
std::vector<Case> readAll(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw BadCase(path, 0, QStringLiteral("can't be opened"));
    std::vector<Case> cases(1);
    int number = 0;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        ++number;
        auto& steps = cases.back().steps;
        if (line.trimmed().isEmpty() || line.startsWith(u'#'))
            continue;
        if (line.startsWith(u"==="))
            cases.push_back(
                {path, QFileInfo(path).completeBaseName(), line.mid(3).trimmed(), number, {}, {}});
        else if (!line.startsWith(u' '))
            steps.push_back(stepOf(path, number, line));
        else if (!steps.empty())
            steps.back().table.push_back(cellsOf(line));
        else
            throw BadCase(path, number, QStringLiteral("a table without a step"));
    }
    return cases;
}

} // namespace

std::vector<Case> readCases(const QString& path) {
    std::vector<Case> cases = readAll(path);
    const std::vector<Step> before = cases.front().steps;
    cases.erase(cases.begin());
    for (Case& one : cases) {
        one.steps.insert(one.steps.begin(), before.begin(), before.end());
        cases::takeShows(one);
    }
    return cases;
}

QStringList cellsOf(const QString& line) {
    QStringList cells = line.split(u'|');
    for (QString& cell : cells)
        cell = cell.trimmed();
    return cells;
}

QString withBlanks(QString text) {
    return text.replace(kBlank, u' ');
}

QString withVisibleBlanks(QString text) {
    for (qsizetype i = 0; i < text.size() && text[i] == u' '; ++i)
        text[i] = kBlank;
    for (qsizetype i = text.size() - 1; i >= 0 && text[i] == u' '; --i)
        text[i] = kBlank;
    return text;
}

} // namespace zkp::reportcases
