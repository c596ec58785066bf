#pragma once

#include "template/saved_keys.h"

// The few words that the tables of saved keys are written in.

namespace zkp::saved {

using enum SavedType;

inline const SavedDefault always{SavedDefault::Kind::None};
inline const SavedDefault never{SavedDefault::Kind::None};
inline const SavedDefault current{SavedDefault::Kind::Current};
inline const SavedDefault currentPlusOne{SavedDefault::Kind::OneMoreThanCurrent};
inline const SavedDefault currentFixedRows{SavedDefault::Kind::CurrentFixedRows};

inline SavedDefault sys(std::uint8_t index) {
    return BagValue(systemColor(index));
}
inline SavedDefault is(bool value) {
    return BagValue(value);
}
inline SavedDefault number(std::int32_t value) {
    return BagValue(value);
}
inline SavedDefault text(const char16_t* value) {
    return BagValue(QString::fromUtf16(value));
}

} // namespace zkp::saved

#define ZKP_GRID(Name) saved::surface<&GridSurface::Name, &GridSurface::set##Name>()
#define ZKP_LOOK(Name) saved::look<&GridSurface::Look::Name>()
#define ZKP_MEMBER(Name) saved::member<&saved::places::Name>()
#define ZKP_COLUMN(Name) saved::column<&Column::Name>()
