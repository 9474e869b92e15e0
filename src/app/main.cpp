#include "app/QuilletApp.h"
#include "desktop/ApplicationIdentity.h"
#include "desktop/ApplicationService.h"
#include "desktop/SingleInstance.h"
#include "model/AppPaths.h"
#include "text/L10n.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>

int main(int argc, char *argv[])
{
    const SingleInstance instance(AppPaths::dataFolder());
    if (!instance.isOnly()) {
        const QCoreApplication application(argc, argv);
        ApplicationService::activateRunning();
        return 0;
    }

    QCoreApplication::setApplicationName(QStringLiteral("Quillet"));
    QGuiApplication::setDesktopFileName(ApplicationIdentity::id);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/%1.svg").arg(ApplicationIdentity::id)));
    // Qt's own words, in the file dialogs and in the menu of the field, are in the interface language too.
    QTranslator qtWords;
    if (qtWords.load(QStringLiteral("qtbase_") + QString::fromLatin1(L10n::locale(L10n::currentLanguage())),
            QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&qtWords);
    const QuilletApp quillet(
        instance.isVeryFirstStart() ? QuilletApp::Start::VeryFirst : QuilletApp::Start::Quiet);
    return QApplication::exec();
}
