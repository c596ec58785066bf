#include "widgets/tools/reshape_step.h"

#include "base/texts/tools.h"

#include <QStringList>

#include <algorithm>

namespace zkp {

namespace {

QStringList fieldsOf(const ReshapeSnapshot& shape) {
    QStringList fields;
    for (const ColumnSnapshot& column : shape.columns)
        fields += column.record.Datafield;
    return fields;
}

QString stepOfFields(QStringList before, QStringList after) {
    std::sort(before.begin(), before.end());
    std::sort(after.begin(), after.end());
    return before == after ? texts::stepMove() : texts::stepField();
}

/// Of columns that show the same fields.
QString stepOfColumns(const ReshapeSnapshot& before, const ReshapeSnapshot& after) {
    const auto differ = [&](auto member) {
        return !std::equal(
            before.columns.begin(), before.columns.end(), after.columns.begin(), after.columns.end(),
            [&](const ColumnSnapshot& a, const ColumnSnapshot& b) { return a.*member == b.*member; });
    };
    if (differ(&ColumnSnapshot::width))
        return texts::stepWidth();
    return differ(&ColumnSnapshot::alignment) ? texts::stepAlignment() : texts::stepLook();
}

} // namespace

QString stepName(const ReshapeSnapshot& before, const ReshapeSnapshot& after) {
    if (before.columns.size() != after.columns.size())
        return before.columns.size() < after.columns.size() ? texts::stepAdd() : texts::stepDelete();
    const QStringList fields = fieldsOf(before);
    if (const QStringList now = fieldsOf(after); fields != now)
        return stepOfFields(fields, now);
    if (before.onlyCaptionOf(after) >= 0)
        return texts::stepCaption();
    return before.hasSameRows(after) ? stepOfColumns(before, after) : texts::stepRows();
}

} // namespace zkp
