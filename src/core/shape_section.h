#pragma once

namespace zkp {

/// What a property belongs to of the shape that a user gives a report. None: it is written by loads, hosts
/// and menus, and is no part of the shape.
enum class ShapeSection {
    None,
    Report, ///< the surface as a whole, and how the report behaves
    Heading,
    GroupFactors,
    Details,
    SubTotals,
    Totals,
    Title,
    CompanyBlock,
    Paper,
};

} // namespace zkp
