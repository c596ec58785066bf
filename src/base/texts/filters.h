#pragma once

#include <QString>

/// Why a filter from a person is refused. Each reason names its place, the character from 1.
namespace zkp::texts {

inline QString atCharacter(const QString& reason, qsizetype place) {
    return QStringLiteral("%1 (χαρακτήρας %2).").arg(reason, QString::number(place));
}

inline QString commentInFilter(qsizetype place) {
    return atCharacter(QStringLiteral("Το φίλτρο δεν μπορεί να έχει σχόλια (--, /*, */)"), place);
}
inline QString statementEndInFilter(qsizetype place) {
    return atCharacter(QStringLiteral("Το φίλτρο δεν μπορεί να έχει ; έξω από εισαγωγικά"), place);
}
inline QString subselectInFilter(const QString& word, qsizetype place) {
    return atCharacter(
        QStringLiteral("Το φίλτρο δεν μπορεί να ρωτά άλλους πίνακες («%1» έξω από εισαγωγικά)").arg(word),
        place);
}
inline QString signInFilter(QChar sign, qsizetype place) {
    return atCharacter(sign.isPrint()
                           ? QStringLiteral("Το φίλτρο δεν μπορεί να έχει το σημείο %1 εδώ").arg(sign)
                           : QStringLiteral("Το φίλτρο έχει χαρακτήρα ελέγχου"),
                       place);
}
inline QString quoteLeftOpen(qsizetype place) {
    return atCharacter(QStringLiteral("Λείπει το εισαγωγικό που κλείνει"), place);
}
inline QString bracketLeftOpen(qsizetype place) {
    return atCharacter(QStringLiteral("Λείπει η παρένθεση που κλείνει"), place);
}
inline QString bracketClosedFirst(qsizetype place) {
    return atCharacter(QStringLiteral("Μια παρένθεση κλείνει χωρίς να έχει ανοίξει"), place);
}
inline QString nameLeftOpen(qsizetype place) {
    return atCharacter(QStringLiteral("Λείπει η αγκύλη που κλείνει"), place);
}
inline QString nameClosedFirst(qsizetype place) {
    return atCharacter(QStringLiteral("Μια αγκύλη κλείνει χωρίς να έχει ανοίξει"), place);
}
inline QString keyInConstant(qsizetype place) {
    return atCharacter(
        QStringLiteral("Το φίλτρο έχει κλειδί μέσα σε εισαγωγικά ή αγκύλες και δεν μεταφράζεται σωστά"),
        place);
}
inline QString keyOutOfBrackets(qsizetype place) {
    return atCharacter(QStringLiteral("Ένα κλειδί του φίλτρου δεν μεταφράζεται σωστά"), place);
}

} // namespace zkp::texts
