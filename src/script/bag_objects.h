#pragma once

#include "bag/property_bag.h"
#include "script/script_object.h"

namespace zkp::script {

/// A font that came out of a property bag. Given to a `Font`, it is copied.
class SavedFontObject : public ScriptObject {
    Q_OBJECT
    Q_PROPERTY(QString Name READ Name)
    Q_PROPERTY(double Size READ Size)
    Q_PROPERTY(bool Bold READ Bold)
    Q_PROPERTY(bool Italic READ Italic)
    Q_PROPERTY(bool Underline READ Underline)
    Q_PROPERTY(bool Strikethrough READ Strikethrough)

public:
    explicit SavedFontObject(BagFont font)
        : font_(std::move(font)) {}

    QString className() const override { return QStringLiteral("Font"); }
    QVariant engineValue() const override { return QVariant::fromValue(font_); }

    QString Name() const { return font_.name; }
    double Size() const { return font_.size; }
    bool Bold() const { return font_.bold; }
    bool Italic() const { return font_.italic; }
    bool Underline() const { return font_.underline; }
    bool Strikethrough() const { return font_.strikethru; }

private:
    BagFont font_;
};

/// `new PropertyBag()`. A script's whole numbers are stored as 32-bit integers, those beyond as colours
/// as far as a colour's 32 bits go, all others as doubles.
class PropertyBagObject : public ScriptObject {
    Q_OBJECT
    Q_PROPERTY(QVariant Contents READ Contents WRITE setContents)

public:
    explicit PropertyBagObject(PropertyBagPtr bag)
        : bag_(std::move(bag)) {}

    QString className() const override { return QStringLiteral("PropertyBag"); }
    QVariant engineValue() const override { return QVariant::fromValue(bag_); }

    /// The bag as bytes. Anything but bytes is refused, null too; none at all are an empty bag.
    QVariant Contents() const { return bag_->Contents(); }
    void setContents(const QVariant& bytes);

    /// Without a default, a key that isn't there gives null.
    Q_INVOKABLE QVariant ReadProperty(const QString& key, const QVariant& fallback = {}) const;
    /// Without a default, the value is always stored.
    Q_INVOKABLE void WriteProperty(const QString& key, const QVariant& value, const QVariant& elidedAt = {});

private:
    PropertyBagPtr bag_;
};

} // namespace zkp::script
