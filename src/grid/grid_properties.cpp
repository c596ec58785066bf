#include "zkp_grid.h"

#include "base/number.h"
#include "base/report_locale.h"
#include "core/paint_scopes.h"
#include "grid/parts.h"

// The accessors that come from the property list, family by family, and the few that do more.

namespace zkp {

#define ZKP_SURFACE(Type, Name, ...)                                                                         \
    Type ZkpGrid::Name() const {                                                                             \
        return parts_->core.surface.Name();                                                                  \
    }                                                                                                        \
    void ZkpGrid::set##Name(const Type& value) {                                                             \
        const auto parts = parts_;                                                                           \
        parts->core.surface.set##Name(value);                                                                \
        parts->core.events.notify(QStringLiteral(#Name));                                                    \
    }
ZKP_SURFACE_PROPERTIES(ZKP_SURFACE)

#define ZKP_LOOK(Type, Name, ...)                                                                            \
    Type ZkpGrid::Name() const {                                                                             \
        return parts_->core.surface.look().Name;                                                             \
    }                                                                                                        \
    void ZkpGrid::set##Name(const Type& value) {                                                             \
        const auto parts = parts_;                                                                           \
        GridSurface::Look look = parts->core.surface.look();                                                 \
        look.Name = value;                                                                                   \
        parts->core.surface.setLook(look);                                                                   \
        parts->core.events.notify(QStringLiteral(#Name));                                                    \
    }
ZKP_LOOK_PROPERTIES(ZKP_LOOK)

#define ZKP_SURFACE_BY_INDEX(Type, Name)                                                                     \
    Type ZkpGrid::Name(int index) const {                                                                    \
        return parts_->core.surface.Name(index);                                                             \
    }                                                                                                        \
    void ZkpGrid::set##Name(int index, const Type& value) {                                                  \
        const auto parts = parts_;                                                                           \
        parts->core.surface.set##Name(index, value);                                                         \
        parts->core.events.notify(QStringLiteral(#Name));                                                    \
    }
ZKP_SURFACE_INDEXED(ZKP_SURFACE_BY_INDEX)

#define ZKP_SURFACE_BY_CELL(Type, Name)                                                                      \
    Type ZkpGrid::Name(int row, int col) const {                                                             \
        return parts_->core.surface.Name(row, col);                                                          \
    }                                                                                                        \
    void ZkpGrid::set##Name(int row, int col, const Type& value) {                                           \
        const auto parts = parts_;                                                                           \
        parts->core.surface.set##Name(row, col, value);                                                      \
        parts->core.events.notify(QStringLiteral(#Name));                                                    \
    }
ZKP_SURFACE_CELLS(ZKP_SURFACE_BY_CELL)

#define ZKP_MEMBER(Type, Name, Key, Subject, ...)                                                            \
    Type ZkpGrid::Name() const {                                                                             \
        return parts_->core.state.Subject.Name;                                                              \
    }                                                                                                        \
    void ZkpGrid::set##Name(const Type& value) {                                                             \
        const auto parts = parts_;                                                                           \
        parts->core.state.Subject.Name = value;                                                              \
        parts->core.events.notify(QStringLiteral(Key));                                                      \
    }
ZKP_MEMBER_PROPERTIES(ZKP_MEMBER)

#define ZKP_SILENT(Type, Name, Subject, ...)                                                                 \
    Type ZkpGrid::Name() const {                                                                             \
        return parts_->core.state.Subject.Name;                                                              \
    }                                                                                                        \
    void ZkpGrid::set##Name(const Type& value) {                                                             \
        parts_->core.state.Subject.Name = value;                                                             \
    }
ZKP_SILENT_PROPERTIES(ZKP_SILENT)

#define ZKP_WRITE_ONLY(Type, Name, Subject, ...)                                                             \
    void ZkpGrid::set##Name(const Type& value) {                                                             \
        parts_->core.state.Subject.Name = value;                                                             \
    }
ZKP_IDENTITY_PROPERTIES(ZKP_WRITE_ONLY)

#define ZKP_READ_ONLY(Type, Name, Subject)                                                                   \
    Type ZkpGrid::Name() const {                                                                             \
        return parts_->core.state.Subject.Name;                                                              \
    }
ZKP_READ_ONLY_MEMBERS(ZKP_READ_ONLY)

#define ZKP_COLUMN(Type, Name, ...)                                                                          \
    Type ZkpGrid::Name(int index) const {                                                                    \
        return parts_->core.columnProperties.Name(index);                                                    \
    }                                                                                                        \
    void ZkpGrid::set##Name(int index, const Type& value) {                                                  \
        const auto parts = parts_;                                                                           \
        parts->core.columnProperties.set##Name(index, value);                                                \
    }
ZKP_COLUMN_PROPERTIES(ZKP_COLUMN)
ZKP_HAND_WRITTEN_INDEXED(ZKP_COLUMN)

#define ZKP_READ_KEPT(Type, Name, Key, Subject, ...)                                                         \
    Type ZkpGrid::Name() const {                                                                             \
        return parts_->core.state.Subject.Name;                                                              \
    }
ZKP_KEPT_MEMBERS(ZKP_READ_KEPT)

// The heading row takes its font at once.
#define ZKP_HEADING_FONT(Type, Name)                                                                         \
    void ZkpGrid::set##Name(const Type& value) {                                                             \
        const auto parts = parts_;                                                                           \
        parts->core.state.sections.Name = value;                                                             \
        parts->core.fonts.paintHeading();                                                                    \
        parts->core.events.notify(QStringLiteral(#Name));                                                    \
    }
ZKP_HEADING_FONT(QString, FixedFontName)
ZKP_HEADING_FONT(double, FixedFontSize)
ZKP_HEADING_FONT(bool, FixedFontBold)
ZKP_HEADING_FONT(bool, FixedFontItalic)
ZKP_HEADING_FONT(bool, FixedFontUnderline)

void ZkpGrid::setGroupby(const QString& value) {
    const auto parts = parts_;
    parts->core.state.grouping.give(value);
    parts->core.events.notify(QStringLiteral("Groupby"));
}

/// A frozen first data row is painted at once, cell by cell.
void ZkpGrid::setFreezeBackColor(const Color& value) {
    const auto parts = parts_;
    GridSurface& surface = parts->core.surface;
    parts->core.state.sections.FreezeBackColor = value;
    if (parts->core.state.sections.FrozenRow && surface.FixedRows() < surface.Rows()) {
        const SelectionQuiet quiet(parts->core.state.notices);
        surface.setRow(surface.FixedRows());
        for (int c = 0; c < surface.Cols(); ++c) {
            surface.setCol(c);
            surface.setCellBackColor(value);
        }
    }
    parts->core.events.notify(QStringLiteral("FreezeBackColor"));
}

/// Also the floor of the surface's rows; alternating colours are painted anew.
void ZkpGrid::setMinRows(const double& value) {
    const auto parts = parts_;
    const int floor = toInt32(value);
    parts->core.state.face.MinRows = value;
    if (parts->core.surface.Rows() < floor)
        parts->core.surface.setRows(floor);
    makeRowByrow();
    parts->core.events.notify(QStringLiteral("MinRows"));
}

void ZkpGrid::setRefreshOnChange(const bool& value) {
    const auto parts = parts_;
    parts->core.setters.setRefreshOnChange(value);
}

bool ZkpGrid::TemplateMenuVisible() const {
    return parts_->core.children.Picture1.Bands(u"mnuTemplate").Tools(u"mnuSaveTemplate").Visible;
}

void ZkpGrid::setTemplateMenuVisible(const bool& value) {
    const auto parts = parts_;
    MenuBar& bar = parts->core.children.Picture1;
    bar.Bands(u"mnuTemplate").Tools(u"mnuSaveTemplate").Visible = value;
    bar.Refresh();
    parts->core.events.notify(QStringLiteral("TemplateMenuVisible"));
}

void ZkpGrid::setPrintCaption(const QString& value) {
    const auto parts = parts_;
    parts->core.setters.setPrintCaption(value);
}

/// Stays False whatever is given, and reports a change; hosts bind to it. Wanted.
void ZkpGrid::setPrintCenter(const bool& /*value*/) {
    const auto parts = parts_;
    parts->core.events.notify(QStringLiteral("PrintCenter"));
}

BagFont ZkpGrid::Font() const {
    return parts_->core.surface.Font();
}

void ZkpGrid::setFont(const BagFont& value) {
    const auto parts = parts_;
    parts->core.surface.setFont(value);
    parts->core.events.notify(QStringLiteral("Font"));
}

QVariant ZkpGrid::Panel() const {
    return parts_->core.surface.look().Panel;
}

void ZkpGrid::setPanel(const QVariant& value) {
    const auto parts = parts_;
    GridSurface::Look look = parts->core.surface.look();
    look.Panel = value;
    parts->core.surface.setLook(look);
}

int ZkpGrid::Rows() const {
    return parts_->core.surface.Rows();
}

void ZkpGrid::setRows(const int& value) {
    const auto parts = parts_;
    parts->core.surface.setRows(value);
    if (parts->core.surface.Rows() == parts->core.surface.FixedRows())
        parts->core.marking.forgetRow();
    parts->core.events.notify(QStringLiteral("Rows"));
}

int ZkpGrid::Cols() const {
    return parts_->core.surface.Cols();
}

void ZkpGrid::setCols(const int& value) {
    const auto parts = parts_;
    parts->core.setters.setCols(value);
}

int ZkpGrid::Row() const {
    return parts_->core.surface.Row();
}

void ZkpGrid::setRow(const int& value) {
    const auto parts = parts_;
    parts->core.setters.setRow(value);
}

QVariant ZkpGrid::RecordSource() const {
    return QVariant::fromValue(parts_->core.source.get());
}
void ZkpGrid::setRecordSource(const QVariant& value) {
    parts_->core.source.set(value);
}

double ZkpGrid::Width() const {
    return parts_->core.state.face.Width;
}
void ZkpGrid::setWidth(const double& value) {
    parts_->core.state.face.Width = value;
}
double ZkpGrid::Height() const {
    return parts_->core.state.face.Height;
}
void ZkpGrid::setHeight(const double& value) {
    parts_->core.state.face.Height = value;
}
int ZkpGrid::MousePointer() const {
    return parts_->core.state.face.MousePointer;
}
void ZkpGrid::setMousePointer(const int& value) {
    parts_->core.state.face.MousePointer = value;
}
QLocale ZkpGrid::Locale() const {
    return parts_->core.surface.locale().locale();
}
void ZkpGrid::setLocale(const QLocale& value) {
    parts_->core.surface.setLocale(ReportLocale(value));
}

} // namespace zkp
