#pragma once

namespace zkp {

/// Whether a spreadsheet is being written: selection handlers and drops wait then. Whoever writes one
/// writes it.
struct ExportState {
    bool ExportRunning = false;
};

} // namespace zkp
