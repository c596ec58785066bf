#include "bag/property_bag_bytes.h"

#include "bag/crc32.h"
#include "bag/property_bag_corpus.h"
#include "error_of.h"
#include "print_qt.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtEndian>

namespace zkp {

namespace {

using namespace Qt::StringLiterals;
using test::errorNumber;
using test::everyType;

QByteArray hex(const char* digits) {
    return QByteArray::fromHex(digits);
}

/// The entries between the header that fits them and their checksum.
QByteArray sealed(const QByteArray& entries, std::uint32_t count) {
    QByteArray bytes = hex("5A4B5042 0100 00000000 00000000") + entries;
    qToLittleEndian(static_cast<std::uint32_t>(entries.size()), bytes.data() + 6);
    qToLittleEndian(count, bytes.data() + 10);
    QByteArray sum(4, '\0');
    qToLittleEndian(crc32(bytes), sum.data());
    return bytes + sum;
}

std::uint32_t errorOf(const QByteArray& bytes) {
    return errorNumber([&] { bagFromBytes(bytes); });
}

/// In KiB: the most address space that the process has had so far.
qint64 peakOfMemory() {
    QFile status(u"/proc/self/status"_s);
    EXPECT_TRUE(status.open(QIODevice::ReadOnly));
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmPeak:"))
            return line.mid(7).trimmed().split(' ').value(0).toLongLong();
    }
    ADD_FAILURE() << "no VmPeak";
    return 0;
}

TEST(PropertyBagBytes, TheChecksumIsThatOfZipFiles) {
    EXPECT_EQ(crc32(QByteArrayView("123456789")), 0xCBF43926u);
    EXPECT_EQ(crc32(QByteArrayView("")), 0u);
    EXPECT_EQ(crc32(QByteArrayView("a")), 0xE8B7BE43u);
    EXPECT_EQ(crc32(QByteArrayView("The quick brown fox jumps over the lazy dog")), 0x414FA339u);
}

TEST(PropertyBagBytes, AnEmptyBagIsHeaderAndChecksum) {
    EXPECT_EQ(bagBytes({}), hex("5A4B5042 0100 00000000 00000000 D5D75E23"));
    EXPECT_TRUE(bagFromBytes(bagBytes({})).entries().empty());
}

TEST(PropertyBagBytes, EachTypeHasItsOwnForm) {
    EXPECT_EQ(bagBytes(everyType()), hex("5A4B5042 0100 AF000000 08000000"
                                         "0400 42006F006C006400 01 02000000 FFFF"
                                         "0700 430061007000740069006F006E00 06 04000000 B103AC20"
                                         "0600 43006F006C006F0075007200 07 04000000 05000080"
                                         "0400 46006F006E007400 08 0D000000 0000000000002140 05 58007900"
                                         "0500 4C006500760065006C00 02 02000000 FEFF"
                                         "0400 52006F0077007300 03 04000000 04030201"
                                         "0400 530069007A006500 04 04000000 00000041"
                                         "0500 57006900640074006800 05 08000000 0000000000889340"
                                         "8E64E10A"));
}

TEST(PropertyBagBytes, TheDocumentedExampleStandsAsItIs) {
    PropertyBag bag;
    bag.WriteProperty(u"B"_s, u"α"_s);
    bag.WriteProperty(u"A"_s, true);
    EXPECT_EQ(bagBytes(bag), hex("5A4B5042 0100 16000000 02000000"
                                 "0100 4100 01 02000000 FFFF"
                                 "0100 4200 06 02000000 B103"
                                 "7D2D5E82"));
}

TEST(PropertyBagBytes, NoBytesAreAnEmptyBag) {
    EXPECT_TRUE(bagFromBytes({}).entries().empty());
    EXPECT_TRUE(bagFromBytes(QByteArray("")).entries().empty());
}

TEST(PropertyBagBytes, CutShortAtAnyByteTheyAreRefused) {
    const QByteArray whole = bagBytes(everyType());
    for (qsizetype size = 1; size < whole.size(); ++size)
        EXPECT_EQ(errorOf(whole.first(size)), kErrInvalidFormat) << size;
}

TEST(PropertyBagBytes, WithAnySingleBitTurnedTheyAreRefused) {
    const QByteArray whole = bagBytes(everyType());
    for (qsizetype bit = 0; bit < whole.size() * 8; ++bit) {
        QByteArray damaged = whole;
        damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ (1 << (bit % 8)));
        EXPECT_EQ(errorOf(damaged), kErrInvalidFormat) << "bit " << bit;
    }
}

TEST(PropertyBagBytes, WithBytesBehindThemTheyAreRefused) {
    EXPECT_EQ(errorOf(bagBytes(everyType()) + '\0'), kErrInvalidFormat);
}

TEST(PropertyBagBytes, EntriesInAnotherOrderAreRead) {
    const PropertyBag bag = bagFromBytes(sealed(hex("0100 4200 01 02000000 FFFF"
                                                    "0100 4100 01 02000000 0000"),
                                                2));
    EXPECT_EQ(bag.ReadProperty(u"b", false), BagValue(true));
    EXPECT_EQ(bag.ReadProperty(u"a", true), BagValue(false));
}

