#include "host/error_box.h"

#include "base/text.h"
#include "base/texts.h"

namespace zkp {

void ShowError(Host& host, const Error& error) {
    const bool badStatement = error.number() == kErrBadStatement;
    const QString text = badStatement ? texts::columnExists() : nameKey(error.description());
    const QString gap = QStringLiteral("\r\r");
    host.setPointer(kPointerDefault);
    host.msgBox(texts::errorPrefix() + gap + text + gap, badStatement ? kMsgBoxExclamation : kMsgBoxCritical,
                texts::errorTitle());
}

} // namespace zkp
