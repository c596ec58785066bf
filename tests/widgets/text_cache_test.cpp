#include "widgets/grid/text_cache.h"

#include <QFontMetricsF>
#include <QSet>

#include <gtest/gtest.h>

namespace zkp {
namespace {

float widthOf(FontFace& face, const QString& text) {
    return face.shape(text).width;
}

TEST(TextCache, AShapedTextIsAsWideAsTheToolkitsOwn) {
    TextCache cache;
    FontFace& face = cache.face(CellStyle());
    const QFontMetricsF metrics(face.font());
    for (const QString& text : {QStringLiteral("Παπαδοπούλου Αικατερίνη"), QStringLiteral("-1.234.567,89"),
                                QStringLiteral("Ὀδυσσεύς €"), QStringLiteral("AVATAR, Type")})
        EXPECT_NEAR(static_cast<double>(widthOf(face, text)), metrics.horizontalAdvance(text), 1.5)
            << text.toStdString();
}

TEST(TextCache, ScriptsThatNeedMoreGoThroughTheLayout) {
    TextCache cache;
    FontFace& face = cache.face(CellStyle());
    for (const QString& text : {QStringLiteral("שלום"), QStringLiteral("日本"), QStringLiteral("ά́")}) {
        const ShapedText& shaped = face.shape(text);
        EXPECT_TRUE(shaped.glyphs.empty());
        EXPECT_GT(shaped.width, 0) << text.toStdString();
    }
}

TEST(TextCache, AnElidedTextFitsAndEndsInTheEllipsis) {
    TextCache cache;
    FontFace& face = cache.face(CellStyle());
    const QString text = QStringLiteral("Αντωνόπουλος Κωνσταντίνος");
    const std::vector<quint32> whole = face.shape(text).glyphs;
    const std::vector<quint32> ellipsis = face.shape(QString(QChar(0x2026))).glyphs;
    const ShapedText& cut = face.shapeElided(text, 60);
    EXPECT_LE(cut.width, 60);
    ASSERT_GT(cut.glyphs.size(), 4u);
    EXPECT_TRUE(std::equal(cut.glyphs.begin(), cut.glyphs.end() - 1, whole.begin()));
    EXPECT_EQ(cut.glyphs.back(), ellipsis.front());
}

TEST(TextCache, EveryFontOfAStyleHasAFaceOfItsOwn) {
    TextCache cache;
    CellStyle bold;
    bold.bold = true;
    CellStyle large;
    large.fontSize = 14;
    CellStyle red;
    red.foreColor = 0xFF;
    FontFace& plain = cache.face(CellStyle());
    EXPECT_NE(&plain, &cache.face(bold));
    EXPECT_NE(&plain, &cache.face(large));
    EXPECT_EQ(&plain, &cache.face(red)) << "a colour is no font";
    const QString text = QStringLiteral("Σύνολο");
    EXPECT_GT(widthOf(cache.face(large), text), widthOf(plain, text) * 1.5F);
}

TEST(TextCache, ManyTextsDoNotPileUp) {
    TextCache cache;
    FontFace& face = cache.face(CellStyle());
    for (int i = 0; i < 50'000; ++i)
        face.shape(QString::number(i));
    EXPECT_LE(face.kept(), 8192);
}

} // namespace
} // namespace zkp
