#include "load/record_runs.h"

#include "surface/cell_text.h"

namespace zkp {

using store::Column;
using store::ValueKind;

QString RecordRuns::Record::text(int column) const {
    if (texts_.size() <= column)
        texts_.resize(column + 1);
    std::optional<QString>& text = texts_[column];
    if (!text)
        text = boundText(runs_.cell(column), row_, runs_.locale_);
    return *text;
}

std::optional<NumberFormat> RecordRuns::Record::format(int column) const {
    const CellBinding& cell = runs_.cell(column);
    if (!boundAmount(cell, row_))
        return std::nullopt;
    switch (cell.format) {
    case CellFormat::Grouped2:
        return NumberFormat::Grouped2;
    case CellFormat::Grouped0:
        return NumberFormat::Grouped0;
    default:
        return std::nullopt;
    }
}

Decimal RecordRuns::Record::number(int column) const {
    if (const auto amount = boundAmount(runs_.cell(column), row_))
        return Decimal(*amount);
    return Decimal::fromText(text(column), runs_.locale_).value_or(Decimal());
}

/// Equal values show equal texts. Values that differ may still do so; whoever asks looks at those.
bool RecordRuns::isSameValue(int column, std::uint32_t a, std::uint32_t b) const {
    const Column* values = cell(column).column.get();
    if (!values)
        return true;
    const ValueKind kind = values->kind(a);
    if (kind != values->kind(b))
        return false;
    switch (kind) {
    case ValueKind::Null:
        return true;
    case ValueKind::Text:
    case ValueKind::Binary:
        return values->bytes(a) == values->bytes(b);
    case ValueKind::Double:
        return values->real(a) == values->real(b);
    case ValueKind::Amount:
        return values->amount(a) == values->amount(b);
    case ValueKind::Date:
        return values->milliseconds(a) == values->milliseconds(b);
    case ValueKind::Boolean:
    case ValueKind::Integer:
        return values->integer(a) == values->integer(b);
    }
    return false;
}

std::int64_t RecordRuns::endOfRun(std::int64_t open, std::int64_t from) const {
    const std::uint32_t first = records_.tableRow(open);
    QVarLengthArray<std::uint32_t, 4> codes;
    for (int k = 0; k <= shape_.lastLevel(); ++k)
        codes.append(cell(k).column ? cell(k).column->textCode(first) : Column::kNoTextCode);
    for (std::int64_t position = from; position < count_; ++position) {
        const std::uint32_t row = records_.tableRow(position);
        for (int k = 0; k <= shape_.lastLevel(); ++k) {
            const bool same = codes[k] == Column::kNoTextCode ? isSameValue(k, first, row)
                                                              : cell(k).column->textCode(row) == codes[k];
            if (!same)
                return position;
        }
    }
    return count_;
}

Decimal RecordRuns::sum(int column, std::int64_t from, std::int64_t end) const {
    Decimal result;
    std::int64_t amounts = 0;
    for (std::int64_t position = from; position < end; ++position) {
        const std::uint32_t row = records_.tableRow(position);
        const auto amount = boundAmount(cell(column), row);
        if (!amount)
            result += Record(*this, position).number(column);
        else if (std::int64_t sum = 0; !__builtin_add_overflow(amounts, amount->scaled, &sum))
            amounts = sum;
        else
            result += Decimal(*amount);
    }
    result += Decimal(Currency{amounts});
    return result;
}

} // namespace zkp