TEST(PropertyBagBytes, EntriesThatBreakTheFormAreRefusedThoughTheChecksumFits) {
    const QByteArray good = hex("0100 4100 01 02000000 FFFF");
    EXPECT_EQ(errorOf(sealed(good, 1)), 0u);
    EXPECT_EQ(errorOf(sealed(good, 0)), kErrInvalidFormat) << "more than are counted";
    EXPECT_EQ(errorOf(sealed(good, 2)), kErrInvalidFormat) << "fewer than are counted";
    EXPECT_EQ(errorOf(sealed(good + hex("0100 6100 01 02000000 0000"), 2)), kErrInvalidFormat) << "key twice";
    EXPECT_EQ(errorOf(sealed(hex("0000 01 04000000 FFFFFFFF"), 1)), kErrInvalidFormat) << "empty key";
    EXPECT_EQ(errorOf(sealed(hex("0100 4100 00 02000000 FFFF"), 1)), kErrInvalidFormat) << "type 0";
    EXPECT_EQ(errorOf(sealed(hex("0100 4100 09 02000000 FFFF"), 1)), kErrInvalidFormat) << "type 9";
    EXPECT_EQ(errorOf(sealed(hex("0100 4100 01 02000000 0100"), 1)), kErrInvalidFormat) << "Boolean 1";
    EXPECT_EQ(errorOf(sealed(hex("0100 4100 01 03000000 FFFF00"), 1)), kErrInvalidFormat) << "too long";
    EXPECT_EQ(errorOf(sealed(hex("0100 4100 03 02000000 FFFF"), 1)), kErrInvalidFormat) << "too short";
    EXPECT_EQ(errorOf(sealed(hex("0100 4100 06 03000000 410042"), 1)), kErrInvalidFormat)
        << "half a character";
    EXPECT_EQ(errorOf(sealed(hex("0100 4100 08 09000000 0000000000002040 10"), 1)), kErrInvalidFormat)
        << "font style";
    EXPECT_EQ(errorOf(sealed(hex("0100 4100 08 08000000 0000000000002040"), 1)), kErrInvalidFormat)
        << "font without style";
}

TEST(PropertyBagBytes, AValueMayNotReachIntoTheNextOneOrIntoTheChecksum) {
    EXPECT_EQ(errorOf(sealed(hex("0100 4100 06 04000000 4100"), 1)), kErrInvalidFormat);
    EXPECT_EQ(errorOf(sealed(hex("0100 4100 06 06000000 4100"
                                 "0100 4200 01 02000000 FFFF"),
                             2)),
              kErrInvalidFormat);
    EXPECT_EQ(errorOf(sealed(hex("0500 4100 01 02000000"), 1)), kErrInvalidFormat);
}

TEST(PropertyBagBytes, AnotherVersionIsRefusedByItsNumber) {
    for (const char* name : {"bad_version_2.bag", "bad_version_0.bag"}) {
        try {
            bagFromBytes(test::corpusFile(name));
            ADD_FAILURE() << name;
        } catch (const Error& error) {
            EXPECT_EQ(error.number(), kErrInvalidFormat);
            EXPECT_TRUE(error.description().contains(QLatin1String(name).sliced(12, 1))) << name;
        }
    }
}

TEST(PropertyBagBytes, OtherBytesAreCalledForeign) {
    try {
        bagFromBytes(test::corpusFile("bad_mark.bag"));
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), kErrInvalidFormat);
        EXPECT_EQ(error.description(), u"These bytes are not saved properties of this system"_s);
    }
}

TEST(PropertyBagBytes, LengthsThatLieTakeNoMemory) {
    const qint64 before = peakOfMemory();
    EXPECT_EQ(errorOf(test::corpusFile("bad_body_too_long.bag")), kErrInvalidFormat);
    EXPECT_EQ(errorOf(sealed(hex("0100 4100 01 02000000 FFFF"), 0xFFFFFFFF)), kErrInvalidFormat);
    EXPECT_EQ(errorOf(sealed(hex("FFFF 4100 01 02000000 FFFF"), 1)), kErrInvalidFormat);
    EXPECT_EQ(errorOf(sealed(hex("0100 4100 06 FFFFFFFF FFFF"), 1)), kErrInvalidFormat);
    EXPECT_EQ(errorOf(sealed(hex("0100 4100 08 FEFFFFFF FFFF"), 1)), kErrInvalidFormat);
    EXPECT_LT(peakOfMemory() - before, 64 * 1024);
}

TEST(PropertyBagBytes, TheCorpusIsReadOrRefusedAsItsNamesSay) {
    const auto files = test::corpus(u"bag"_s);
    EXPECT_GE(files.size(), 25u);
    for (const test::CorpusFile& file : files)
        EXPECT_EQ(errorOf(file.bytes), file.isGood ? 0u : kErrInvalidFormat) << qPrintable(file.name);
}

TEST(PropertyBagBytes, AnOldBagComesBackWithItsColumns) {
    const PropertyBag bag = bagFromBytes(test::corpusFile("good_columns.bag"));
    EXPECT_EQ(bag.entries().size(), 12u * 5 + 7);
    EXPECT_EQ(bag.ReadProperty(u"colcaption11", 0), BagValue(u"Στήλη 11"_s));
    EXPECT_EQ(bag.ReadProperty(u"ColWidth0", 0), BagValue(900.0));
    EXPECT_EQ(bag.ReadProperty(u"FontSize", 0), BagValue(8.25f));
}

} // namespace

} // namespace zkp
