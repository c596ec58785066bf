#include "interaction/section_styles.h"

#include <array>

namespace zkp {

namespace {

/// The names of a section's properties; null where it has none. A font's five begin alike.
struct SectionProperties {
    const char16_t* back = nullptr;
    const char16_t* fore = nullptr;
    const char16_t* font = nullptr;
};

/// Title and company block have no number in ZKPSections, and no font to choose here.
constexpr std::array<SectionProperties, 7> kSections{{
    {.back = u"BackColorFixed", .fore = u"ForeColorFixed", .font = u"FixedFont"},
    {.back = u"GroupedBackColor", .fore = u"GroupedForecolor", .font = u"GroupedFont"},
    {.back = u"BackColor", .fore = u"ForeColor", .font = u"Font"},
    {.back = u"SubTotalsBackColor", .fore = u"SubTotalsForeColor", .font = u"SubTotalsFont"},
    {.back = u"TotalsBackcolor", .fore = u"TotalsForeColor", .font = u"TotalsFont"},
    {.back = u"TitleBackColor", .fore = u"TitleForecolor"},
    {.fore = u"StoixeiaForecolor"},
}};

const SectionProperties* sectionAt(int number) {
    const bool stands = number >= 0 && number < static_cast<int>(kSections.size());
    return stands ? &kSections[static_cast<std::size_t>(number)] : nullptr;
}

} // namespace

void SectionStyles::ChooseSectionStyle(int number, int what) {
    const SectionProperties* section = sectionAt(number);
    const char16_t* property = !section    ? nullptr
                               : what == 0 ? section->back
                               : what == 1 ? section->fore
                                           : nullptr;
    if (!property)
        return;
    const QString name = QString::fromUtf16(property);
    const auto chosen = dialogs_.colorDialog(properties_.read(name).toUInt());
    lifetime_.throwIfDestroyed();
    if (!chosen)
        return;
    write(name, *chosen);
    drawing_.DrawInterface();
}

void SectionStyles::ChooseSectionFont(int number) {
    const SectionProperties* section = sectionAt(number);
    if (!section || !section->font)
        return;
    const QString font = QString::fromUtf16(section->font);
    const auto value = [&](const char* part) { return properties_.read(font + QLatin1String(part)); };
    const auto chosen =
        dialogs_.fontDialog({value("Name").toString(), value("Size").toDouble(), value("Bold").toBool(),
                             value("Italic").toBool(), value("Underline").toBool()});
    lifetime_.throwIfDestroyed();
    if (!chosen)
        return;
    write(font + QStringLiteral("Name"), chosen->FontName);
    write(font + QStringLiteral("Size"), chosen->FontSize);
    write(font + QStringLiteral("Bold"), chosen->FontBold);
    write(font + QStringLiteral("Italic"), chosen->FontItalic);
    write(font + QStringLiteral("Underline"), chosen->FontUnderline);
    drawing_.DrawInterface();
}

void SectionStyles::write(const QString& name, const QVariant& value) const {
    properties_.write(name, value);
    lifetime_.throwIfDestroyed();
}

} // namespace zkp
