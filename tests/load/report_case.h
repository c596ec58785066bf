#pragma once

#include <QString>
#include <QStringList>

#include <stdexcept>
#include <vector>

namespace zkp::reportcases {

/// Cells of one row; in a report the kind of the row stands ahead of them.
using TextRow = QStringList;
using TextRows = std::vector<TextRow>;

/// One line of a case, with the table under it.
struct Step {
    int line = 0; ///< in its file, from 1
    QString verb; ///< "records", "columns", "set", "report", ...
    QString name; ///< what follows the verb, up to the colon
    QString value;
    TextRows table; ///< the indented lines, cut into trimmed cells
};

/// A case: a rule in words, and the steps that show it.
struct Case {
    QString path;
    QString file; ///< the file's name without folder and ending
    QString title;
    int line = 0;
    QStringList shows; ///< ids of the rules that it shows
    std::vector<Step> steps;
};

/// Thrown for a case that can't be read or run, with file and line.
struct BadCase : std::runtime_error {
    using std::runtime_error::runtime_error;
    BadCase(const QString& path, int line, const QString& why)
        : std::runtime_error(QStringLiteral("%1:%2: %3").arg(path).arg(line).arg(why).toStdString()) {}
};

/// Reads the cases of a file. "#" begins a line of comment and "=== title" a case. A step is
/// "verb name: value"; indented lines under it are its table, with "|" between the cells. The steps
/// ahead of the first title belong to every case of the file.
std::vector<Case> readCases(const QString& path);

/// The cells between the bars of a line, trimmed.
QStringList cellsOf(const QString& line);

/// In cases "·" is a blank that would not be seen otherwise: in data, and at both ends of a shown text.
QString withBlanks(QString text);
QString withVisibleBlanks(QString text);

} // namespace zkp::reportcases
