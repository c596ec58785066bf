#pragma once

#include <QByteArrayView>

#include <cstdint>

namespace zkp {

/// The checksum of zip and PNG files: polynomial 0xEDB88320 (reflected), start and end inverted.
std::uint32_t crc32(QByteArrayView bytes);

} // namespace zkp
