#pragma once

#include <QString>

namespace zkp {

/// The system's shell. This one has no program for any file.
class Shell {
public:
    virtual ~Shell() = default;

    /// Hands a file over; the result is above 32 on success, the shell's code otherwise.
    virtual int shellOpen(const QString& /*file*/, const QString& /*verb*/, const QString& /*parameters*/,
                          const QString& /*directory*/, int /*windowMode*/) {
        return kNoProgram;
    }

private:
    static constexpr int kNoProgram = 31;
};

} // namespace zkp
