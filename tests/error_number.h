#pragma once

#include "base/error.h"

namespace zkp::test {

/// The number of the Error that the step throws; 0 when it throws none.
template <class Step>
std::uint32_t errorNumber(Step step) {
    try {
        step();
    } catch (const Error& error) {
        return error.number();
    }
    return 0;
}

} // namespace zkp::test
