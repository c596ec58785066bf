#pragma once

#include <QString>

/// The captions of menus and tools.
namespace zkp::texts {

inline QString menuTemplate() {
    return QStringLiteral("Υπόδειγμα");
}
inline QString menuRefresh() {
    return QStringLiteral("Ανανέωση");
}
inline QString menuPrint() {
    return QStringLiteral("Εκτύπωση");
}
inline QString menuSpreadsheet() {
    return QStringLiteral("Export");
}
inline QString menuExport() {
    return QStringLiteral("Εξαγωγή");
}
inline QString menuGraph() {
    return QStringLiteral("Γράφημα");
}
inline QString menuFormat() {
    return QStringLiteral("Μορφοποίηση");
}
inline QString menuColumn() {
    return QStringLiteral("Στήλη");
}
inline QString menuAddColumn() {
    return QStringLiteral("Πρόσθεση Στήλης");
}
inline QString menuInsertColumn() {
    return QStringLiteral("Παρεμβολή Στήλης");
}
inline QString menuAddGroup() {
    return QStringLiteral("Πρόσθεση Παράγοντα Ομαδοποίησης");
}
inline QString menuInsertGroup() {
    return QStringLiteral("Παρεμβολή Παράγοντα Ομαδοποίησης");
}
inline QString menuDelColumn() {
    return QStringLiteral("Διαγραφή Στήλης");
}
inline QString menuColumnProperties() {
    return QStringLiteral("Ιδιότητες Στήλης");
}
inline QString menuField() {
    return QStringLiteral("Πεδίο");
}
inline QString menuCaption() {
    return QStringLiteral("Επικεφαλίδα");
}
inline QString menuAlignLeft() {
    return QStringLiteral("Στοίχιση Αριστερά");
}
inline QString menuAlignCenter() {
    return QStringLiteral("Στοίχιση στο κέντρο");
}
inline QString menuAlignRight() {
    return QStringLiteral("Στοίχιση Δεξιά");
}
inline QString menuSort() {
    return QStringLiteral("Ταξινόμηση");
}
inline QString menuSortAsc() {
    return QStringLiteral("Αύξουσα Ταξινόμηση");
}
inline QString menuSortDesc() {
    return QStringLiteral("Φθίνουσα Ταξινόμηση");
}
inline QString menuSaveTemplate() {
    return QStringLiteral("Καταχώρηση Υποδείγματος");
}
inline QString menuSaveTemplateAs() {
    return QStringLiteral("Καταχώρηση Υποδείγματος σάν");
}
inline QString menuTitle() {
    return QStringLiteral("Αλλαγή Τίτλου");
}
inline QString menuBackColor() {
    return QStringLiteral("Χρώμα Φόντου");
}
inline QString menuForeColor() {
    return QStringLiteral("Χρώμα Γραμμάτων");
}
inline QString menuFonts() {
    return QStringLiteral("Γραμματοσειρές");
}
inline QString menuGraphProperties() {
    return QStringLiteral("Ιδιότητες");
}
inline QString menuPrintGraph() {
    return QStringLiteral("Εκτύπωση Γραφήματος");
}
inline QString menuBarGraph() {
    return QStringLiteral("Γράφημα Στηλών");
}
inline QString menuHorBarGraph() {
    return QStringLiteral("Γράφημα Ράβδων");
}
inline QString menuAreaGraph() {
    return QStringLiteral("Γράφημα Περιοχής 3-Δ");
}
inline QString menuLineGraph() {
    return QStringLiteral("Γράφημα Γραμμών");
}
inline QString menuPieChart() {
    return QStringLiteral("Γράφημα Πίτας");
}
/// The two letters in brackets are Greek, as wanted.
inline QString menuScatterGraph() {
    return QStringLiteral("(ΧΥ) Γράφημα &Διασποράς");
}
inline QString menuCylinderGraph() {
    return QStringLiteral("Γράφημα Κυλίνδρων");
}
inline QString menuConeGraph() {
    return QStringLiteral("Γράφημα Κόνων");
}
inline QString menuPyramidGraph() {
    return QStringLiteral("Γράφημα Πυραμίδων");
}

// The sections of a report, as what follows a colour's name; also the captions of the font tools.
inline QString ofHeadings() {
    return QStringLiteral("Επικεφαλίδων");
}
inline QString ofGroups() {
    return QStringLiteral("Ομαδοποίησης");
}
inline QString ofDetails() {
    return QStringLiteral("Λεπτομερειών");
}
inline QString ofSubtotals() {
    return QStringLiteral("Υποσυνόλων");
}
inline QString ofTotals() {
    return QStringLiteral("Συνόλων");
}
inline QString ofTitle() {
    return QStringLiteral("Τίτλου");
}
inline QString ofCompanyBlock() {
    return QStringLiteral("Στοιχείων");
}

} // namespace zkp::texts
