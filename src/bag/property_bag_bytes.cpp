#include "bag/property_bag_bytes.h"

#include "bag/crc32.h"
#include "base/error.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <bit>
#include <limits>

namespace zkp {

namespace {

constexpr std::array<char, 4> kMark{'Z', 'K', 'P', 'B'};
constexpr std::uint16_t kVersion = 1;
constexpr qsizetype kVersionEnd = 6; ///< mark and version stand here in every version
constexpr qsizetype kHeaderSize = 14;
constexpr qsizetype kChecksumSize = 4;
constexpr qsizetype kEntryFrameSize = 7; ///< an entry without its key and its value
constexpr qsizetype kSmallestEntry = kEntryFrameSize + 2;

enum class Type : std::uint8_t {
    Boolean = 1,
    Int16 = 2,
    Int32 = 3,
    Single = 4,
    Double = 5,
    Text = 6,
    Colour = 7,
    Font = 8,
};

constexpr qsizetype kFontFrameSize = 9; ///< a font without its name
enum FontFlag : std::uint8_t { kBold = 1, kItalic = 2, kUnderline = 4, kStrikethru = 8, kAllFlags = 15 };

// ---- writing

/// Writes into bytes that are known to have room.
class ByteWriter {
public:
    explicit ByteWriter(char* at)
        : at_(at) {}

    template <class Integer>
    void put(Integer number) {
        qToLittleEndian(number, at_);
        at_ += sizeof(Integer);
    }
    void put(Type type) { put(static_cast<std::uint8_t>(type)); }
    void put(double number) { put(std::bit_cast<std::uint64_t>(number)); }
    void put(float number) { put(std::bit_cast<std::uint32_t>(number)); }
    void put(const std::array<char, 4>& mark) { at_ = std::copy(mark.begin(), mark.end(), at_); }
    void put(const QString& text) {
        qToLittleEndian<char16_t>(text.utf16(), text.size(), at_);
        at_ += text.size() * 2;
    }

private:
    char* at_;
};

Type typeOf(const BagValue& value) {
    constexpr std::array types{Type::Boolean, Type::Int16, Type::Int32,  Type::Single,
                               Type::Double,  Type::Text,  Type::Colour, Type::Font};
    static_assert(types.size() == std::variant_size_v<BagValue>);
    return types[value.index()];
}

qsizetype sizeOf(const BagValue& value) {
    return std::visit(
        []<class T>(const T& held) -> qsizetype {
            if constexpr (std::is_same_v<T, bool>)
                return sizeof(std::int16_t);
            else if constexpr (std::is_same_v<T, QString>)
                return held.size() * 2;
            else if constexpr (std::is_same_v<T, BagFont>)
                return kFontFrameSize + held.name.size() * 2;
            else
                return sizeof(T);
        },
        value);
}

void putFont(ByteWriter& out, const BagFont& font) {
    out.put(font.size);
    out.put(static_cast<std::uint8_t>((font.bold ? kBold : 0) | (font.italic ? kItalic : 0) |
                                      (font.underline ? kUnderline : 0) |
                                      (font.strikethru ? kStrikethru : 0)));
    out.put(font.name);
}

void putEntry(ByteWriter& out, const PropertyBag::Entry& entry) {
    out.put(static_cast<std::uint16_t>(entry.key.size()));
    out.put(entry.key);
    out.put(typeOf(entry.value));
    out.put(static_cast<std::uint32_t>(sizeOf(entry.value)));
    std::visit(
        [&]<class T>(const T& held) {
            if constexpr (std::is_same_v<T, bool>)
                out.put(static_cast<std::int16_t>(held ? -1 : 0));
            else if constexpr (std::is_same_v<T, BagFont>)
                putFont(out, held);
            else
                out.put(held);
        },
        entry.value);
}

constexpr std::uint64_t kBeyondAscii = 0x8080808080808080u;

/// Eight units, the first one highest. Beyond ASCII they tell no more than that.
std::uint64_t packed(QStringView units) {
    std::uint64_t bytes = 0;
    qsizetype shift = 56;
    for (const QChar unit : units) {
        if (unit.unicode() >= 0x80)
            return bytes | std::uint64_t{0xFF} << shift;
        bytes |= std::uint64_t{unit.unicode()} << shift;
        shift -= 8;
    }
    return bytes;
}

/// An entry with the first sixteen units of its key, so that most are put in order without the key.
struct Ordered {
    std::uint64_t first = 0;
    std::uint64_t second = 0;
    const PropertyBag::Entry* entry;

