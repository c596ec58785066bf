#include "zkp_grid.h"

#include "base/number.h"
#include "base/report_locale.h"
#include "core/paint_scopes.h"
#include "grid/parts.h"

// The accessors that come from the property list, family by family, and the few that do more.

namespace zkp {

#define ZKP_SURFACE(Type, Name, ...)                                                                         \
    Type ZkpGrid::Name() const {                                                                             \
        return parts_->surface.Name();                                                                       \
    }                                                                                                        \
    void ZkpGrid::set##Name(const Type& value) {                                                             \
        const auto parts = parts_;                                                                           \
        parts->surface.set##Name(value);                                                                     \
        parts->events.notify(QStringLiteral(#Name));                                                         \
    }
ZKP_SURFACE_PROPERTIES(ZKP_SURFACE)

#define ZKP_LOOK(Type, Name, ...)                                                                            \
    Type ZkpGrid::Name() const {                                                                             \
        return parts_->surface.look().Name;                                                                  \
    }                                                                                                        \
    void ZkpGrid::set##Name(const Type& value) {                                                             \
        const auto parts = parts_;                                                                           \
        GridSurface::Look look = parts->surface.look();                                                      \
        look.Name = value;                                                                                   \
        parts->surface.setLook(look);                                                                        \
        parts->events.notify(QStringLiteral(#Name));                                                         \
    }
ZKP_LOOK_PROPERTIES(ZKP_LOOK)

#define ZKP_SURFACE_BY_INDEX(Type, Name)                                                                     \
    Type ZkpGrid::Name(int index) const {                                                                    \
        return parts_->surface.Name(index);                                                                  \
    }                                                                                                        \
    void ZkpGrid::set##Name(int index, const Type& value) {                                                  \
        const auto parts = parts_;                                                                           \
        parts->surface.set##Name(index, value);                                                              \
        parts->events.notify(QStringLiteral(#Name));                                                         \
    }
ZKP_SURFACE_INDEXED(ZKP_SURFACE_BY_INDEX)

#define ZKP_SURFACE_BY_CELL(Type, Name)                                                                      \
    Type ZkpGrid::Name(int row, int col) const {                                                             \
        return parts_->surface.Name(row, col);                                                               \
    }                                                                                                        \
    void ZkpGrid::set##Name(int row, int col, const Type& value) {                                           \
        const auto parts = parts_;                                                                           \
        parts->surface.set##Name(row, col, value);                                                           \
        parts->events.notify(QStringLiteral(#Name));                                                         \
    }
ZKP_SURFACE_CELLS(ZKP_SURFACE_BY_CELL)

#define ZKP_MEMBER(Type, Name, Key, ...)                                                                     \
    Type ZkpGrid::Name() const {                                                                             \
        return parts_->state.Name;                                                                           \
    }                                                                                                        \
    void ZkpGrid::set##Name(const Type& value) {                                                             \
        const auto parts = parts_;                                                                           \
        parts->state.Name = value;                                                                           \
        parts->events.notify(QStringLiteral(Key));                                                           \
    }
ZKP_MEMBER_PROPERTIES(ZKP_MEMBER)

#define ZKP_SILENT(Type, Name, ...)                                                                          \
    Type ZkpGrid::Name() const {                                                                             \
        return parts_->state.Name;                                                                           \
    }                                                                                                        \
    void ZkpGrid::set##Name(const Type& value) {                                                             \
        parts_->state.Name = value;                                                                          \
    }
ZKP_SILENT_PROPERTIES(ZKP_SILENT)

#define ZKP_WRITE_ONLY(Type, Name, ...)                                                                      \
    void ZkpGrid::set##Name(const Type& value) {                                                             \
        parts_->state.Name = value;                                                                          \
    }
ZKP_IDENTITY_PROPERTIES(ZKP_WRITE_ONLY)

#define ZKP_READ_ONLY(Type, Name, ...)                                                                       \
    Type ZkpGrid::Name() const {                                                                             \
        return parts_->state.Name;                                                                           \
    }
ZKP_READ_ONLY_MEMBERS(ZKP_READ_ONLY)

#define ZKP_COLUMN(Type, Name, ...)                                                                          \
    Type ZkpGrid::Name(int index) const {                                                                    \
        return parts_->columnProperties.Name(index);                                                         \
    }                                                                                                        \
    void ZkpGrid::set##Name(int index, const Type& value) {                                                  \
        const auto parts = parts_;                                                                           \
        parts->columnProperties.set##Name(index, value);                                                     \
    }
ZKP_COLUMN_PROPERTIES(ZKP_COLUMN)
ZKP_HAND_WRITTEN_INDEXED(ZKP_COLUMN)

#define ZKP_READ_KEPT(Type, Name, ...)                                                                       \
    Type ZkpGrid::Name() const {                                                                             \
        return parts_->state.Name;                                                                           \
    }
ZKP_KEPT_MEMBERS(ZKP_READ_KEPT)

// The heading row takes its font at once.
#define ZKP_HEADING_FONT(Type, Name)                                                                         \
    void ZkpGrid::set##Name(const Type& value) {                                                             \
        const auto parts = parts_;                                                                           \
        parts->state.Name = value;                                                                           \
        parts->fonts.paintHeading();                                                                         \
        parts->events.notify(QStringLiteral(#Name));                                                         \
    }
ZKP_HEADING_FONT(QString, FixedFontName)
ZKP_HEADING_FONT(double, FixedFontSize)
ZKP_HEADING_FONT(bool, FixedFontBold)
ZKP_HEADING_FONT(bool, FixedFontItalic)
ZKP_HEADING_FONT(bool, FixedFontUnderline)

/// Remembered until the flags of the columns have been looked at, so that a host that only sets the
/// text gets its groups.
void ZkpGrid::setGroupby(const QString& value) {
    const auto parts = parts_;
    parts->state.Groupby = value;
    parts->state.givenGroupby = value;
    parts->events.notify(QStringLiteral("Groupby"));
}

/// A frozen first data row is painted at once, cell by cell.
void ZkpGrid::setFreezeBackColor(const Color& value) {
    const auto parts = parts_;
    GridSurface& surface = parts->surface;
    parts->state.FreezeBackColor = value;
    if (parts->state.FrozenRow && surface.FixedRows() < surface.Rows()) {
        const SelectionQuiet quiet(parts->state);
        surface.setRow(surface.FixedRows());
        for (int c = 0; c < surface.Cols(); ++c) {
            surface.setCol(c);
            surface.setCellBackColor(value);
        }
    }
    parts->events.notify(QStringLiteral("FreezeBackColor"));
}

/// Also the floor of the surface's rows; alternating colours are painted anew.
void ZkpGrid::setMinRows(const double& value) {
    const auto parts = parts_;
    const int floor = toInt32(value);
    parts->state.MinRows = value;
    if (parts->surface.Rows() < floor)
        parts->surface.setRows(floor);
    makeRowByrow();
    parts->events.notify(QStringLiteral("MinRows"));
}

void ZkpGrid::setRefreshOnChange(const bool& value) {
    const auto parts = parts_;
    parts->setRefreshOnChange(value);
}

bool ZkpGrid::TemplateMenuVisible() const {
    return parts_->children.Picture1.Bands(u"mnuTemplate").Tools(u"mnuSaveTemplate").Visible;
}

void ZkpGrid::setTemplateMenuVisible(const bool& value) {
    const auto parts = parts_;
    MenuBar& bar = parts->children.Picture1;
    bar.Bands(u"mnuTemplate").Tools(u"mnuSaveTemplate").Visible = value;
    bar.Refresh();
    parts->events.notify(QStringLiteral("TemplateMenuVisible"));
}

void ZkpGrid::setPrintCaption(const QString& value) {
    const auto parts = parts_;
    parts->setPrintCaption(value);
}

/// Stays False whatever is given, and reports a change; hosts bind to it. Wanted.
void ZkpGrid::setPrintCenter(const bool& /*value*/) {
    const auto parts = parts_;
    parts->events.notify(QStringLiteral("PrintCenter"));
}

BagFont ZkpGrid::Font() const {
    return parts_->surface.Font();
}

void ZkpGrid::setFont(const BagFont& value) {
    const auto parts = parts_;
    parts->surface.setFont(value);
    parts->events.notify(QStringLiteral("Font"));
}

QVariant ZkpGrid::Panel() const {
    return parts_->surface.look().Panel;
}

void ZkpGrid::setPanel(const QVariant& value) {
    const auto parts = parts_;
    GridSurface::Look look = parts->surface.look();
    look.Panel = value;
    parts->surface.setLook(look);
}

int ZkpGrid::Rows() const {
    return parts_->surface.Rows();
}

void ZkpGrid::setRows(const int& value) {
    const auto parts = parts_;
    parts->surface.setRows(value);
    if (parts->surface.Rows() == parts->surface.FixedRows())
        parts->state.PreRow = 0;
    parts->events.notify(QStringLiteral("Rows"));
}

int ZkpGrid::Cols() const {
    return parts_->surface.Cols();
}

void ZkpGrid::setCols(const int& value) {
    const auto parts = parts_;
    parts->setCols(value);
}

int ZkpGrid::Row() const {
    return parts_->surface.Row();
}

void ZkpGrid::setRow(const int& value) {
    const auto parts = parts_;
    parts->setRow(value);
}

QVariant ZkpGrid::RecordSource() const {
    return QVariant::fromValue(parts_->source.get());
}
void ZkpGrid::setRecordSource(const QVariant& value) {
    parts_->source.set(value);
}

double ZkpGrid::Width() const {
    return parts_->state.Width;
}
void ZkpGrid::setWidth(const double& value) {
    parts_->state.Width = value;
}
double ZkpGrid::Height() const {
    return parts_->state.Height;
}
void ZkpGrid::setHeight(const double& value) {
    parts_->state.Height = value;
}
int ZkpGrid::MousePointer() const {
    return parts_->state.MousePointer;
}
void ZkpGrid::setMousePointer(const int& value) {
    parts_->state.MousePointer = value;
}
QLocale ZkpGrid::Locale() const {
    return parts_->surface.locale().locale();
}
void ZkpGrid::setLocale(const QLocale& value) {
    parts_->surface.setLocale(ReportLocale(value));
}

} // namespace zkp
