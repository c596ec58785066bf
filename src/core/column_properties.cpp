#include "core/column_properties.h"

#include "base/number.h"

namespace zkp {

namespace {

int surfaceAlignment(int stored) {
    switch (stored) {
    case 7:
        return 6;
    case 4:
        return 3;
    case 1:
        return 0;
    default:
        return stored;
    }
}

/// Whether a host has left a column as it was made; its alignment came from the surface.
bool isUntouched(const Column& column) {
    Column fresh;
    fresh.Alignment = column.Alignment;
#define ZKP_SAME(Type, Name, ...)                                                                            \
    if (!(column.Name == fresh.Name))                                                                        \
        return false;
    ZKP_COLUMN_MEMBERS(ZKP_SAME)
#undef ZKP_SAME
    return true;
}

} // namespace

#define ZKP_DEFINE(Type, Name, Member, ...)                                                                  \
    void ColumnProperties::set##Name(int index, Type value) {                                                \
        columns_.ofGridColumn(index).Member = std::move(value);                                              \
        events_.notify(QStringLiteral(#Name));                                                               \
    }
ZKP_COLUMN_PROPERTIES(ZKP_DEFINE)
#undef ZKP_DEFINE

int ColumnProperties::ColAlignment(int index) const {
    return index == -1 ? 0 : surface_.ColAlignment(index);
}

void ColumnProperties::setColAlignment(int index, int alignment) {
    columns_.ofGridColumn(index).Alignment = toInt16(alignment);
    if (alignment != -1)
        surface_.setColAlignment(index, surfaceAlignment(alignment));
    events_.notify(QStringLiteral("ColAlignment"));
}

void ColumnProperties::setColCaption(int index, const QString& text) {
    columns_.ofGridColumn(index).Caption = text;
    surface_.setTextMatrix(0, index, text);
    events_.notify(QStringLiteral("ColCaption"));
}

bool ColumnProperties::ColCredit(int index) const {
    columns_.ofGridColumn(index); // an index outside is an error here as everywhere
    return false;
}

void ColumnProperties::setColCredit(int index, bool credit) {
    columns_.ofGridColumn(index).Credit = credit;
    events_.notify(QStringLiteral("ColCredit"));
}

double ColumnProperties::ColWidth(int index) const {
    return surface_.ColWidth(index);
}

void ColumnProperties::setColWidth(int index, double twips) {
    Column& column = columns_.ofGridColumn(index);
    if (twips == 0) {
        surface_.setColWidth(index, 0);
        surface_.setColHidden(index, true);
    } else {
        surface_.setColWidth(index, toInt32(twips));
        surface_.setColHidden(index, false);
        column.Width = twips;
    }
    events_.notify(QStringLiteral("ColWidth"));
}

void ColumnProperties::resize(int count) {
    initial_ = false;
    while (columns_.Count() > count)
        columns_.Remove(columns_.Count());
    while (columns_.Count() < count) {
        Column column;
        if (columns_.Count() > 0)
            column.Alignment = static_cast<std::int16_t>(surface_.ColAlignment(columns_.Count() - 1));
        columns_.Add(std::move(column));
    }
}

void ColumnProperties::placeInitial(int count) {
    resize(count);
    initial_ = true;
}

void ColumnProperties::dropInitial() {
    for (int number = 1; initial_ && number <= columns_.Count(); ++number)
        initial_ = isUntouched(columns_.Item(number));
    if (initial_)
        resize(0);
}

} // namespace zkp
