#pragma once

#include "base/error.h"
#include "script/script_control.h"
#include "script/script_object.h"

namespace zkp::script {

/// `grid.cmdHide`.
class ButtonObject : public ScriptObject {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)
    Q_PROPERTY(bool Visible READ Visible WRITE setVisible)
    Q_PROPERTY(bool Enabled READ Enabled WRITE setEnabled)

public:
    explicit ButtonObject(ScriptControlPtr control)
        : control_(std::move(control)) {}

    QString className() const override { return QStringLiteral("Button"); }

    QString Caption() const { return button().Caption; }
    void setCaption(const QString& text) { button().Caption = text; }
    bool Visible() const { return button().Visible; }
    void setVisible(bool on) { button().Visible = on; }
    bool Enabled() const { return button().Enabled; }
    void setEnabled(bool on) { button().Enabled = on; }
    Q_INVOKABLE void press() { button().press(); }

private:
    Button& button() const { return control_->grid().cmdHide(); }

    ScriptControlPtr control_;
};

/// `grid.lbltemplate` and `grid.lblfilter`.
class LabelObject : public ScriptObject {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)
    Q_PROPERTY(bool Visible READ Visible WRITE setVisible)

public:
    LabelObject(ScriptControlPtr control, Label& (ZkpGrid::*which)())
        : control_(std::move(control))
        , which_(which) {}

    QString className() const override { return QStringLiteral("Label"); }

    QString Caption() const { return label().Caption; }
    void setCaption(const QString& text) { label().Caption = text; }
    bool Visible() const { return label().Visible; }
    void setVisible(bool on) { label().Visible = on; }

private:
    Label& label() const { return (control_->grid().*which_)(); }

    ScriptControlPtr control_;
    Label& (ZkpGrid::*which_)();
};

/// The font of a surface: what is written here shows there. Given to a `Font`, it is copied.
class FontObject : public ScriptObject {
    Q_OBJECT
    Q_PROPERTY(QString Name READ Name WRITE setName)
    Q_PROPERTY(double Size READ Size WRITE setSize)
    Q_PROPERTY(bool Bold READ Bold WRITE setBold)
    Q_PROPERTY(bool Italic READ Italic WRITE setItalic)
    Q_PROPERTY(bool Underline READ Underline WRITE setUnderline)
    Q_PROPERTY(bool Strikethrough READ Strikethrough WRITE setStrikethrough)

public:
    FontObject(ScriptControlPtr control, GridSurface& (ZkpGrid::*which)())
        : control_(std::move(control))
        , which_(which) {}

    QString className() const override { return QStringLiteral("Font"); }
    QVariant engineValue() const override { return QVariant::fromValue(surface().Font()); }
    /// Error kErrTypeMismatch when the value is no font.
    static BagFont fontIn(const QVariant& value) {
        if (value.metaType() != QMetaType::fromType<BagFont>())
            throw Error(kErrTypeMismatch, QStringLiteral("Font must be a font"));
        return value.value<BagFont>();
    }

    QString Name() const { return surface().FontName(); }
    void setName(const QString& name) { surface().setFontName(name); }
    double Size() const { return surface().FontSize(); }
    void setSize(double points) { surface().setFontSize(points); }
    bool Bold() const { return surface().FontBold(); }
    void setBold(bool on) { surface().setFontBold(on); }
    bool Italic() const { return surface().FontItalic(); }
    void setItalic(bool on) { surface().setFontItalic(on); }
    bool Underline() const { return surface().FontUnderline(); }
    void setUnderline(bool on) { surface().setFontUnderline(on); }
    bool Strikethrough() const { return surface().FontStrikethru(); }
    void setStrikethrough(bool on) { surface().setFontStrikethru(on); }

private:
    GridSurface& surface() const { return (control_->grid().*which_)(); }

    ScriptControlPtr control_;
    GridSurface& (ZkpGrid::*which_)();
};

} // namespace zkp::script
