#pragma once

#include <QString>

/// Every text of the program's window, once.
namespace zkp::app::texts {

// The window.
inline QString reports() {
    return QStringLiteral("Αναφορές");
}
inline QString userLabel() {
    return QStringLiteral("&Χρήστης");
}
inline QString filterLabel() {
    return QStringLiteral("&Φίλτρο");
}
inline QString filterHint() {
    return QStringLiteral("Κλειδιά λεξικού – το Enter εφαρμόζει");
}
inline QString filterTip(const QString& keys) {
    return QStringLiteral("<p style='white-space:pre'>Κλειδιά της αναφοράς:\n%1</p>").arg(keys);
}
inline QString statementToggle() {
    return QStringLiteral("SQL");
}
inline QString statementToggleTip() {
    return QStringLiteral("Η εντολή προς τη βάση (Ctrl+Shift+S)");
}
inline QString windowTitle(const QString& report, const QString& database) {
    return report.isEmpty() ? database : QStringLiteral("%1 – %2").arg(report, database);
}

// The shape of a report.
inline QString groupsLabel() {
    return QStringLiteral("&Ομάδες");
}
inline QString groupName(int place) {
    return QStringLiteral("Ομάδα %1").arg(place);
}
inline QString noGroup() {
    return QStringLiteral("(καμία)");
}
inline QString totalsLabel() {
    return QStringLiteral("&Σύνολα");
}
inline QString totalsTip() {
    return QStringLiteral("Μία γραμμή για κάθε ομάδα αντί για κάθε εγγραφή");
}
inline QString noSuchGroup(const QString& keys) {
    return QStringLiteral("Η αναφορά δεν ομαδοποιείται κατά %1.").arg(keys);
}
inline QString sortAction() {
    return QStringLiteral("Ταξινόμηση");
}
inline QString sortTip() {
    return QStringLiteral(
        "Κατά την τρέχουσα στήλη, όπως το κλικ στην επικεφαλίδα· πάλι, αντίστροφα (Ctrl+Shift+T)");
}
inline QString totalsKeepOrder() {
    return QStringLiteral("Οι γραμμές συνόλων μένουν στη σειρά των ομάδων τους.");
}
inline QString sortedHeading(const QString& caption, bool isDescending) {
    return caption + (isDescending ? QStringLiteral(" ▼") : QStringLiteral(" ▲"));
}

// Headings of a totals report.
inline QString countHeading() {
    return QStringLiteral("Πλήθος");
}
inline QString shareHeading() {
    return QStringLiteral("%");
}
inline QString averageHeading() {
    return QStringLiteral("Μέσος Όρος");
}
inline QString minimumHeading() {
    return QStringLiteral("Ελάχιστο");
}
inline QString maximumHeading() {
    return QStringLiteral("Μέγιστο");
}

// Messages in place of a report.
inline QString noReportsTable() {
    return QStringLiteral("Η βάση δεν έχει πίνακα Reports, άρα ούτε αναφορές.");
}
inline QString noReports() {
    return QStringLiteral("Ο πίνακας Reports της βάσης είναι κενός.");
}
inline QString noSuchReport(const QString& name) {
    return QStringLiteral("Η βάση δεν έχει αναφορά %1.").arg(name);
}
inline QString noSuchUser(const QString& id) {
    return QStringLiteral("Η βάση δεν έχει χρήστη %1.").arg(id);
}
inline QString noDictionary(const QString& report) {
    return QStringLiteral("Η αναφορά %1 δεν έχει λεξικό με πεδία που να φαίνονται.").arg(report);
}
inline QString badIdentity(const QString& id) {
    return QStringLiteral("Ο κωδικός χρήστη %1 έχει απόστροφο και δεν γίνεται δεκτός.").arg(id);
}
inline QString loadFailed() {
    return QStringLiteral("Η αναφορά δεν φορτώθηκε.");
}

// Users and their rights.
inline QString allRows() {
    return QStringLiteral("Όλες οι γραμμές");
}
inline QString userEntry(const QString& name, const QString& id) {
    return name.isEmpty() ? id : QStringLiteral("%1 (%2)").arg(name, id);
}
inline QString ownRows(const QString& level) {
    return QStringLiteral("Επίπεδο %1: μόνο οι δικές του").arg(level);
}
inline QString ownRowsAndAgency(const QString& id) {
    return QStringLiteral("Επίπεδο 1: οι δικές του και του πρακτορείου %1").arg(id);
}
inline QString ownRowsAndAssistant(const QString& id) {
    return QStringLiteral("Επίπεδο 2: οι δικές του και του βοηθού διευθυντή %1").arg(id);
}
inline QString ownRowsAndUnit(const QString& id) {
    return QStringLiteral("Επίπεδο 3: οι δικές του και της μονάδας %1").arg(id);
}
inline QString ownRowsAndManager(const QString& id) {
    return QStringLiteral("Επίπεδο 4: οι δικές του και του διευθυντή %1").arg(id);
}
inline QString noCondition(const QString& level) {
    return QStringLiteral("Επίπεδο %1: κανένας περιορισμός, όλες οι γραμμές").arg(level);
}

// The statement.
inline QString statementBuilt() {
    return QStringLiteral("Όπως συντάχθηκε");
}
inline QString statementSent() {
    return QStringLiteral("Όπως στάλθηκε στη βάση");
}
inline QString loadFigures(const QString& records, const QString& statementMs, const QString& wholeMs) {
    return QStringLiteral("%1 εγγραφές · εντολή %2 ms · φόρτωση %3 ms").arg(records, statementMs, wholeMs);
}

// Why a filter is refused.
inline QString commentInFilter() {
    return QStringLiteral("Το φίλτρο δεν μπορεί να έχει σχόλια (--, /*, */).");
}
inline QString statementEndInFilter() {
    return QStringLiteral("Το φίλτρο δεν μπορεί να έχει ; έξω από εισαγωγικά.");
}
inline QString signInFilter(QChar sign) {
    return sign < u' ' ? QStringLiteral("Το φίλτρο έχει χαρακτήρα ελέγχου.")
                       : QStringLiteral("Το φίλτρο δεν μπορεί να έχει το σημείο %1 εδώ.").arg(sign);
}
inline QString quoteLeftOpen() {
    return QStringLiteral("Λείπει το εισαγωγικό που κλείνει.");
}
inline QString bracketLeftOpen() {
    return QStringLiteral("Λείπει η παρένθεση που κλείνει.");
}
inline QString bracketClosedFirst() {
    return QStringLiteral("Μια παρένθεση κλείνει χωρίς να έχει ανοίξει.");
}
inline QString nameLeftOpen() {
    return QStringLiteral("Λείπει η αγκύλη που κλείνει.");
}
inline QString nameClosedFirst() {
    return QStringLiteral("Μια αγκύλη κλείνει χωρίς να έχει ανοίξει.");
}
inline QString keyInConstant() {
    return QStringLiteral("Το φίλτρο έχει κλειδί μέσα σε εισαγωγικά ή αγκύλες και δεν μεταφράζεται σωστά.");
}

} // namespace zkp::app::texts
