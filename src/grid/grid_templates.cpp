#include "zkp_grid.h"

#include "base/number.h"
#include "grid/parts.h"

// Saved properties and templates, one line each.

namespace zkp {

namespace {

/// What stands for an argument that was left out; no different from any other name, as wanted.
const QString kNoName = QStringLiteral("#NONE#");

} // namespace

void ZkpGrid::UserControl_WriteProperties(const PropertyBagPtr& bag) {
    run([&](Parts& p) { p.savedProperties.UserControl_WriteProperties(bag); });
}

void ZkpGrid::UserControl_ReadProperties(const PropertyBagPtr& bag) {
    run([&](Parts& p) { p.savedProperties.UserControl_ReadProperties(bag); });
}

QVariantList ZkpGrid::FillTemplates(const QVariant& mFileNo) {
    QVariantList list;
    for (const std::optional<clsList>& entry :
         run([&](Parts& p) { return p.templates.FillTemplates(mFileNo); }))
        list.append(entry ? QVariant::fromValue(*entry) : QVariant());
    return list;
}

/// Path and number change nothing, as wanted.
void ZkpGrid::SaveTemplate(const QVariant& /*mPath*/, const QVariant& mfilename, const QVariant& mFileNo) {
    if (mFileNo.isValid())
        toInt16(mFileNo); // a 16-bit integer all the same
    run([&](Parts& p) { p.templates.SaveTemplate(mfilename.isValid() ? mfilename.toString() : kNoName); });
}

/// The number changes nothing, as wanted: the folder goes by the control's own.
void ZkpGrid::opentemplate(const ado::ConnectionPtr& P_CN, const QVariant& mPath, const QVariant& mfilename,
                           const QVariant& /*mFileNo*/) {
    run([&](Parts& p) { p.templates.opentemplate(P_CN, mPath, mfilename); });
}

void ZkpGrid::mnuSave_Click() {
    run([](Parts& p) { Q_EMIT p.core.events.MenuSaveTemplate(); });
}

void ZkpGrid::mnuSaveAs_Click() {
    run([](Parts& p) { Q_EMIT p.core.events.MenuSaveTemplateAs(); });
}

void ZkpGrid::mnuLoad_Click() {
    run([](Parts& p) { Q_EMIT p.core.events.MenuLoadTemplate(); });
}

void ZkpGrid::mnuTitle_Click() {
    run([](Parts& p) { Q_EMIT p.core.events.MenuTitle(); });
}

} // namespace zkp
