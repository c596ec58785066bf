#pragma once

#include <QString>

namespace zkp {

/// A character as a search compares it: a capital, without accents, breathings and dialytika; 0 for a
/// mark that stands by itself. All sigmas are one, and all blanks.
QChar folded(QChar c);

/// What is looked for in texts, whatever their case and accents. The control compares names in capitals
/// with their accents; who types into a search often leaves these out.
class FoldedNeedle {
public:
    FoldedNeedle() = default;
    explicit FoldedNeedle(QStringView text);

    bool isEmpty() const { return needle_.isEmpty(); }
    bool isIn(QStringView text) const;

private:
    QString needle_;
    mutable QString text_; // kept for its room
};

} // namespace zkp
