#pragma once

#include <QString>

/// The steps of a statement that failed.
namespace zkp::texts {

inline QString fieldItemFailed() {
    return QStringLiteral("Δεν μπορώ να δημιουργήσω το Field SQL Statement (makefldSql)");
}
inline QString masterTableFailed() {
    return QStringLiteral("Δεν μπορώ το βρώ το Master Table (FindMaster)");
}
inline QString fromFailed() {
    return QStringLiteral("Δεν μπορώ να δημιουργήσω το FROM SQL Statement (MakeFromAndJoins)");
}
inline QString joinFailed() {
    return QStringLiteral("Δεν μπορώ να δημιουργήσω τα JOIN του SQL Statement (FindJoinON)");
}
inline QString filterFailed() {
    return QStringLiteral("Δεν μπορώ να μεταφράσω το Φίλτρο σε SQL");
}
inline QString runTimeFailed() {
    return QStringLiteral("Δεν μπορώ να Δημιουργήσω το Run Time SQL Statement (RunTimeSQL)");
}
inline QString counterFailed() {
    return QStringLiteral("Δεν μπορώ να δημιουργήσω το SQL Statement για τον Counter (RunTimeSQLCounter)");
}
inline QString normalFailed() {
    return QStringLiteral("Δεν μπορώ να δημιουργήσω το SQL Statement (NormalSQL)");
}
inline QString statisticsFailed() {
    return QStringLiteral("Δεν μπορώ να δημιουργήσω το Run Time SQL Statement (RunTimeStatsSQL)");
}
inline QString percentagesFailed() {
    return QStringLiteral("Δεν μπορώ να δημιουργήσω το SQL Statement για τα ποσοστά (RunTimePosSql)");
}

} // namespace zkp::texts
