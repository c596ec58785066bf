#include "surface/own_texts.h"

namespace zkp {

std::optional<QString> OwnTexts::text(RowId row, ColumnId column) const {
    const TextRef ref = refs_.get(row, column);
    if (ref.isNone())
        return std::nullopt;
    return arena_.text(ref);
}

void OwnTexts::write(RowId row, ColumnId column, QStringView text) {
    const QByteArray utf8 = text.toUtf8();
    const TextRef old = refs_.get(row, column);
    const TextRef ref = arena_.rewrite(old, {utf8.constData(), static_cast<std::size_t>(utf8.size())});
    if (!(ref == old))
        refs_.set(row, column, ref);
    compactWhenWasteful();
}

void OwnTexts::erase(RowId row, ColumnId column) {
    arena_.release(refs_.get(row, column));
    refs_.set(row, column, {});
}

void OwnTexts::clearRows(const RowRun& run) {
    refs_.clearRows(run, [this](TextRef ref) { arena_.release(ref); });
    compactWhenWasteful();
}

void OwnTexts::dropColumn(ColumnId column) {
    refs_.dropColumn(column, [this](TextRef ref) { arena_.release(ref); });
}

void OwnTexts::clear() {
    refs_.clear();
    arena_ = {};
}

/// Texts that grow leave their old place unused, and so do columns that go: those wait for the next write,
/// so that deleting one stays quick. Once more than half lies unused, the rest moves together. Each byte is
/// thus moved about once for every byte that was wasted.
void OwnTexts::compactWhenWasteful() {
    constexpr std::size_t kNotWorthIt = 1u << 20;
    if (arena_.deadBytes() < arena_.liveBytes() + kNotWorthIt)
        return;
    TextArena fresh;
    refs_.forEach([&](TextRef& ref) { ref = arena_.copyTo(fresh, ref); });
    arena_ = std::move(fresh);
}

} // namespace zkp
