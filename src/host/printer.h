#pragma once

#include <QString>

namespace zkp {

/// What is to be printed. It gains members as there is more to print.
struct PrintJob {
    QString Name; ///< the part of the control that prints, "chart"
};

/// The printer. This one lets go of what it is given.
class Printer {
public:
    virtual ~Printer() = default;

    virtual void print(const PrintJob& /*job*/) {}
};

} // namespace zkp
