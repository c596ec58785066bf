#include "widgets/grid/key_codes.h"

#include <utility>

namespace zkp {

namespace {

constexpr std::pair<int, int> kKeys[] = {
    {Qt::Key_Backspace, kKeyBack},
    {Qt::Key_Tab, kKeyTab},
    {Qt::Key_Backtab, kKeyTab},
    {Qt::Key_Return, kKeyReturn},
    {Qt::Key_Enter, kKeyReturn},
    {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},
    {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20},
    {Qt::Key_Escape, kKeyEscape},
    {Qt::Key_PageUp, kKeyPageUp},
    {Qt::Key_PageDown, kKeyPageDown},
    {Qt::Key_End, kKeyEnd},
    {Qt::Key_Home, kKeyHome},
    {Qt::Key_Left, kKeyLeft},
    {Qt::Key_Up, kKeyUp},
    {Qt::Key_Right, kKeyRight},
    {Qt::Key_Down, kKeyDown},
    {Qt::Key_Print, 44},
    {Qt::Key_Insert, 45},
    {Qt::Key_Delete, 46},
    {Qt::Key_Help, 47},
    {Qt::Key_Asterisk, 106},
    {Qt::Key_Plus, 107},
    {Qt::Key_Minus, 109},
    {Qt::Key_Slash, 111},
    {Qt::Key_Menu, 93},
};

} // namespace

int keyCode(int qtKey) {
    if ((qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) || (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) ||
        qtKey == Qt::Key_Space)
        return qtKey;
    if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F24)
        return 112 + qtKey - Qt::Key_F1;
    for (const auto& [qt, code] : kKeys)
        if (qt == qtKey)
            return code;
    return 0;
}

int shiftBits(Qt::KeyboardModifiers modifiers) {
    return (modifiers & Qt::ShiftModifier ? kShift : 0) | (modifiers & Qt::ControlModifier ? kCtrl : 0) |
           (modifiers & Qt::AltModifier ? kAlt : 0);
}

int mouseButtons(Qt::MouseButtons buttons) {
    return (buttons & Qt::LeftButton ? 1 : 0) | (buttons & Qt::RightButton ? 2 : 0) |
           (buttons & Qt::MiddleButton ? 4 : 0);
}

} // namespace zkp
