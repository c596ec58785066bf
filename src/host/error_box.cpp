#include "host/error_box.h"

#include "base/text.h"
#include "base/texts/failures.h"

namespace zkp {

void ErrorBox::show(const Error& error) const {
    const bool badStatement = error.number() == kErrBadStatement;
    const QString text = badStatement ? texts::columnExists() : nameKey(error.description());
    const QString gap = QStringLiteral("\r\r");
    pointer_.setPointer(kPointerDefault);
    boxes_.msgBox(texts::errorPrefix() + gap + text + gap,
                  badStatement ? kMsgBoxExclamation : kMsgBoxCritical, texts::errorTitle());
}

} // namespace zkp
