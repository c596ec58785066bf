#include "template/saved_properties.h"

#include "base/error_in_flight.h"
#include "template/saved_reading.h"

namespace zkp {

namespace {

constexpr int kHeadingAlignment = 3; // stored as 4; wanted

/// The bag itself; Error kErrObjectNotSet without one.
PropertyBag& given(const PropertyBagPtr& bag) {
    if (!bag)
        throw Error(kErrObjectNotSet, QStringLiteral("Object variable not set"));
    return *bag;
}

bool isNone(const SavedDefault& fallback) {
    return fallback.kind == SavedDefault::Kind::None;
}

/// Spells the keys of one column, one after the other in the same piece of memory.
class ColumnSpelling {
public:
    explicit ColumnSpelling(int index)
        : position_(QString::number(index)) {}

    const QString& of(const QString& stem) {
        key_.resize(0);
        return key_.append(stem).append(position_);
    }

private:
    QString position_;
    QString key_;
};

/// What stands in the bag or else the default, in the column's own type.
void readInto(Column& column, const PropertyBag& bag, const SavedColumnKey& key, const QString& spelling) {
    const BagValue* held = bag.find(spelling);
    key.target.set(column, held ? *held : key.readDefault.value, spelling);
}

} // namespace

void SavedProperties::UserControl_WriteProperties(const PropertyBagPtr& bag) {
    try {
        writeAll(given(bag));
    } catch (...) {
        reporting_.show(errorInFlight());
    }
}

void SavedProperties::writeWhole(PropertyBag& bag) const {
    try {
        writeAll(bag);
    } catch (...) {
        reporting_.show(errorInFlight());
        throw;
    }
}

void SavedProperties::writeAll(PropertyBag& bag) const {
    const auto cols = static_cast<std::size_t>(control_.surface.Cols());
    bag.reserve(savedKeysBeforeColumns().size() + savedKeysAfterColumns().size() +
                cols * savedColumnKeys().size());
    write(bag, savedKeysBeforeColumns());
    writeColumns(bag);
    write(bag, savedKeysAfterColumns());
}

void SavedProperties::write(PropertyBag& bag, const std::vector<SavedKey>& keys) const {
    for (const SavedKey& key : keys) {
        BagValue value = inSavedType(key.type, key.target.get(control_), key.written);
        if (isNone(key.elidedAt))
            bag.WriteProperty(key.written, std::move(value));
        else
            bag.WriteProperty(key.written, std::move(value), defaultOn(control_, key, key.elidedAt));
    }
}

void SavedProperties::writeColumns(PropertyBag& bag) const {
    const int count = control_.surface.Cols();
    for (int i = 0; i < count; ++i) {
        const Column& column = columns_.ofGridColumn(i);
        ColumnSpelling spelling(i);
        for (const SavedColumnKey& key : savedColumnKeys()) {
            const QString& spelt = spelling.of(key.written);
            BagValue value = inSavedType(key.type, key.target.get(column), spelt);
            if (isNone(key.elidedAt))
                bag.WriteProperty(spelt, std::move(value));
            else
                bag.WriteProperty(spelt, std::move(value), key.elidedAt.value);
        }
    }
}

template <class Keys>
void SavedProperties::passEach(const PropertyBag& bag, const Keys& keys) const {
    for (const char* spelling : keys)
        reporting_.passOver([&] { readKey(bag, savedKeyReadAs(QString::fromLatin1(spelling))); });
}

void SavedProperties::readKey(const PropertyBag& bag, const SavedKey& key) const {
    const BagValue* held = bag.find(key.read);
    key.target.set(control_, held ? *held : defaultOn(control_, key, key.readDefault), key.read);
}

void SavedProperties::UserControl_ReadProperties(const PropertyBagPtr& given) {
    const PropertyBagPtr bag = given; // a handler may let go of it
    if (!readFirst(bag))
        return;
    columnProperties_.dropInitial();
    const int count = control_.surface.Cols();
    for (int i = 0; i < count; ++i)
        readColumn(*bag, i);
    readRest(*bag);
    reporting_.passOver(hooks_.DrawInterface);
}

/// False when it ended in the error box.
bool SavedProperties::readFirst(const PropertyBagPtr& bag) {
    try {
        const PropertyBag& source = given(bag);
        for (const char* spelling : saved::kReadFirst)
            readKey(source, savedKeyReadAs(QString::fromLatin1(spelling)));
        return true;
    } catch (...) {
        reporting_.show(errorInFlight());
        return false;
    }
}

/// The new column goes behind those that stand already, as wanted. Where there were some, the entry of this
/// position is an older one, and only what bringUpToDate assigns reaches it.
void SavedProperties::readColumn(const PropertyBag& bag, int index) {
    ColumnSpelling spelling(index);
    Column column;
    for (const SavedColumnKey& key : savedColumnKeys())
        if (!isNone(key.readDefault))
            reporting_.passOver([&] { readInto(column, bag, key, spelling.of(key.read)); });
    reporting_.passOver([&] { control_.surface.setFixedAlignment(index, kHeadingAlignment); });
    columns_.Add(column);
    bringUpToDate(index, column);
}

void SavedProperties::bringUpToDate(int index, const Column& column) {
    ColumnProperties& live = columnProperties_;
    reporting_.passOver([&] { live.setColCaption(index, column.Caption); });
    reporting_.passOver([&] { live.setColDataField(index, column.Datafield); });
    reporting_.passOver([&] { live.setColWidth(index, column.Width); });
    reporting_.passOver([&] { live.setColAlignment(index, column.Alignment); });
    reporting_.passOver([&] { live.setColBalance(index, column.Balance); });
    reporting_.passOver([&] { live.setColTotals(index, column.Totals); });
    reporting_.passOver([&] { live.setColStatic(index, column.Stat_ic); });
    reporting_.passOver([&] { live.setColLR(index, column.lR); });
    reporting_.passOver([&] { live.setColForTot(index, column.ForTot); });
    reporting_.passOver([&] { live.setColPercnt(index, column.PerCnt); });
    reporting_.passOver([&] { live.setColIndexKey(index, column.Index_Key); });
}

void SavedProperties::readRest(const PropertyBag& bag) {
    passEach(bag, saved::kReadLayout);
    reporting_.passOver(hooks_.layOut);
    passEach(bag, saved::kReadSections);
    passEach(bag, saved::kReadTitle);
    passEach(bag, saved::kReadRows);
    readFonts(bag);
    passEach(bag, saved::kReadStyles);
    children_.lbltemplate.Caption = state_.print.PrintCaption;
    children_.lblfilter.Caption = state_.print.PrintFilter;
    passEach(bag, saved::kReadBehaviour);
    passEach(bag, saved::kReadLast);
}

void SavedProperties::readFonts(const PropertyBag& bag) {
    static const std::vector<SavedKey> keys = savedFontKeys();
    for (const char* group : saved::kReadFontGroups) {
        const QString prefix = QString::fromLatin1(group);
        for (const SavedKey& key : keys)
            if (key.read.startsWith(prefix))
                reporting_.passOver([&] { readKey(bag, key); });
    }
}

} // namespace zkp
