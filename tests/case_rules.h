#pragma once

#include <QFile>
#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zkp::cases {

// What test cases kept as text files have in common, whatever their steps: a case has a `file`, a
// `title`, `steps` and, in `shows`, the ids of the rules that it shows.

/// A title as CTest can carry it: letters, digits and underscores.
inline std::string testName(const QString& title) {
    std::string name;
    for (const QChar c : title) {
        const bool plain = c.isLetterOrNumber() && c.unicode() < 128;
        if (plain)
            name += c.toLatin1();
        else if (!name.empty() && name.back() != '_')
            name += '_';
    }
    return name;
}

/// The first word of each line that is neither blank nor a comment.
inline QStringList readRuleIds(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList ids;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n'))
        if (!line.trimmed().isEmpty() && !line.startsWith(u'#'))
            ids << line.section(u' ', 0, 0);
    return ids;
}

/// Takes the "shows" lines out of a case's steps.
template <class Case>
void takeShows(Case& one) {
    std::erase_if(one.steps, [&](const auto& step) {
        if (step.verb != u"shows")
            return false;
        for (const QString& id : step.value.split(u','))
            one.shows << id.trimmed();
        return true;
    });
}

/// Each rule has a case, each case names rules that there are, and no two cases are called the same.
template <class Case>
void expectRulesAreShown(const QStringList& ids, const std::vector<Case>& all) {
    const QSet<QString> known(ids.begin(), ids.end());
    EXPECT_FALSE(ids.isEmpty());
    EXPECT_EQ(known.size(), ids.size()) << "an id stands twice";
    QSet<QString> shown, titles;
    for (const Case& one : all) {
        const QString title = one.file + QStringLiteral(": ") + one.title;
        EXPECT_FALSE(one.shows.isEmpty()) << title.toStdString() << " names no rule";
        EXPECT_FALSE(titles.contains(title)) << title.toStdString() << " stands twice";
        titles << title;
        for (const QString& id : one.shows) {
            EXPECT_TRUE(known.contains(id)) << title.toStdString() << ": no rule " << id.toStdString();
            shown << id;
        }
    }
    for (const QString& id : ids)
        EXPECT_TRUE(shown.contains(id)) << "no case shows the rule " << id.toStdString();
}

} // namespace zkp::cases
