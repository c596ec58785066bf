#pragma once

namespace zkp::demo {

/// The tables, without indexes, so that filling them is fast.
extern const char* const kTables;
/// Indexes on the join keys and on the names that reports group by, for when the data is in.
extern const char* const kIndexes;
/// The views that reports read. Columns are plain wherever they can be: a view hands on the declared
/// type (DATE, MONEY, ...) of a plain column only.
extern const char* const kViews;

} // namespace zkp::demo
