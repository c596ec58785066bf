#pragma once

#include "base/error.h"

namespace zkp::test {

/// The Error that a step throws; one of number 0 when it throws none.
template <class Step>
Error errorOf(Step&& step) {
    try {
        step();
    } catch (const Error& error) {
        return error;
    }
    return Error(0, QString());
}

template <class Step>
std::uint32_t errorNumber(Step&& step) {
    return errorOf(step).number();
}

template <class Step>
QString errorText(Step&& step) {
    return errorOf(step).description();
}

} // namespace zkp::test
