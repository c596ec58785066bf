#pragma once

#include "surface/grid_surface.h"

#include <array>
#include <string>

namespace zkp::bench {

/// A made-up column of any length that takes no memory: every value follows from its row and a salt,
/// so that another salt is another report.
class MadeColumn : public store::Column {
public:
    MadeColumn(store::ValueKind kind, std::size_t rows, std::uint64_t salt)
        : kind_(kind)
        , rows_(rows)
        , salt_(salt) {
        if (kind != store::ValueKind::Text)
            return;
        constexpr std::array kFirst{"Αικατερίνη", "Γεώργιος", "Δημήτριος", "Ελένη", "Ιωάννης", "Κωνσταντίνος",
                                    "Μαρία",      "Νικόλαος", "Παναγιώτα", "Σοφία", "Χρήστος", "Athens"};
        constexpr std::array kLast{"Παπαδόπουλος", "Αντωνίου", "Βλάχος",   "Γεωργίου", "Οικονόμου",
                                   "Χατζής",       "Μακρής",   "Νικολάου", "Σταύρου",  "Ζωγράφος"};
        for (const char* last : kLast)
            for (const char* first : kFirst)
                for (int i = 0; i < 40; ++i)
                    texts_.push_back(std::string(last) + " " + first + " " +
                                     std::to_string(salt % 97 * 40 + i));
    }

    std::size_t size() const override { return rows_; }
    store::ValueKind kind(std::size_t) const override { return kind_; }
    std::int64_t integer(std::size_t row) const override {
        return static_cast<std::int64_t>(mixed(row) % 100000);
    }
    Currency amount(std::size_t row) const override {
        return {static_cast<std::int64_t>(mixed(row) % 10'000'000'00) * 100 - 100'000'000'00};
    }
    double real(std::size_t) const override { return 0; }
    std::int64_t milliseconds(std::size_t) const override { return 0; }
    std::string_view bytes(std::size_t row) const override { return texts_[mixed(row) % texts_.size()]; }
    std::uint32_t textCode(std::size_t) const override { return kNoTextCode; }
    std::uint32_t textCodes() const override { return 0; }
    std::size_t memoryUsed() const override { return 0; }

private:
    std::uint64_t mixed(std::size_t row) const {
        std::uint64_t x = row * 0x9E3779B97F4A7C15u + salt_ * 0xBF58476D1CE4E5B9u;
        x ^= x >> 31;
        x *= 0x94D049BB133111EBu;
        return x ^ x >> 29;
    }

    store::ValueKind kind_;
    std::size_t rows_;
    std::uint64_t salt_;
    std::vector<std::string> texts_;
};

constexpr int kColumns = 10; // six texts, three amounts, one number

inline void setUp(GridSurface& surface, int columnTwips, int rowTwips) {
    surface.setLocale(ReportLocale(QLocale(QStringLiteral("el_GR"))));
    surface.setCols(kColumns);
    surface.setRowHeight(-1, rowTwips);
    for (int col = 0; col < kColumns; ++col) {
        surface.setColWidth(col, columnTwips);
        surface.setColAlignment(col, col < 6 ? 0 : 6);
        surface.setTextMatrix(0, col, QStringLiteral("Στήλη %1").arg(col + 1));
    }
}

/// What a load does to a surface.
inline void load(GridSurface& surface, int rows, std::uint64_t salt) {
    using store::ValueKind;
    std::vector<CellBinding> bindings;
    for (int col = 0; col < kColumns; ++col) {
        const ValueKind kind = col < 6 ? ValueKind::Text : col < 9 ? ValueKind::Amount : ValueKind::Integer;
        const auto column =
            std::make_shared<MadeColumn>(kind, rows, salt * kColumns + static_cast<unsigned>(col));
        bindings.push_back({column, kind == ValueKind::Amount ? CellFormat::Grouped2 : CellFormat::OwnText});
    }
    surface.setRedraw(false);
    surface.setRows(surface.FixedRows());
    surface.setRows(surface.FixedRows() + rows);
    surface.bindRows(surface.FixedRows(), rows, surface.addLayout(std::move(bindings)), {}, 1);
    surface.setRedraw(true);
}

} // namespace zkp::bench
