#include "script/menu_objects.h"

#include "script/bridge.h"

namespace zkp::script {

namespace {

ScriptObjectPtr toolObject(const ScriptControlPtr& control, const Tool& tool) {
    return control->bridge().shared<ToolObject>(&tool, control.get(), control, tool.Name);
}

} // namespace

void ToolObject::setListIndex(int index) {
    if (index < -1 || index >= ListCount())
        throw Error(kErrSubscript, QStringLiteral("the list of %1 has no entry %2").arg(name_).arg(index));
    tool().ListIndex = index;
}

QString ToolObject::List(int index) const {
    if (index < 0 || index >= ListCount())
        throw Error(kErrSubscript, QStringLiteral("the list of %1 has no entry %2").arg(name_).arg(index));
    return tool().list.at(index);
}

ScriptObjectPtr BandObject::Tools(const QString& name) {
    return toolObject(control_, band().Tools(name));
}

ScriptObjectPtr MenuBarObject::Bands(const QString& name) {
    const Band& band = bar().Bands(name);
    return control_->bridge().shared<BandObject>(&band, control_.get(), control_, band.Name);
}

ScriptObjectPtr MenuBarObject::Tools(const QString& name) {
    return toolObject(control_, bar().Tools(name));
}

} // namespace zkp::script
