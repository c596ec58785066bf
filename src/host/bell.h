#pragma once

namespace zkp {

/// The sound for an input that was refused. This one is silent.
class Bell {
public:
    virtual ~Bell() = default;

    virtual void beep() {}
};

} // namespace zkp