    explicit Ordered(const PropertyBag::Entry& from)
        : entry(&from) {
        const QStringView key(from.key);
        first = packed(key.first(std::min<qsizetype>(key.size(), 8)));
        if (key.size() > 8 && (first & kBeyondAscii) == 0)
            second = packed(key.sliced(8, std::min<qsizetype>(key.size() - 8, 8)));
    }
    bool operator<(const Ordered& other) const {
        if (first != other.first)
            return first < other.first;
        return second != other.second ? second < other.second : entry->key < other.entry->key;
    }
};

std::vector<Ordered> inOrder(const PropertyBag& bag) {
    std::vector<Ordered> entries(bag.entries().begin(), bag.entries().end());
    // By merging: a control writes its keys column by column, in runs that are nearly in order.
    std::stable_sort(entries.begin(), entries.end());
    return entries;
}

// ---- reading

[[noreturn]] void damaged(qsizetype at, const char* what) {
    throw Error(
        kErrInvalidFormat,
        QStringLiteral("The saved properties are damaged at byte %1: %2").arg(at).arg(QLatin1String(what)));
}

/// Gives what stands in the bytes one after the other, and never reads beyond their end.
class ByteReader {
public:
    ByteReader(QByteArrayView bytes, qsizetype from, qsizetype end)
        : bytes_(bytes)
        , at_(from)
        , end_(end) {}

    qsizetype at() const { return at_; }
    qsizetype left() const { return end_ - at_; }

    template <class Integer>
    Integer take() {
        return qFromLittleEndian<Integer>(skip(sizeof(Integer)));
    }
    QString takeText(qsizetype units) {
        const char* from = skip(units * 2);
        QString text(units, Qt::Uninitialized);
        qFromLittleEndian<char16_t>(from, units, text.data());
        return text;
    }

private:
    const char* skip(qsizetype size) {
        if (size > left())
            damaged(at_, "they end too early");
        const char* from = bytes_.data() + at_;
        at_ += size;
        return from;
    }

