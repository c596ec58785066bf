#pragma once

#include <QString>

/// What windows and dialogs say beside the control's own texts, once.
namespace zkp::texts {

// Buttons of boxes and dialogs.
inline QString ok() {
    return QStringLiteral("Εντάξει");
}
inline QString cancel() {
    return QStringLiteral("Άκυρο");
}
inline QString yes() {
    return QStringLiteral("&Ναι");
}
inline QString no() {
    return QStringLiteral("Ό&χι");
}

// Titles of dialogs that are not given one.
inline QString chooseColor() {
    return QStringLiteral("Επιλογή Χρώματος");
}
inline QString chooseFont() {
    return QStringLiteral("Επιλογή Γραμματοσειράς");
}

// The colour dialog.
inline QString basicColors() {
    return QStringLiteral("&Βασικά χρώματα");
}
inline QString customColors() {
    return QStringLiteral("&Δικά μου χρώματα");
}
inline QString addToCustomColors() {
    return QStringLiteral("Προσ&θήκη στα δικά μου");
}
inline QString pickScreenColor() {
    return QStringLiteral("&Από την οθόνη");
}
inline QString hue() {
    return QStringLiteral("Από&χρωση:");
}
inline QString saturation() {
    return QStringLiteral("&Κορεσμός:");
}
inline QString brightness() {
    return QStringLiteral("&Φωτεινότητα:");
}
inline QString red() {
    return QStringLiteral("Κ&όκκινο:");
}
inline QString green() {
    return QStringLiteral("&Πράσινο:");
}
inline QString blue() {
    return QStringLiteral("&Μπλε:");
}
inline QString html() {
    return QStringLiteral("&HTML:");
}

// The font dialog.
inline QString fontFamily() {
    return QStringLiteral("&Γραμματοσειρά");
}
inline QString fontStyle() {
    return QStringLiteral("&Στυλ");
}
inline QString fontSize() {
    return QStringLiteral("&Μέγεθος");
}
inline QString fontEffects() {
    return QStringLiteral("Εφέ");
}
inline QString underline() {
    return QStringLiteral("&Υπογράμμιση");
}
inline QString fontSample() {
    return QStringLiteral("Δείγμα");
}
inline QString fontSampleLetters() {
    return QStringLiteral("Ααβγδ 1.234,56 AaBb");
}

// The row of tools.
inline QString moreTools() {
    return QStringLiteral("Περισσότερες εντολές");
}

} // namespace zkp::texts
