#include "interaction/lifecycle.h"

#include "base/number.h"

#include <algorithm>

namespace zkp {

namespace {

constexpr double kGapBelowBand = 20; // twips
constexpr int kEscape = 27;

void hide(GridSurface& surface) {
    GridSurface::Place place = surface.place();
    place.Visible = false;
    surface.setPlace(place);
}

} // namespace

void Lifecycle::initProperties() {
    hide(children_.MSFlexGrid2);
    hide(children_.MSFlexGrid3);
    GridSurface& surface = children_.MSFlexGrid1;
    surface.setFontName(QStringLiteral("Arial"));
    surface.setFontSize(8);
    surface.setFontBold(false);
    surface.setFontItalic(false);
    surface.setFontUnderline(false);
    surface.setFontStrikethru(false);
    marking_.coverSurface();
    const StylePatch heading{.bold = sections_.FixedFontBold};
    surface.applyStyle({0, 0, surface.FixedRows() - 1, surface.Cols() - 1}, heading, StyleOrigin::Section);
}

void Lifecycle::resize() {
    hide(children_.MSFlexGrid2);
    hide(children_.MSFlexGrid3);
    const double band =
        face_.ChoicesVisible ? children_.Picture1.Bands(u"BndTemplate").Height + kGapBelowBand : 0;
    GridSurface::Place place = children_.MSFlexGrid1.place();
    place.Left = 0;
    place.Top = band;
    place.Width = face_.Width;
    place.Height = std::max(0.0, face_.Height - band);
    children_.MSFlexGrid1.setPlace(place);
    children_.Picture1.Visible = face_.ChoicesVisible;
    children_.Picture1.Refresh();
}

void Lifecycle::enterFocus() {
    if (children_.MSFlexGrid1.place().Visible)
        children_.MSFlexGrid1.SetFocus();
}

/// Errors are passed over, as wanted.
void Lifecycle::exitFocus() {
    try {
        drawing_.DrawInterface();
    } catch (...) {
    }
}

int Lifecycle::keyDown(int code, int shift) {
    if (code == kEscape && face_.GraphVisible)
        children_.cmdHide.press();
    KeyArgs args{toInt16(code), toInt16(shift)};
    Q_EMIT events_.KeyDown(args);
    return args.KeyCode;
}

int Lifecycle::keyPress(int ascii) {
    KeyPressArgs args{toInt16(ascii)};
    Q_EMIT events_.KeyPress(args);
    return args.KeyAscii;
}

} // namespace zkp
