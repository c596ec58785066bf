#pragma once

#include "window_fixture.h"

#include <QDir>

/// Pictures of the window for the eye, under the build folder: pictures/*.png.
class WindowPictureTest : public WindowTest {
protected:
    void paint(const char* name, double scale = 1) {
        settle();
        QImage image((QSizeF(window->size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(scale);
        image.fill(window->palette().color(QPalette::Window));
        window->render(&image);
        const QString folder = QStringLiteral(ZKP_BINARY_DIR "/pictures");
        QDir().mkpath(folder);
        EXPECT_TRUE(image.save(QStringLiteral("%1/%2.png").arg(folder, QLatin1String(name))));
    }
};
