#include "script/grid_object.h"

#include "script/bridge.h"
#include "script/child_objects.h"
#include "script/column_objects.h"
#include "script/event_objects.h"
#include "script/menu_objects.h"
#include "script/surface_object.h"

namespace zkp::script {

ScriptObjectPtr GridObject::Columns() const {
    return control_->bridge().shared<ColumnsObject>(&control_->grid().Columns(), control_.get(), control_);
}

ScriptObjectPtr GridObject::events() const {
    return control_->bridge().shared<EventsObject>(&control_->grid().events(), control_.get(), control_);
}

ScriptObjectPtr GridObject::Picture1() const {
    return control_->bridge().shared<MenuBarObject>(&control_->grid().Picture1(), control_.get(), control_);
}

QVariant GridObject::Font() const {
    const ScriptObjectPtr font = control_->bridge().shared<FontObject>(
        &control_->grid().MSFlexGrid1(), control_.get(), control_, &ZkpGrid::MSFlexGrid1);
    return QVariant::fromValue(font);
}

void GridObject::setFont(const QVariant& font) {
    control_->grid().setFont(FontObject::fontIn(font));
}

ScriptObjectPtr GridObject::cmdHide() const {
    return control_->bridge().shared<ButtonObject>(&control_->grid().cmdHide(), control_.get(), control_);
}

ScriptObjectPtr GridObject::surface(GridSurface& (ZkpGrid::*which)()) const {
    return control_->bridge().shared<SurfaceObject>(&(control_->grid().*which)(), control_.get(), control_,
                                                    which);
}

ScriptObjectPtr GridObject::label(Label& (ZkpGrid::*which)()) const {
    return control_->bridge().shared<LabelObject>(&(control_->grid().*which)(), control_.get(), control_,
                                                  which);
}

int GridObject::UserControl_KeyDown(int& KeyCode, int Shift) {
    KeyCode = control_->grid().UserControl_KeyDown(KeyCode, Shift);
    return KeyCode;
}

int GridObject::UserControl_KeyPress(int& KeyAscii) {
    KeyAscii = control_->grid().UserControl_KeyPress(KeyAscii);
    return KeyAscii;
}

void GridObject::destroy() {
    if (!control_->isDestroyed() && !control_->isScripts())
        throw Error(kErrIllegalOperation, QStringLiteral("the control is the host's"));
    control_->destroy();
}

} // namespace zkp::script
