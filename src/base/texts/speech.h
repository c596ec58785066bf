#pragma once

#include <QString>

/// What a screen reader says: the kinds of rows and cells, and the parts of the control.
namespace zkp::texts {

inline QString spokenHeading() {
    return QStringLiteral("Επικεφαλίδα");
}
inline QString spokenGroup() {
    return QStringLiteral("Ομάδα");
}
inline QString spokenDetail() {
    return QStringLiteral("Λεπτομέρεια");
}
inline QString spokenSubtotal() {
    return QStringLiteral("Υποσύνολο");
}
inline QString spokenTotal() {
    return QStringLiteral("Σύνολο");
}
inline QString spokenBlank() {
    return QStringLiteral("κενό");
}
inline QString spokenReport() {
    return QStringLiteral("Αναφορά");
}
inline QString spokenTools() {
    return QStringLiteral("Εργαλεία");
}

} // namespace zkp::texts
