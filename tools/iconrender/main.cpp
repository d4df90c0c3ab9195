// Renders an SVG into a square PNG with Qt's own SVG renderer, so that the bitmaps installed for
// the desktop look exactly like the icon the application draws itself.
//
//     quivra-iconrender <input.svg> <output.png> <side in pixels>

#include "appicon.h"

#include <QDir>
#include <QFileInfo>

#include <cstdio>

int main(int argc, char *argv[])
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: %s <input.svg> <output.png> <side>\n", argv[0]);
        return 2;
    }
    const QString output = QString::fromLocal8Bit(argv[2]);
    bool ok = false;
    const int side = QByteArray(argv[3]).toInt(&ok);
    if (!ok || side < 1 || side > 4096) {
        std::fprintf(stderr, "%s: bad size '%s'\n", argv[0], argv[3]);
        return 2;
    }
    const QImage image = appicon::render(QString::fromLocal8Bit(argv[1]), side);
    if (image.isNull()) {
        std::fprintf(stderr, "%s: cannot read %s as SVG\n", argv[0], argv[1]);
        return 1;
    }

    // Written beside the final name and renamed, so an interrupted build leaves no half file.
    const QString partial = output + QStringLiteral(".part");
    if (!QDir().mkpath(QFileInfo(output).absolutePath()) || !image.save(partial, "PNG")) {
        std::fprintf(stderr, "%s: cannot write %s\n", argv[0], qPrintable(partial));
        return 1;
    }
    QFile::remove(output);
    if (!QFile::rename(partial, output)) {
        std::fprintf(stderr, "%s: cannot write %s\n", argv[0], argv[2]);
        return 1;
    }
    return 0;
}
