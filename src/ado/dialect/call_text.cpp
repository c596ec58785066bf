#include "ado/dialect/call_text.h"

#include <QStringList>

namespace zkp::ado::dialect {

QString argumentTexts(const ExecCall& call) {
    QStringList texts;
    for (const QVariant& argument : call.arguments) {
        if (!argument.isValid())
            texts << QStringLiteral("NULL");
        else if (argument.typeId() == QMetaType::QString)
            texts << u'\'' + argument.toString().replace(u'\'', QStringLiteral("''")) + u'\'';
        else
            texts << argument.toString();
    }
    return texts.join(QStringLiteral(", "));
}

} // namespace zkp::ado::dialect
