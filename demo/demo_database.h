#pragma once

#include <QString>

#include <cstdint>

namespace zkp::demo {

/// What demonstration database to make.
struct Options {
    QString file;           ///< where it goes; must not exist yet
    int policies = 20'000;  ///< rows of POLICIES, 0 or more; the other tables follow in proportion
    std::uint32_t seed = 1; ///< the same seed and number give the same data on every platform
};

/// Makes the demonstration database of an insurance office: policies with their agents, branches,
/// products, customers and claims, the views that reports read, a dictionary for each of them, and
/// the settings, template, user and procedure tables.
///
/// Everything is written to a temporary name beside `file`, which takes its own name only once it is
/// complete: whatever happens, no half-made `file` is ever left. Error kErrInvalidCall for an empty
/// name or a negative number, kErrDatabase when the file exists or cannot be written.
void makeDatabase(const Options& options);

} // namespace zkp::demo
