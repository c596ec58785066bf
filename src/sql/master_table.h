#pragma once

#include "sql/builder_inputs.h"

namespace zkp {

/// The report's master table, its key and its standing condition, as table `Reports` has them.
class MasterTableLookup {
public:
    MasterTableLookup(BuilderInputs& inputs, MasterTableState& master)
        : inputs_(inputs)
        , master_(master) {}

    /// Sets `MasterTable`, `RKeyname` and `MasterFilter`. A source without a row there has no master
    /// table and no key; `MasterFilter` then stays as it was, as wanted. A failure shows a box.
    void FindMaster();

private:
    BuilderInputs& inputs_;
    MasterTableState& master_;
};

} // namespace zkp
