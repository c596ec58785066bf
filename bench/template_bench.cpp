// Saved properties of a wide report: written into a bag and to bytes, and read back, against copying
// the same bytes in a raw loop; and the same done by a control.

#include "zkp_grid.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <stdexcept>
#include <string_view>

namespace zkp::bench {

namespace {

using namespace Qt::StringLiterals;

constexpr int kColumns = 200;
constexpr int kRuns = 101;
constexpr double kMostMilliseconds = 2;

struct Property {
    QString key;
    BagValue value;
    BagValue fallback;
};

/// 24 keys a column: as many of each type as a report's columns save, all stored. Made beforehand: what is
/// measured is the bag.
std::vector<Property> columnProperties() {
    std::vector<Property> properties;
    for (int column = 0; column < kColumns; ++column) {
        const auto add = [&](const char* stem, const BagValue& value, const BagValue& fallback) {
            properties.push_back({QString::fromLatin1(stem) + QString::number(column), value, fallback});
        };
        add("ColWidth", 900.5, 1250.0);
        for (const char* stem :
             {"ColCaption", "ColDatafield", "ColEditRs", "ColEditTag", "ColEditField1", "ColEditField2"})
            add(stem, u"Ασφάλιστρα"_s, u" "_s);
        for (const char* stem : {"ColAlignment", "ColEditKind", "ColEditLength"})
            add(stem, std::int16_t{4}, std::int16_t{0});
        for (const char* stem :
             {"ColCredit", "ColDebit", "ColBalance", "Coltotals", "ColStatic", "ColLR", "ColIndexKey",
              "ColForTot", "ColForSize", "ColCnt", "ColPerCnt", "ColPerSize", "ColAvrg", "ColEditable"})
            add(stem, true, false);
    }
    return properties;
}

QByteArray writeAll(const std::vector<Property>& properties) {
    PropertyBag bag;
    for (const Property& property : properties)
        bag.WriteProperty(property.key, property.value, property.fallback);
    return bag.Contents();
}

/// How many values were those that had been written.
std::size_t readAll(const std::vector<Property>& properties, const QByteArray& bytes) {
    PropertyBag bag;
    bag.setContents(bytes);
    std::size_t found = 0;
    for (const Property& property : properties)
        found += bag.ReadProperty(property.key, property.fallback) == property.value ? 1 : 0;
    return found;
}

/// The bytes one after the other, each through a register of its own.
void copyRaw(const QByteArray& from, QByteArray& to) {
    const volatile char* source = from.constData();
    char* target = to.data();
    for (qsizetype i = 0; i < from.size(); ++i)
        target[i] = source[i];
}

/// Milliseconds of processor time, which other programs on the machine disturb less than the clock; the
/// median of the runs.
double measure(int runs, const std::function<void()>& work) {
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) {
        const std::clock_t start = std::clock();
        work();
        times.push_back(1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    std::nth_element(times.begin(), times.begin() + runs / 2, times.end());
    return times[static_cast<std::size_t>(runs / 2)];
}

void measureBag(int runs) {
    const std::vector<Property> properties = columnProperties();
    QByteArray bytes;
    std::size_t found = 0;
    const double write = measure(runs, [&] { bytes = writeAll(properties); });
    const double read = measure(runs, [&] { found = readAll(properties, bytes); });
    if (found != properties.size())
        throw std::runtime_error("not every value came back");
    QByteArray copy(bytes.size(), '\0');
    const double raw = measure(runs, [&] { copyRaw(bytes, copy); });
    if (copy != bytes)
        throw std::runtime_error("the raw loop");

    std::printf("The bag alone. ");
    std::printf("%d columns, %zu keys, %lld bytes, medians of %d runs, processor time\n", kColumns,
                properties.size(), static_cast<long long>(bytes.size()), runs);
    std::printf("  raw copy %.3f ms\n", raw);
    std::printf("  write %.3f ms (must %.0f), write / raw copy %.1f\n", write, kMostMilliseconds,
                write / raw);
    std::printf("  read  %.3f ms (must %.0f), read / raw copy %.1f\n", read, kMostMilliseconds, read / raw);
}

/// Every key of a column that is saved differs from what is left out.
void fillColumns(ZkpGrid& grid) {
    grid.setCols(kColumns);
    for (int c = 0; c < kColumns; ++c) {
        grid.setColWidth(c, 900);
        grid.setColAlignment(c, 4);
        for (const char* name :
             {"ColCaption", "ColDataField", "ColEditRs", "ColEditTag", "ColEditField1", "ColEditField2"})
            grid.setMember(QString::fromLatin1(name), u"Ασφάλιστρα"_s, {c});
        for (const char* name : {"ColDebit", "ColBalance", "ColTotals", "ColStatic", "ColLR", "ColIndexKey",
                                 "ColForTot", "Colcnt", "ColEditable"})
            grid.setMember(QString::fromLatin1(name), true, {c});
    }
}

/// Reading makes `Columns` grow; the host's `Cols` to itself is part of opening a template.
void measureControl(int runs) {
    ZkpGrid grid;
    fillColumns(grid);
    QByteArray bytes;
    const double write = measure(runs, [&] {
        const auto bag = std::make_shared<PropertyBag>();
        grid.UserControl_WriteProperties(bag);
        bytes = bag->Contents();
    });
    const double read = measure(runs, [&] {
        const auto bag = std::make_shared<PropertyBag>();
        bag->setContents(bytes);
        grid.UserControl_ReadProperties(bag);
        grid.setCols(grid.Cols());
    });
    if (grid.Cols() != kColumns || grid.ColCaption(kColumns - 1) != u"Ασφάλιστρα"_s)
        throw std::runtime_error("the shape did not come back");
    std::printf("The whole control with %d columns, %lld bytes\n", kColumns,
                static_cast<long long>(bytes.size()));
    std::printf("  UserControl_WriteProperties %.3f ms, UserControl_ReadProperties %.3f ms\n", write, read);
}

} // namespace

} // namespace zkp::bench

/// "--rows" is taken as every benchmark takes it: little data is few runs here.
int main(int argc, char** argv) {
    int runs = zkp::bench::kRuns;
    for (int i = 1; i + 1 < argc; ++i) {
        if (std::string_view(argv[i]) == "--rows")
            runs = std::clamp(std::atoi(argv[i + 1]) / 1000, 1, runs);
    }
    try {
        zkp::bench::measureBag(runs);
        zkp::bench::measureControl(runs);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "template_bench: not right: %s\n", error.what());
        return 1;
    }
}
