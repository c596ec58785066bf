#pragma once

#include <QJSValue>

#include <optional>

namespace zkp::script {

/// One call of a script into the engine, while it runs. A handler that fails on its way leaves its
/// failure here: however the control ends the operation, the script then gets the handler's failure.
class CallFrame {
public:
    explicit CallFrame(CallFrame*& top)
        : top_(top)
        , outer_(top)
        , depth_(outer_ ? outer_->depth_ + 1 : 1) {
        top_ = this;
    }
    ~CallFrame() { top_ = outer_; }
    CallFrame(const CallFrame&) = delete;
    CallFrame& operator=(const CallFrame&) = delete;

    int depth() const { return depth_; }
    const std::optional<QJSValue>& failure() const { return failure_; }
    /// The first failure is the one that counts.
    void fail(const QJSValue& thrown) {
        if (!failure_)
            failure_ = thrown;
    }

private:
    CallFrame*& top_;
    CallFrame* outer_;
    int depth_;
    std::optional<QJSValue> failure_;
};

} // namespace zkp::script
