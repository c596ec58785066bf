#pragma once

namespace zkp {

enum MousePointer { kPointerDefault = 0, kPointerHourglass = 11, kPointerNoDrop = 12, kPointerCustom = 99 };

/// The screen's mouse pointer (MousePointer). This one shows nothing and remembers what it was given.
class Pointer {
public:
    virtual ~Pointer() = default;

    virtual int pointer() const { return shown_; }
    virtual void setPointer(int pointer) { shown_ = pointer; }

private:
    int shown_ = kPointerDefault;
};

} // namespace zkp
