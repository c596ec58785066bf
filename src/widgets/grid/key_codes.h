#pragma once

#include <QtCore/qnamespace.h>

namespace zkp {

/// Key codes as the control's events carry them.
enum KeyCode {
    kKeyBack = 8,
    kKeyTab = 9,
    kKeyReturn = 13,
    kKeyEscape = 27,
    kKeySpace = 32,
    kKeyPageUp = 33,
    kKeyPageDown = 34,
    kKeyEnd = 35,
    kKeyHome = 36,
    kKeyLeft = 37,
    kKeyUp = 38,
    kKeyRight = 39,
    kKeyDown = 40,
    kKeyA = 65,
    kKeyF6 = 117,
    kKeyF10 = 121,
};
enum ShiftBits { kShift = 1, kCtrl = 2, kAlt = 4 };

/// 0 for a key that has none.
int keyCode(int qtKey);
int shiftBits(Qt::KeyboardModifiers modifiers);
/// 1 left, 2 right, 4 middle.
int mouseButtons(Qt::MouseButtons buttons);

} // namespace zkp
