#pragma once

namespace zkp {

/// The columns of the running account: the last of each kind, -1 when there is none. AccountColumns writes
/// it.
struct AccountState {
    short DebitColumn = -1;
    short CreditColumn = -1;
    short BalanceColumn = -1;
};

} // namespace zkp
