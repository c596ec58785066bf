#pragma once

#include "host/message_boxes.h"

namespace zkp {

// Styles of question boxes: the icon and the buttons, 256 making the second button the default.
inline constexpr int kAskYesNo = kMsgBoxQuestion | 4;
inline constexpr int kAskYesNoCancel = kMsgBoxQuestion | 3 | 256;

} // namespace zkp
