#include "template_fixture.h"

#include "host/application_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QtEndian>

namespace zkp::test {

namespace {

using namespace Qt::StringLiterals;

QString shown(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? u"True"_s : u"False"_s;
    case QMetaType::QString:
        return u'"' + value.toString() + u'"';
    case QMetaType::UInt:
        return u"&H"_s + QString::number(value.toUInt(), 16).toUpper().rightJustified(8, u'0');
    default:
        return QString::number(value.toDouble(), 'g', 15);
    }
}

QVariant parsed(const QString& text) {
    if (text.startsWith(u'"'))
        return text.mid(1, text.size() - 2);
    if (text == u"True"_s || text == u"False"_s)
        return text == u"True"_s;
    if (text.startsWith(u"&H"_s))
        return text.mid(2).toUInt(nullptr, 16);
    return text.toDouble();
}

/// "NAME(1,2)" parted into the name and its indexes.
struct Indexed {
    explicit Indexed(const QString& text)
        : name(text.section(u'(', 0, 0)) {
        const QString inner = text.section(u'(', 1).chopped(text.contains(u'(') ? 1 : 0);
        if (!inner.isEmpty())
            for (const QString& index : inner.split(u','))
                indexes << index.toInt();
    }
    QString name;
    QVariantList indexes;
};

/// The column and the member that "Columns(1).Caption" names.
std::optional<std::pair<int, QString>> columnMember(const QString& name) {
    static const QRegularExpression pattern(u"^Columns\\((\\d+)\\)\\.(\\w+)$"_s);
    const QRegularExpressionMatch match = pattern.match(name);
    if (!match.hasMatch())
        return std::nullopt;
    return std::pair(match.captured(1).toInt(), match.captured(2));
}

QVariant memberOf(const Column& column, const QString& member) {
#define ZKP_GET(Type, Name, ...)                                                                             \
    if (member == QStringLiteral(#Name))                                                                     \
        return QVariant::fromValue(column.Name);
    ZKP_COLUMN_MEMBERS(ZKP_GET)
#undef ZKP_GET
    ADD_FAILURE() << "no member " << member.toStdString();
    return {};
}

void setMemberOf(Column& column, const QString& member, const QVariant& value) {
#define ZKP_SET(Type, Name, ...)                                                                             \
    if (member == QStringLiteral(#Name)) {                                                                   \
        column.Name = value.value<Type>();                                                                   \
        return;                                                                                              \
    }
    ZKP_COLUMN_MEMBERS(ZKP_SET)
#undef ZKP_SET
    ADD_FAILURE() << "no member " << member.toStdString();
}

struct BagLine {
    QString operator()(bool value) const { return u"Boolean "_s + shown(value); }
    QString operator()(std::int16_t value) const { return u"int16 "_s + QString::number(value); }
    QString operator()(std::int32_t value) const { return u"int32 "_s + QString::number(value); }
    QString operator()(float value) const { return u"single "_s + QString::number(value, 'g', 7); }
    QString operator()(double value) const { return u"double "_s + shown(value); }
    QString operator()(const QString& value) const { return u"text "_s + shown(value); }
    QString operator()(Color value) const { return u"colour "_s + shown(value); }
    QString operator()(const BagFont& font) const {
        return u"font "_s + shown(font.name) + u' ' + shown(font.size) +
               (font.bold ? u" bold"_s : QString()) + (font.italic ? u" italic"_s : QString()) +
               (font.underline ? u" underline"_s : QString()) +
               (font.strikethru ? u" strikethru"_s : QString());
    }
};

QString nameOf(const QString& line) {
    return line.section(u' ', 0, 0);
}

} // namespace

QStringList goldenLines(const char* name) {
    QFile file(QStringLiteral(ZKP_SOURCE_DIR "/tests/template/goldens/") + QLatin1String(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    QStringList lines;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts))
        if (!line.startsWith(u'#'))
            lines << line;
    return lines;
}

QStringList bagLines(const PropertyBag& bag) {
    QStringList lines;
    for (const PropertyBag::Entry& entry : bag.entries())
        lines << entry.key + u' ' + std::visit(BagLine(), entry.value);
    return lines;
}

QString shownValue(ZkpGrid& grid, const QString& name) {
    if (name == u"Columns.Count"_s)
        return shown(grid.Columns().Count());
    if (name == u"lbltemplate"_s || name == u"lblfilter"_s)
        return shown((name == u"lblfilter"_s ? grid.lblfilter() : grid.lbltemplate()).Caption);
    if (const auto member = columnMember(name))
        return shown(memberOf(grid.Columns().Item(member->first), member->second));
    const Indexed indexed(name);
    return shown(grid.getMember(indexed.name, indexed.indexes));
}

void setShownValue(ZkpGrid& grid, const QString& name, const QString& shown) {
    if (const auto member = columnMember(name))
        return setMemberOf(grid.Columns().Item(member->first), member->second, parsed(shown));
    const Indexed indexed(name);
    grid.setMember(indexed.name, parsed(shown), indexed.indexes);
}

void applyGolden(ZkpGrid& grid, const char* name) {
    for (const QString& line : goldenLines(name))
        setShownValue(grid, nameOf(line), line.section(u' ', 1));
}

QStringList linesLike(ZkpGrid& grid, const char* name) {
    QStringList lines;
    for (const QString& line : goldenLines(name))
        lines << nameOf(line) + u' ' + shownValue(grid, nameOf(line));
    return lines;
}

TemplateTest::TemplateTest() {
    setApplicationFolder(dir.path());
    database.run(cn, u"CREATE TABLE frms (lstCode INTEGER, ZKP_ BLOB)"_s);
    database.run(cn, u"CREATE TABLE frms2 (lstCode TEXT, ZKP_ BLOB, datein DATETIME)"_s);
    cn->Execute(u"INSERT INTO frms (lstCode) VALUES (0), (7), (12)"_s);
    grid->setCn(cn);
}

TemplateTest::~TemplateTest() {
    setApplicationFolder({});
}

std::unique_ptr<ZkpGrid> TemplateTest::opened(const QString& name) {
    auto other = std::make_unique<ZkpGrid>(host);
    other->opentemplate(cn, dir.path(), name);
    return other;
}

void TemplateTest::writeFile(const QString& path, const QByteArray& bytes) {
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile target(path);
    EXPECT_TRUE(target.open(QIODevice::WriteOnly));
    EXPECT_EQ(target.write(bytes), bytes.size());
}

QByteArray TemplateTest::variantOf(const QByteArray& bytes) {
    QByteArray head(12, '\0');
    qToLittleEndian<quint16>(8209, head.data());
    qToLittleEndian<quint16>(1, head.data() + 2);
    qToLittleEndian<quint32>(static_cast<quint32>(bytes.size()), head.data() + 4);
    return head + bytes;
}

} // namespace zkp::test
