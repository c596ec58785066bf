#pragma once

#include "core/events.h"

namespace zkp::script {

// The members of each argument object by their names: visit(arguments, f) calls f(name, member).

template <class F>
void visit(CompareArgs& e, F f) {
    f("Row1", e.Row1);
    f("Row2", e.Row2);
    f("Cmp", e.Cmp);
}

template <class F>
void visit(KeyArgs& e, F f) {
    f("KeyCode", e.KeyCode);
    f("Shift", e.Shift);
}

template <class F>
void visit(KeyPressArgs& e, F f) {
    f("KeyAscii", e.KeyAscii);
}

template <class F>
void visit(MouseArgs& e, F f) {
    f("Button", e.Button);
    f("Shift", e.Shift);
    f("X", e.X);
    f("Y", e.Y);
}

template <class F>
void visit(ColumnArgs& e, F f) {
    f("WhatCol", e.WhatCol);
}

template <class F>
void visit(CellArgs& e, F f) {
    f("WhatRow", e.WhatRow);
    f("WhatCol", e.WhatCol);
}

template <class F>
void visit(FieldArgs& e, F f) {
    f("WhatField", e.WhatField);
}

template <class F>
void visit(RetrieveRowArgs& e, F f) {
    f("rw", e.rw);
    f("rsrc", e.rsrc);
}

template <class F>
void visit(PropertyArgs& e, F f) {
    f("name", e.name);
}

} // namespace zkp::script
