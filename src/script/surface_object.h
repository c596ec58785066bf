#pragma once

#include "script/bridge.h"
#include "script/child_objects.h"
#include "script/script_control.h"
#include "script/script_object.h"
#include "surface/surface_names.def"

namespace zkp::script {

/// `grid.MSFlexGrid1` and its two companions: the surface's published names, and what a user does on it.
class SurfaceObject : public ScriptObject {
    Q_OBJECT

#define ZKP_SCRIPT_VALUE(Type, Name, ...)                                                                    \
    Q_PROPERTY(Type Name READ Name WRITE set##Name)                                                          \
    Type Name() const {                                                                                      \
        return surface().Name();                                                                             \
    }                                                                                                        \
    void set##Name(const Type& value) {                                                                      \
        surface().set##Name(value);                                                                          \
    }
#define ZKP_SCRIPT_ANSWER(Type, Name)                                                                        \
    Q_PROPERTY(Type Name READ Name)                                                                          \
    Type Name() const {                                                                                      \
        return surface().Name();                                                                             \
    }
#define ZKP_SCRIPT_LOOK(Type, Name, ...)                                                                     \
    Q_PROPERTY(Type Name READ Name WRITE set##Name)                                                          \
    Type Name() const {                                                                                      \
        return surface().look().Name;                                                                        \
    }                                                                                                        \
    void set##Name(const Type& value) {                                                                      \
        SurfaceLook look = surface().look();                                                                 \
        look.Name = value;                                                                                   \
        surface().setLook(look);                                                                             \
    }
#define ZKP_SCRIPT_PLACE(Type, Name, ...)                                                                    \
    Q_PROPERTY(Type Name READ Name WRITE set##Name)                                                          \
    Type Name() const {                                                                                      \
        return surface().place().Name;                                                                       \
    }                                                                                                        \
    void set##Name(const Type& value) {                                                                      \
        SurfacePlace place = surface().place();                                                              \
        place.Name = value;                                                                                  \
        surface().setPlace(place);                                                                           \
    }
#define ZKP_SCRIPT_INDEXED(Type, Name, ...)                                                                  \
    Q_INVOKABLE Type Name(int index) const {                                                                 \
        return surface().Name(index);                                                                        \
    }                                                                                                        \
    Q_INVOKABLE void set##Name(int index, const Type& value) {                                               \
        surface().set##Name(index, value);                                                                   \
    }
#define ZKP_SCRIPT_BY_CELL(Type, Name)                                                                       \
    Q_INVOKABLE Type Name(int row, int col) const {                                                          \
        return surface().Name(row, col);                                                                     \
    }                                                                                                        \
    Q_INVOKABLE void set##Name(int row, int col, const Type& value) {                                        \
        surface().set##Name(row, col, value);                                                                \
    }
#define ZKP_SCRIPT_ROW_ANSWER(Type, Name)                                                                    \
    Q_INVOKABLE Type Name(int row) const {                                                                   \
        return surface().Name(row);                                                                          \
    }
#define ZKP_SCRIPT_METHOD(Name, parameters, arguments)                                                       \
    Q_INVOKABLE void Name parameters {                                                                       \
        surface().Name arguments;                                                                            \
    }
#define ZKP_SCRIPT_MOUSE(Name, ...)                                                                          \
    Q_INVOKABLE void Name(int button, int shift, double x, double y, int row, int col) {                     \
        surface().Name({button, shift, x, y, row, col});                                                     \
    }

public:
    SurfaceObject(ScriptControlPtr control, GridSurface& (ZkpGrid::*which)())
        : control_(std::move(control))
        , which_(which) {}

    QString className() const override {
        return QStringLiteral("GridSurface");
    }

    ZKP_GRIDSURFACE_VALUES(ZKP_SCRIPT_VALUE)
    ZKP_GRIDSURFACE_CURSOR(ZKP_SCRIPT_VALUE)
    ZKP_GRIDSURFACE_ANSWERS(ZKP_SCRIPT_ANSWER)
    ZKP_GRIDSURFACE_CELL_STYLE(ZKP_SCRIPT_VALUE)
    ZKP_GRIDSURFACE_PART_STYLE(ZKP_SCRIPT_VALUE)
    ZKP_GRIDSURFACE_LOOK(ZKP_SCRIPT_LOOK)
    ZKP_GRIDSURFACE_PLACE(ZKP_SCRIPT_PLACE)
    ZKP_GRIDSURFACE_OF_COLUMN(ZKP_SCRIPT_INDEXED)
    ZKP_GRIDSURFACE_OF_ROW(ZKP_SCRIPT_INDEXED)
    ZKP_GRIDSURFACE_ROW_ANSWERS(ZKP_SCRIPT_ROW_ANSWER)
    ZKP_GRIDSURFACE_BY_CELL(ZKP_SCRIPT_BY_CELL)
    ZKP_GRIDSURFACE_BY_INDEX(ZKP_SCRIPT_INDEXED)
    ZKP_GRIDSURFACE_METHODS(ZKP_SCRIPT_METHOD)
    ZKP_GRIDSURFACE_MOUSE(ZKP_SCRIPT_MOUSE)

#undef ZKP_SCRIPT_VALUE
#undef ZKP_SCRIPT_ANSWER
#undef ZKP_SCRIPT_LOOK
#undef ZKP_SCRIPT_PLACE
#undef ZKP_SCRIPT_INDEXED
#undef ZKP_SCRIPT_BY_CELL
#undef ZKP_SCRIPT_ROW_ANSWER
#undef ZKP_SCRIPT_METHOD
#undef ZKP_SCRIPT_MOUSE

    Q_PROPERTY(QVariant Font READ Font WRITE setFont)
    QVariant Font() const {
        const ScriptObjectPtr font =
            control_->bridge().shared<FontObject>(&surface(), control_.get(), control_, which_);
        return QVariant::fromValue(font);
    }
    void setFont(const QVariant& font) {
        surface().setFont(FontObject::fontIn(font));
    }

private:
    GridSurface& surface() const {
        return (control_->grid().*which_)();
    }

    ScriptControlPtr control_;
    GridSurface& (ZkpGrid::*which_)();
};

} // namespace zkp::script
