#pragma once

#include "bag/property_bag.h"

namespace zkp {

/// The byte form of a bag, as docs/template-format.md tells it byte by byte. The same on every machine.
QByteArray bagBytes(const PropertyBag& bag);

/// The bag that the bytes hold; an empty one for no bytes. Error kErrInvalidFormat for anything that
/// `bagBytes` did not write. Takes memory in
/// proportion to the bytes there are, whatever they say.
PropertyBag bagFromBytes(QByteArrayView bytes);

} // namespace zkp
