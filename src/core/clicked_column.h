#pragma once

namespace zkp {

/// The column that was clicked last, which tools and drags speak of. One number for all controls of the
/// process, as wanted.
class ClickedColumn {
public:
    static int get() { return column_; }
    static void take(int column) { column_ = column; }

private:
    inline static int column_ = 0;
};

} // namespace zkp
