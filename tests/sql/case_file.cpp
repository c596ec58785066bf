#include "case_file.h"

#include "case_rules.h"

#include <QFile>
#include <QFileInfo>

namespace zkp::sqlcases {

namespace {

[[noreturn]] void refuse(const QString& path, int line, const char* why) {
    throw BadCase(QStringLiteral("%1:%2: %3").arg(path).arg(line).arg(QString::fromUtf8(why)).toStdString());
}

/// The text between the bars, or the trimmed text when there are none.
QString valueOf(const QString& text) {
    const QString inner = text.trimmed();
    const bool barred = inner.size() >= 2 && inner.startsWith(u'|') && inner.endsWith(u'|');
    return barred ? inner.mid(1, inner.size() - 2) : inner;
}

Step stepOf(const QString& path, int line, const QString& text) {
    const auto colon = text.indexOf(u':');
    const QString head = text.left(colon < 0 ? text.size() : colon).trimmed();
    const auto blank = head.indexOf(u' ');
    if (head.isEmpty())
        refuse(path, line, "a step without a verb");
    return {line, blank < 0 ? head : head.left(blank), blank < 0 ? QString() : head.mid(blank + 1).trimmed(),
            colon < 0 ? QString() : valueOf(text.mid(colon + 1))};
}

void carryOn(Step& step, const QString& text) {
    const bool barred = text.trimmed().startsWith(u'|');
    if (!barred && !step.value.isEmpty())
        step.value += u' ';
    step.value += valueOf(text);
}

/// The first of the cases returned holds the steps ahead of the first title.
std::vector<Case> readAll(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        refuse(path, 0, "can't be opened");
    std::vector<Case> cases(1);
    int number = 0;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        ++number;
        if (line.trimmed().isEmpty() || line.startsWith(u'#'))
            continue;
        if (line.startsWith(u"===")) {
            cases.push_back({QFileInfo(path).completeBaseName(), line.mid(3).trimmed(), {}, {}});
            continue;
        }
        auto& steps = cases.back().steps;
        if (!line.startsWith(u' '))
            steps.push_back(stepOf(path, number, line));
        else if (!steps.empty())
            carryOn(steps.back(), line);
        else
            refuse(path, number, "nothing to carry on");
    }
    return cases;
}

} // namespace

std::vector<Step> readSharedSteps(const QString& path) {
    return readAll(path).front().steps;
}

std::vector<Case> readCases(const QString& path, const std::vector<Step>& shared) {
    std::vector<Case> cases = readAll(path);
    std::vector<Step> before = shared;
    before.insert(before.end(), cases.front().steps.begin(), cases.front().steps.end());
    cases.erase(cases.begin());
    for (Case& one : cases) {
        one.steps.insert(one.steps.begin(), before.begin(), before.end());
        cases::takeShows(one);
    }
    return cases;
}

} // namespace zkp::sqlcases
