#include "template/saved_keys.h"

#include "template/saved_keys_notation.h"

#include <charconv>

namespace zkp {

namespace {

using namespace saved;
using namespace Qt::StringLiterals;

} // namespace

double doubleOfSingle(float single) {
    char digits[32];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), single).ptr;
    double number = single;
    std::from_chars(std::begin(digits), end, number);
    return number;
}

// One key of a font group; `owner` tells whether the group is the surface's font or members of the control.
#define ZKP_FONT_KEY(owner, Prefix, Suffix, type, fallback)                                                  \
    SavedKey {                                                                                               \
        QStringLiteral(#Prefix #Suffix), QStringLiteral(#Prefix #Suffix), type, fallback, fallback,          \
            owner(Prefix##Suffix)                                                                            \
    }

// Written, and never read.
#define ZKP_FONT_KEY_LOST(owner, Prefix, Suffix)                                                             \
    SavedKey {                                                                                               \
        QStringLiteral(#Prefix #Suffix), {}, Boolean, is(false), never, owner(Prefix##Suffix)                \
    }

#define ZKP_FONT_KEYS(owner, Prefix, bold, italic)                                                           \
    ZKP_FONT_KEY(owner, Prefix, Bold, Boolean, is(bold)),                                                    \
        ZKP_FONT_KEY(owner, Prefix, Italic, Boolean, is(italic)),                                            \
        ZKP_FONT_KEY(owner, Prefix, Name, Text, text(u"Arial")),                                             \
        ZKP_FONT_KEY(owner, Prefix, Size, Single, number(8))

#define ZKP_FONT_UNDERLINE(owner, Prefix) ZKP_FONT_KEY(owner, Prefix, Underline, Boolean, is(false))

std::vector<SavedKey> savedFontKeys() {
    // Group by group: bold and italic at their defaults, name, size, what becomes of strikethru, underline.
    return {
        ZKP_FONT_KEYS(ZKP_GRID, Font, false, false),
        ZKP_FONT_UNDERLINE(ZKP_GRID, Font),

        ZKP_FONT_KEYS(ZKP_MEMBER, FixedFont, true, false),
        ZKP_FONT_KEY_LOST(ZKP_MEMBER, FixedFont, Strikethru),
        ZKP_FONT_UNDERLINE(ZKP_MEMBER, FixedFont),

        ZKP_FONT_KEYS(ZKP_MEMBER, GroupedFont, true, false),
        ZKP_FONT_KEY_LOST(ZKP_MEMBER, GroupedFont, Strikethru),
        ZKP_FONT_UNDERLINE(ZKP_MEMBER, GroupedFont),

        ZKP_FONT_KEYS(ZKP_MEMBER, TitleFont, false, false),
        ZKP_FONT_UNDERLINE(ZKP_MEMBER, TitleFont),

        ZKP_FONT_KEYS(ZKP_MEMBER, StoixeiaFont, false, false),
        ZKP_FONT_UNDERLINE(ZKP_MEMBER, StoixeiaFont),

        ZKP_FONT_KEYS(ZKP_MEMBER, SubTotalsFont, true, false),
        ZKP_FONT_KEY(ZKP_MEMBER, SubTotalsFont, Strikethru, Boolean, is(false)),
        ZKP_FONT_KEY(ZKP_MEMBER, SubTotalsFont, Underline, Boolean, number(0)),

        ZKP_FONT_KEYS(ZKP_MEMBER, TotalsFont, true, false),
        ZKP_FONT_KEY(ZKP_MEMBER, TotalsFont, Strikethru, Boolean, is(false)),
        ZKP_FONT_UNDERLINE(ZKP_MEMBER, TotalsFont),
    };
}

} // namespace zkp
