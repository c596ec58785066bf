#pragma once

#include "template/saved_targets.h"

#include <QString>

#include <vector>

namespace zkp {

/// The type that a value is stored in.
enum class SavedType { Boolean, Int16, Int32, Single, Double, Text, Colour, Font };

/// A default that a value is compared with on writing, or falls back to on reading.
struct SavedDefault {
    enum class Kind { None, Value, Current, OneMoreThanCurrent, CurrentFixedRows };

    SavedDefault(Kind kind) // NOLINT(google-explicit-constructor): rows of the tables read better so
        : kind(kind) {}
    SavedDefault(BagValue value) // NOLINT(google-explicit-constructor)
        : kind(Kind::Value)
        , value(std::move(value)) {}

    Kind kind;
    BagValue value;
};

/// One saved key: how it is spelt on either side, and what stands behind it.
struct SavedKey {
    QString written; ///< empty: no code writes it
    QString read;    ///< empty: it is never read
    SavedType type;
    SavedDefault elidedAt;    ///< None: always stored
    SavedDefault readDefault; ///< None: never read
    SavedTarget target;
};

/// One key that each column has, spelt with the column's position (from 0) behind it.
struct SavedColumnKey {
    QString written;
    QString read;
    SavedType type;
    SavedDefault elidedAt;
    SavedDefault readDefault;
    SavedColumnTarget target;
};

/// The keys in the order of writing: those before the columns' and those after them. Keys that are only
/// read are in neither.
const std::vector<SavedKey>& savedKeysBeforeColumns();
const std::vector<SavedKey>& savedKeysAfterColumns();
const std::vector<SavedColumnKey>& savedColumnKeys();

/// The keys of the seven font groups, in the order of writing.
std::vector<SavedKey> savedFontKeys();

/// The key that is read under exactly this spelling. It must be one of the tables'.
const SavedKey& savedKeyReadAs(const QString& spelling);

/// The value in the type that it is stored in.
BagValue inSavedType(SavedType type, BagValue value, const QString& key);
/// What the default is on this control; the key must have one.
BagValue defaultOn(const SavedControl& control, const SavedKey& key, const SavedDefault& fallback);

} // namespace zkp
