#include "bag/crc32.h"

#include <QtEndian>

#include <array>

namespace zkp {

namespace {

using Tables = std::array<std::array<std::uint32_t, 256>, 8>;

/// Table n takes a byte that n further bytes follow, so that eight bytes are taken in one step.
constexpr Tables makeTables() {
    Tables tables{};
    for (std::uint32_t byte = 0; byte < 256; ++byte) {
        std::uint32_t crc = byte;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320u : 0);
        tables[0][byte] = crc;
    }
    for (std::size_t n = 1; n < tables.size(); ++n) {
        for (std::size_t byte = 0; byte < 256; ++byte) {
            const std::uint32_t before = tables[n - 1][byte];
            tables[n][byte] = (before >> 8) ^ tables[0][before & 0xFF];
        }
    }
    return tables;
}

constexpr Tables kTables = makeTables();

} // namespace

std::uint32_t crc32(QByteArrayView bytes) {
    std::uint32_t crc = 0xFFFFFFFFu;
    const auto* at = reinterpret_cast<const uchar*>(bytes.data());
    const auto* end = at + bytes.size();
    for (; end - at >= 8; at += 8) {
        const std::uint32_t low = crc ^ qFromLittleEndian<std::uint32_t>(at);
        const auto high = qFromLittleEndian<std::uint32_t>(at + 4);
        crc = kTables[7][low & 0xFF] ^ kTables[6][(low >> 8) & 0xFF] ^ kTables[5][(low >> 16) & 0xFF] ^
              kTables[4][low >> 24] ^ kTables[3][high & 0xFF] ^ kTables[2][(high >> 8) & 0xFF] ^
              kTables[1][(high >> 16) & 0xFF] ^ kTables[0][high >> 24];
    }
    for (; at != end; ++at)
        crc = (crc >> 8) ^ kTables[0][(crc ^ *at) & 0xFF];
    return ~crc;
}

} // namespace zkp
