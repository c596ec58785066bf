#pragma once

#include "script/script_control.h"
#include "script/script_object.h"

namespace zkp::script {

/// `new ZkpGrid()`: the control's own names, and what stands on it as objects.
class GridObject : public ScriptObject {
    Q_OBJECT
    Q_PROPERTY(zkp::script::ScriptObjectPtr Columns READ Columns)
    Q_PROPERTY(zkp::script::ScriptObjectPtr events READ events)
    Q_PROPERTY(zkp::script::ScriptObjectPtr MSFlexGrid1 READ MSFlexGrid1)
    Q_PROPERTY(zkp::script::ScriptObjectPtr MSFlexGrid2 READ MSFlexGrid2)
    Q_PROPERTY(zkp::script::ScriptObjectPtr MSFlexGrid3 READ MSFlexGrid3)
    Q_PROPERTY(zkp::script::ScriptObjectPtr Picture1 READ Picture1)
    /// An object to read and to write through; another font that is given to it is copied.
    Q_PROPERTY(QVariant Font READ Font WRITE setFont)
    Q_PROPERTY(zkp::script::ScriptObjectPtr cmdHide READ cmdHide)
    Q_PROPERTY(zkp::script::ScriptObjectPtr lbltemplate READ lbltemplate)
    Q_PROPERTY(zkp::script::ScriptObjectPtr lblfilter READ lblfilter)

public:
    explicit GridObject(ScriptControlPtr control)
        : control_(std::move(control)) {}

    QString className() const override { return QStringLiteral("ZkpGrid"); }
    QObject* delegate() const override { return &control_->grid(); }
    const QMetaObject* delegateClass() const override { return &ZkpGrid::staticMetaObject; }

    ScriptObjectPtr Columns() const;
    ScriptObjectPtr events() const;
    ScriptObjectPtr MSFlexGrid1() const { return surface(&ZkpGrid::MSFlexGrid1); }
    ScriptObjectPtr MSFlexGrid2() const { return surface(&ZkpGrid::MSFlexGrid2); }
    ScriptObjectPtr MSFlexGrid3() const { return surface(&ZkpGrid::MSFlexGrid3); }
    ScriptObjectPtr Picture1() const;
    QVariant Font() const;
    void setFont(const QVariant& font);
    ScriptObjectPtr cmdHide() const;
    ScriptObjectPtr lbltemplate() const { return label(&ZkpGrid::lbltemplate); }
    ScriptObjectPtr lblfilter() const { return label(&ZkpGrid::lblfilter); }

    /// The codes are in and out: what a handler left of them comes back in the caller's object too.
    Q_INVOKABLE int UserControl_KeyDown(int& KeyCode, int Shift);
    Q_INVOKABLE int UserControl_KeyPress(int& KeyAscii);
    /// Ends the control at once. Whatever is asked of it afterwards is Error kErrObjectNotSet. One of the
    /// host's is Error kErrIllegalOperation.
    Q_INVOKABLE void destroy();

private:
    ScriptObjectPtr surface(GridSurface& (ZkpGrid::*which)()) const;
    ScriptObjectPtr label(Label& (ZkpGrid::*which)()) const;

    ScriptControlPtr control_;
};

} // namespace zkp::script
