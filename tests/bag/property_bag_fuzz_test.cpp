#include "bag/property_bag_bytes.h"
#include "bag/property_bag_text.h"

#include "bag/crc32.h"
#include "bag/property_bag_corpus.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QtEndian>

#include <random>

namespace zkp {

namespace {

/// Damages the files of the corpus at random. ZKP_FUZZ_SECONDS makes each run longer than its two
/// seconds, ZKP_FUZZ_SEED repeats one.
class PropertyBagFuzz : public testing::Test {
protected:
    PropertyBagFuzz() {
        const int given = qEnvironmentVariableIntValue("ZKP_FUZZ_SECONDS");
        seconds_ = given > 0 ? given : 2;
        const bool hasSeed = qEnvironmentVariableIsSet("ZKP_FUZZ_SEED");
        seed_ = hasSeed ? static_cast<unsigned>(qEnvironmentVariableIntValue("ZKP_FUZZ_SEED"))
                        : std::random_device{}();
        random_.seed(seed_);
    }

    std::size_t below(std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_);
    }

    /// Cuts, turns, repeats, swaps or inserts a few bytes.
    QByteArray damaged(QByteArray bytes) {
        for (std::size_t step = below(4) + 1; step > 0; --step)
            damageOnce(bytes);
        return bytes;
    }

    /// Length and checksum that fit, so that the damage is met further inside.
    static QByteArray resealed(QByteArray bytes) {
        if (bytes.size() < 18)
            return bytes;
        qToLittleEndian(static_cast<std::uint32_t>(bytes.size() - 18), bytes.data() + 6);
        const std::uint32_t sum = crc32(QByteArrayView(bytes).chopped(4));
        qToLittleEndian(sum, bytes.data() + bytes.size() - 4);
        return bytes;
    }

    /// Until the time is over. `attempt` gets damaged bytes and tells whether they could be read.
    template <class Attempt>
    void run(const std::vector<test::CorpusFile>& files, Attempt attempt) {
        ASSERT_FALSE(files.empty());
        QElapsedTimer timer;
        timer.start();
        std::size_t tries = 0;
        while (timer.elapsed() < seconds_ * 1000 && !HasFailure()) {
            const QByteArray bytes = damaged(files[below(files.size())].bytes);
            ++tries;
            try {
                attempt(bytes);
            } catch (const Error& error) {
                EXPECT_EQ(error.number(), kErrInvalidFormat) << "seed " << seed_ << ": " << error.what();
            } catch (const std::exception& error) {
                ADD_FAILURE() << "seed " << seed_ << ": " << error.what() << " for " << bytes.toHex().data();
            }
        }
        std::printf("  %zu tries, seed %u\n", tries, seed_);
    }

    std::mt19937 random_;

private:
    void damageOnce(QByteArray& bytes) {
        const auto size = static_cast<std::size_t>(bytes.size());
        if (size == 0) {
            bytes.append(static_cast<char>(below(256)));
            return;
        }
        const auto at = static_cast<qsizetype>(below(size));
        const auto length = static_cast<qsizetype>(below(std::min<std::size_t>(size, 64)) + 1);
        static constexpr std::uint32_t kLies[] = {0,      1,          0x7F,       0xFF,
                                                  0xFFFF, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
        switch (below(6)) {
        case 0:
            bytes.truncate(at);
            break;
        case 1:
            bytes[at] = static_cast<char>(bytes[at] ^ (1 << below(8)));
            break;
        case 2:
            bytes[at] = static_cast<char>(below(256));
            break;
        case 3:
            bytes.insert(at, bytes.mid(static_cast<qsizetype>(below(size)), length));
            break;
        case 4:
            bytes.remove(at, length);
            break;
        default: {
            const std::uint32_t lie = kLies[below(std::size(kLies))];
            if (at + 4 <= bytes.size())
                qToLittleEndian(lie, bytes.data() + at);
        }
        }
    }

    int seconds_ = 0;
    unsigned seed_ = 0;
};

/// What was read must be a bag like any other.
void checkBag(const PropertyBag& bag) {
    EXPECT_EQ(bagFromBytes(bag.Contents()).Contents(), bag.Contents());
    EXPECT_EQ(bagFromText(bagText(bag)).Contents(), bag.Contents());
}

TEST_F(PropertyBagFuzz, DamagedBytesGiveTheOneErrorOrASoundBag) {
    run(test::corpus(QStringLiteral("bag")),
        [&](const QByteArray& bytes) { checkBag(bagFromBytes(below(8) == 0 ? bytes : resealed(bytes))); });
}

TEST_F(PropertyBagFuzz, DamagedTextGivesTheOneErrorOrASoundBag) {
    run(test::corpus(QStringLiteral("txt")), [](const QByteArray& text) { checkBag(bagFromText(text)); });
}

} // namespace

} // namespace zkp
