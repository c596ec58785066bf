#pragma once

#include <utility>

namespace zkp {

/// Runs a function when the scope ends, however it ends. The function must not throw.
template <class F>
class ScopeGuard {
public:
    explicit ScopeGuard(F f)
        : f_(std::move(f)) {}
    ~ScopeGuard() { f_(); }
    ScopeGuard(const ScopeGuard&) = delete;
    ScopeGuard& operator=(const ScopeGuard&) = delete;

private:
    F f_;
};

} // namespace zkp
