#pragma once

#include "store/column.h"

#include <cstdint>
#include <memory>

namespace zkp {

/// How the text of a cell is made from a record's value.
enum class CellFormat : std::uint8_t {
    Blank,    ///< always the empty text
    OwnText,  ///< the value's own text; a null gives the empty text
    Grouped2, ///< the number in "#,##0.00"; a null counts as 0
    Grouped0, ///< the number in "#,##0"; a null counts as 0
};

/// Where the cells of one column come from, for the records bound with one layout.
struct CellBinding {
    std::shared_ptr<const store::Column> column; ///< may be null for Blank
    CellFormat format = CellFormat::Blank;
};

} // namespace zkp
