// Runs Quillet on private desktops and saves screenshots: "walk" follows one note, "gallery" shows every
// view.
#include "tour/Gallery.h"
#include "tour/Walk.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString what = arguments.value(1);
    if (arguments.size() != 4 || (what != u"walk" && what != u"gallery")) {
        std::fprintf(stderr, "usage: quillet-tour walk|gallery PROGRAM FOLDER\n");
        return 2;
    }
    const QString program = QDir().absoluteFilePath(arguments[2]);
    const QString &folder = arguments[3];
    QDir().mkpath(folder);
    return (what == u"walk" ? Walk::take : Gallery::take)(program, folder) ? 0 : 1;
}
