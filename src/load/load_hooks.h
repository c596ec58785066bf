#pragma once

#include <QString>

#include <functional>

namespace zkp {

/// What a load asks, at fixed points, of parts that stand beside or above it. The front door fills
/// in what exists; a hook that is empty does nothing, unless it says otherwise.
struct LoadHooks {
    // Statements.
    std::function<void()> FindMaster;         ///< the report's master table
    std::function<void()> FieldListChanged;   ///< rebuilds the field menus
    std::function<void()> MenuRefresh;        ///< brings the tools in line with the current column
    std::function<QString()> DetailStatement; ///< empty: a source without text of its own is an error
    std::function<void()> OpenTotalRecordset; ///< empty: a totals report is an error
    std::function<void()> RunTimeSQLCounter;  ///< its text is not run
    std::function<QString()> CommandFilter;   ///< the user's rights as a recordset filter
    std::function<void()> MakeFixedForGroup;  ///< the group columns to the left

    // Painting and marking.
    std::function<void()> DrawInterface;
    std::function<void()> Selectrow;
    std::function<void(double row)> RedrawRow; ///< takes the mark off a row

    /// Runs a hook that may be empty.
    template <class Hook, class... Args>
    static void run(const Hook& hook, Args&&... args) {
        if (hook)
            hook(std::forward<Args>(args)...);
    }
};

} // namespace zkp
