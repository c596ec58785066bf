#pragma once

namespace zkp::test {

/// While it lives, databases that are opened stand on a disk that can be made to fail.
class FailingDisk {
public:
    enum class Failure {
        PowerLost, ///< a write gets half way, and nothing reaches the disk any more
        DiskFull,  ///< files can't grow any more
    };

    FailingDisk();
    ~FailingDisk();
    FailingDisk(const FailingDisk&) = delete;
    FailingDisk& operator=(const FailingDisk&) = delete;

    /// Fails once so many changes (writes, cuts, deletions, waits for the disk) have gone well from now on.
    void failAt(int change, Failure failure);
};

} // namespace zkp::test
