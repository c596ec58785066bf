#pragma once

#include "core/state/lifetime.h"
#include "host/dialogs.h"
#include "interaction/interface_drawing.h"

#include <QVariant>

#include <functional>

namespace zkp {

/// Lets the user choose colours and fonts of the report's sections: 0 headings, 1 group factors, 2 details,
/// 3 subtotals, 4 totals, 5 title, 6 company block. A cancelled dialog, and a section that has no such
/// property, change nothing.
class SectionStyles {
public:
    /// The control's properties by their names, with all that their setters do.
    struct Properties {
        std::function<QVariant(const QString&)> read;
        std::function<void(const QString&, const QVariant&)> write;
    };

    SectionStyles(const Lifetime& lifetime, InterfaceDrawing& drawing, StyleDialogs& dialogs)
        : lifetime_(lifetime)
        , drawing_(drawing)
        , dialogs_(dialogs) {}

    void connect(Properties properties) { properties_ = std::move(properties); }

    /// `what`: 0 the background, 1 the text.
    void ChooseSectionStyle(int section, int what);
    /// Sections 0 to 4.
    void ChooseSectionFont(int section);

private:
    void write(const QString& name, const QVariant& value) const;

    const Lifetime& lifetime_;
    InterfaceDrawing& drawing_;
    StyleDialogs& dialogs_;
    Properties properties_;
};

} // namespace zkp
