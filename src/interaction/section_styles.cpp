#include "interaction/section_styles.h"

#include <array>

namespace zkp {

namespace {

/// The names of a section's properties; empty where it has none. A font's five begin alike.
struct Section {
    const char16_t* back;
    const char16_t* fore;
    const char16_t* font = nullptr;
};

/// Title and company block have no number in ZKPSections, and no font to choose here.
constexpr std::array<Section, 7> kSections{{
    {u"BackColorFixed", u"ForeColorFixed", u"FixedFont"},
    {u"GroupedBackColor", u"GroupedForecolor", u"GroupedFont"},
    {u"BackColor", u"ForeColor", u"Font"},
    {u"SubTotalsBackColor", u"SubTotalsForeColor", u"SubTotalsFont"},
    {u"TotalsBackcolor", u"TotalsForeColor", u"TotalsFont"},
    {u"TitleBackColor", u"TitleForecolor"},
    {nullptr, u"StoixeiaForecolor"},
}};

const Section* sectionAt(int number) {
    const bool stands = number >= 0 && number < static_cast<int>(kSections.size());
    return stands ? &kSections[static_cast<std::size_t>(number)] : nullptr;
}

} // namespace

void SectionStyles::ChooseSectionStyle(int number, int what) {
    const Section* section = sectionAt(number);
    const char16_t* property = !section    ? nullptr
                               : what == 0 ? section->back
                               : what == 1 ? section->fore
                                           : nullptr;
    if (!property)
        return;
    const QString name = QString::fromUtf16(property);
    const auto chosen = dialogs_.colorDialog(properties_.read(name).toUInt());
    state_.throwIfDestroyed();
    if (!chosen)
        return;
    write(name, *chosen);
    drawing_.DrawInterface();
}

void SectionStyles::ChooseSectionFont(int number) {
    const Section* section = sectionAt(number);
    if (!section || !section->font)
        return;
    const QString font = QString::fromUtf16(section->font);
    const auto value = [&](const char* part) { return properties_.read(font + QLatin1String(part)); };
    const auto chosen =
        dialogs_.fontDialog({value("Name").toString(), value("Size").toDouble(), value("Bold").toBool(),
                             value("Italic").toBool(), value("Underline").toBool()});
    state_.throwIfDestroyed();
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
    state_.throwIfDestroyed();
}

} // namespace zkp
