#pragma once

namespace zkp {

/// Codes of `Sort`.
enum SurfaceSort {
    kSortNone = 0,
    kSortGenericUp = 1,
    kSortGenericDown = 2,
    kSortNumericUp = 3,
    kSortNumericDown = 4,
    kSortTextBlindUp = 5,
    kSortTextBlindDown = 6,
    kSortTextUp = 7,
    kSortTextDown = 8,
    kSortCustom = 9,
};

} // namespace zkp
