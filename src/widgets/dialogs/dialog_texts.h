#pragma once

class QWidget;

namespace zkp {

/// Gives the toolkit's own dialog, whose texts come in English, the Greek ones: buttons, labels, boxes.
/// What the application has translated already stays.
void translateDialog(QWidget& dialog);

} // namespace zkp