    QByteArrayView bytes_;
    qsizetype at_;
    qsizetype end_;
};

bool takeBoolean(ByteReader& in) {
    const qsizetype at = in.at();
    const auto number = in.take<std::int16_t>();
    if (number != 0 && number != -1)
        damaged(at, "a Boolean is neither 0 nor -1");
    return number == -1;
}

QString takeRestAsText(ByteReader& in) {
    if (in.left() % 2 != 0)
        damaged(in.at(), "a text has half a character");
    return in.takeText(in.left() / 2);
}

BagFont takeFont(ByteReader& in) {
    BagFont font;
    font.size = std::bit_cast<double>(in.take<std::uint64_t>());
    const qsizetype at = in.at();
    const auto flags = in.take<std::uint8_t>();
    if ((flags & ~kAllFlags) != 0)
        damaged(at, "a font has an unknown style");
    font.bold = (flags & kBold) != 0;
    font.italic = (flags & kItalic) != 0;
    font.underline = (flags & kUnderline) != 0;
    font.strikethru = (flags & kStrikethru) != 0;
    font.name = takeRestAsText(in);
    return font;
}

BagValue takeValue(ByteReader& in, Type type) {
    switch (type) {
    case Type::Boolean:
        return takeBoolean(in);
    case Type::Int16:
        return in.take<std::int16_t>();
    case Type::Int32:
        return in.take<std::int32_t>();
    case Type::Single:
        return std::bit_cast<float>(in.take<std::uint32_t>());
    case Type::Double:
        return std::bit_cast<double>(in.take<std::uint64_t>());
    case Type::Text:
        return takeRestAsText(in);
    case Type::Colour:
        return in.take<Color>();
    case Type::Font:
        return takeFont(in);
    }
    damaged(in.at(), "a value has an unknown type");
}

void takeEntry(ByteReader& in, QByteArrayView bytes, PropertyBag& bag) {
    const qsizetype start = in.at();
    const QString key = in.takeText(in.take<std::uint16_t>());
    if (key.isEmpty())
        damaged(start, "a key is empty");
    const auto type = static_cast<Type>(in.take<std::uint8_t>());
    const qsizetype size = in.take<std::uint32_t>();
    if (size > in.left())
        damaged(in.at(), "a value goes beyond the end");
    ByteReader valueIn(bytes, in.at(), in.at() + size);
    BagValue value = takeValue(valueIn, type);
    if (valueIn.left() != 0)
        damaged(valueIn.at(), "a value is longer than its type");
    in = ByteReader(bytes, in.at() + size, in.at() + in.left());
    if (!bag.add(key, std::move(value)))
        damaged(start, "a key stands there twice");
}

/// Mark, version, length and checksum.
void checkFrame(QByteArrayView bytes) {
    if (!bytes.startsWith(QByteArrayView(kMark.data(), kMark.size())))
        throw Error(kErrInvalidFormat, QStringLiteral("These bytes are not saved properties of this system"));
    ByteReader in(bytes, kMark.size(), bytes.size());
    const auto version = in.take<std::uint16_t>();
    if (version != kVersion) {
        throw Error(kErrInvalidFormat, QStringLiteral("The saved properties have form %1; this version reads "
                                                      "form %2")
                                           .arg(version)
                                           .arg(kVersion));
    }
    static_assert(kMark.size() + sizeof(version) == kVersionEnd);
    const qsizetype body = in.take<std::uint32_t>();
    if (body != bytes.size() - kHeaderSize - kChecksumSize)
        damaged(kVersionEnd, "they are not as long as they say");
    const QByteArrayView checked = bytes.chopped(kChecksumSize);
    if (crc32(checked) != qFromLittleEndian<std::uint32_t>(checked.end()))
        damaged(checked.size(), "the checksum is not theirs");
}

} // namespace

QByteArray bagBytes(const PropertyBag& bag) {
    qsizetype body = 0;
    for (const PropertyBag::Entry& entry : bag.entries())
        body += kEntryFrameSize + entry.key.size() * 2 + sizeOf(entry.value);
    const qsizetype size = kHeaderSize + body + kChecksumSize;
    if (size > std::numeric_limits<std::int32_t>::max())
        throw Error(kErrOverflow, QStringLiteral("The saved properties are too long"));

    QByteArray bytes(size, Qt::Uninitialized);
    ByteWriter out(bytes.data());
    out.put(kMark);
    out.put(kVersion);
    out.put(static_cast<std::uint32_t>(body));
    out.put(static_cast<std::uint32_t>(bag.entries().size()));
    for (const Ordered& each : inOrder(bag))
        putEntry(out, *each.entry);
    out.put(crc32(QByteArrayView(bytes).chopped(kChecksumSize)));
    return bytes;
}

PropertyBag bagFromBytes(QByteArrayView bytes) {
    PropertyBag bag;
    if (bytes.isEmpty())
        return bag;
    checkFrame(bytes);
    const qsizetype end = bytes.size() - kChecksumSize;
    const auto count = qFromLittleEndian<std::uint32_t>(bytes.data() + kHeaderSize - sizeof(std::uint32_t));
    if (count > static_cast<std::uint64_t>((end - kHeaderSize) / kSmallestEntry))
        damaged(kHeaderSize - static_cast<qsizetype>(sizeof(count)),
                "they are said to be more than there are");
    ByteReader in(bytes, kHeaderSize, end);
    bag.reserve(count);
    for (std::uint32_t i = 0; i < count; ++i)
        takeEntry(in, bytes, bag);
    if (in.left() != 0)
        damaged(in.at(), "something stands behind the last of them");
    return bag;
}

} // namespace zkp
