#pragma once

#include <functional>

namespace zkp {

/// What a load causes, at fixed points, in parts that stand above it. Who assembles the control fills in what
/// exists; a hook that is empty does nothing.
struct LoadHooks {
    std::function<void()> FieldListChanged; ///< rebuilds the field menus
    std::function<void()> MenuRefresh;      ///< brings the tools in line with the current column
    std::function<void()> DrawInterface;

    /// Runs a hook that may be empty.
    template <class Hook, class... Args>
    static void run(const Hook& hook, Args&&... args) {
        if (hook)
            hook(std::forward<Args>(args)...);
    }
};

} // namespace zkp
