#include "host/message_boxes.h"

namespace zkp {

namespace {

constexpr int kButtonMask = 7; // which buttons a box's style asks for
enum BoxButtons { kYesNoCancel = 3, kYesNo = 4 };

} // namespace

int MessageBoxes::msgBox(const QString& /*text*/, int style, const QString& /*title*/) {
    const int buttons = style & kButtonMask;
    return buttons == kYesNoCancel || buttons == kYesNo ? kAnswerYes : kAnswerOk;
}

std::optional<QString> MessageBoxes::inputBox(const QString& /*prompt*/, const QString& /*title*/,
                                              const QString& /*text*/) {
    return std::nullopt;
}

} // namespace zkp
