#pragma once

#include "host/host.h"

namespace zkp {

/// A host that is each of its services itself, for one that answers most of them.
class WholeHost : public Host,
                  public MessageBoxes,
                  public StyleDialogs,
                  public FileDialogs,
                  public OwnDialogs,
                  public Printer,
                  public Shell,
                  public Pointer,
                  public Bell,
                  public PendingEvents {
public:
    MessageBoxes& boxes() override { return *this; }
    StyleDialogs& styleDialogs() override { return *this; }
    FileDialogs& fileDialogs() override { return *this; }
    OwnDialogs& ownDialogs() override { return *this; }
    Printer& printer() override { return *this; }
    Shell& shell() override { return *this; }
    Pointer& screenPointer() override { return *this; }
    Bell& bell() override { return *this; }
    PendingEvents& pendingEvents() override { return *this; }
};

} // namespace zkp
