#pragma once

#include <QString>
#include <QStringList>

#include <stdexcept>
#include <vector>

namespace zkp::sqlcases {

/// One line of a case: what is done or expected, and its text to the letter.
struct Step {
    int line = 0; ///< in its file, from 1
    QString verb; ///< "set", "call", "expect", "result", ...
    QString name; ///< what follows the verb, up to the colon
    QString value;
};

/// A case: a rule in words, and the steps that show it.
struct Case {
    QString file;
    QString title;
    QStringList shows; ///< ids of the rules that it shows
    std::vector<Step> steps;
};

/// Thrown for a case file that can't be read, with file and line.
struct BadCase : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Reads the cases of a file. A case begins with "=== title". A step is "verb name: value"; the value is
/// trimmed unless it stands between bars, which keep every blank. Lines that begin with a blank carry a
/// value on: in bars they join as they are, else with one blank. "#" begins a line of comment. The steps
/// ahead of the first title belong to every case of the file; `shared` belongs to every case anywhere.
std::vector<Case> readCases(const QString& path, const std::vector<Step>& shared = {});

/// The steps ahead of the first title.
std::vector<Step> readSharedSteps(const QString& path);

} // namespace zkp::sqlcases
