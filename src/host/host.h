#pragma once

#include "host/bell.h"
#include "host/dialogs.h"
#include "host/message_boxes.h"
#include "host/pending_events.h"
#include "host/pointer.h"
#include "host/printer.h"
#include "host/shell.h"

#include <memory>

namespace zkp {

/// The world around the control, in small services: the engine writes to the user through these and
/// nothing else. A host overrides those that it gives. A control asks for them once, when it is made; they
/// last as long as the host.
class Host {
public:
    /// What the host itself doesn't give is that of `others`, if any.
    explicit Host(std::shared_ptr<Host> others = {})
        : others_(std::move(others)) {}
    virtual ~Host() = default;
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    virtual MessageBoxes& boxes() { return others_ ? others_->boxes() : boxes_; }
    virtual StyleDialogs& styleDialogs() { return others_ ? others_->styleDialogs() : styleDialogs_; }
    virtual FileDialogs& fileDialogs() { return others_ ? others_->fileDialogs() : fileDialogs_; }
    virtual OwnDialogs& ownDialogs() { return others_ ? others_->ownDialogs() : ownDialogs_; }
    virtual Printer& printer() { return others_ ? others_->printer() : printer_; }
    virtual Shell& shell() { return others_ ? others_->shell() : shell_; }
    virtual Pointer& screenPointer() { return others_ ? others_->screenPointer() : pointer_; }
    virtual Bell& bell() { return others_ ? others_->bell() : bell_; }
    virtual PendingEvents& pendingEvents() { return others_ ? others_->pendingEvents() : pendingEvents_; }

private:
    std::shared_ptr<Host> others_;
    MessageBoxes boxes_;
    StyleDialogs styleDialogs_;
    FileDialogs fileDialogs_;
    OwnDialogs ownDialogs_;
    Printer printer_;
    Shell shell_;
    Pointer pointer_;
    Bell bell_;
    PendingEvents pendingEvents_;
};

} // namespace zkp
