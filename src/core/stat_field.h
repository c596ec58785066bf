#pragma once

#include "base/currency.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace zkp {

/// One column that the user may pick.
struct StatField {
    QString DataField;       ///< name of the field, or alias of the aggregate
    QString Caption;         ///< what the user sees
    bool IsGroup = false;    ///< can be a group factor
    bool IsTot = false;      ///< a value that takes totals
    Currency Width;          ///< twips
    std::int16_t Align = 0;  ///< the surface's alignment code
    std::int16_t Extra1 = 0; ///< kept for hosts; always 0
    std::int16_t Extra2 = 0; ///< kept for hosts; always 0
    bool CrossTabDate = false;
};

/// The columns that the user may pick, numbered from 1.
class StatFieldList {
public:
    int Count() const { return static_cast<int>(fields_.size()); }
    /// Error 9 outside 1 to Count.
    StatField& Item(int index) { return fields_[place(index)]; }
    const StatField& Item(int index) const { return fields_[place(index)]; }
    /// A new entry at the end, as it was made: empty texts, False and 0. The reference holds until
    /// the list grows again.
    StatField& Add() { return fields_.emplace_back(); }
    void Clear() { fields_.clear(); }

private:
    std::size_t place(int index) const;

    std::vector<StatField> fields_;
};

/// The one list that all controls of the process share: the latest load fills it.
StatFieldList& statFields();

} // namespace zkp
