#pragma once

#include "core/properties.def"

#include <QString>

namespace zkp {

/// The template that is open. TemplateStore writes it.
struct TemplateState {
#define ZKP_STORED(Type, Name, Key, Subject, Section, ...) Type Name = __VA_ARGS__;
#define ZKP_SILENT(Type, Name, Subject, ...) Type Name = __VA_ARGS__;
    ZKP_TEMPLATE_ROWS(ZKP_STORED, ZKP_STORED, ZKP_SILENT, ZKP_SILENT)
#undef ZKP_STORED
#undef ZKP_SILENT
};

} // namespace zkp
