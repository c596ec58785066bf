#pragma once

#include <QString>

namespace zkp {

/// A font as a saved property holds it.
struct BagFont {
    QString name;
    double size = 0; ///< points
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethru = false;

    bool operator==(const BagFont&) const = default;
};

} // namespace zkp
