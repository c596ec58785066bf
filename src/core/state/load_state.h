#pragma once

#include "core/properties.def"

namespace zkp {

/// How far a load has come. The parts of a load tell it by name.
class LoadState {
public:
#define ZKP_STORED(Type, Name, Key, Subject, Section, ...) Type Name = __VA_ARGS__;
#define ZKP_SILENT(Type, Name, Subject, ...) Type Name = __VA_ARGS__;
    ZKP_LOAD_ROWS(ZKP_STORED, ZKP_STORED, ZKP_SILENT, ZKP_SILENT)
#undef ZKP_STORED
#undef ZKP_SILENT

    /// The surface has room for so many records.
    void makeRoom(int records) {
        rowCapacity_ = records + 1;
        RecCount = records;
    }
    void addRow() { ++rowCapacity_; }
    void dropRow() { --rowCapacity_; }
    /// Records and the rows that were made among them, and one more.
    int rowCapacity() const { return rowCapacity_; }

    /// A report with sums was met. Never taken back, as wanted.
    void needTotals() { totalsNeeded_ = true; }
    bool areTotalsNeeded() const { return totalsNeeded_; }

    void beginTotals() { isFinished_ = false; }
    void finishTotals() { isFinished_ = true; }
    /// The totals of the latest load are written.
    bool isFinished() const { return isFinished_; }

private:
    bool totalsNeeded_ = false;
    bool isFinished_ = false;
    int rowCapacity_ = 0;
};

} // namespace zkp
