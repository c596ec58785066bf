#pragma once

#include "menu/menu_bar.h"

#include <vector>

namespace zkp {

/// The bands' names. That of the context menu begins with a blank, as wanted.
namespace bands {
inline constexpr char16_t kBar[] = u"BndTemplate"; ///< stays on screen
inline constexpr char16_t kContext[] = u" mnuChooceObject";
inline constexpr char16_t kColumn[] = u"mnuColumn";
inline constexpr char16_t kFormat[] = u"mnuFormat";
inline constexpr char16_t kTemplate[] = u"mnuTemplate";
inline constexpr char16_t kGraph[] = u"mnuGraph";
inline constexpr char16_t kBackColor[] = u"mnuBackColor";
inline constexpr char16_t kForeColor[] = u"mnuForeColor";
inline constexpr char16_t kFonts[] = u"mnuFonts";
inline constexpr char16_t kChart[] = u"BndGraph";
inline constexpr char16_t kSort[] = u"MNUSORT";
} // namespace bands

/// One row: a tool as it is at the start, and the bands that it stands in.
struct MenuRow {
    Tool tool;
    std::vector<const char16_t*> bands;
};

/// The bands in their order.
const std::vector<const char16_t*>& menuBandNames();

/// All tools. The rows' order is that of the tools in each band.
std::vector<MenuRow> menuRows();

} // namespace zkp
