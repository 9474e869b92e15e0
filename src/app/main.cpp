#include "app/QuilletApp.h"
#include "desktop/ApplicationIdentity.h"
#include "desktop/ApplicationService.h"
#include "desktop/SingleInstance.h"
#include "model/AppPaths.h"

#include <QApplication>

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
    const QuilletApp quillet(
        instance.isVeryFirstStart() ? QuilletApp::Start::VeryFirst : QuilletApp::Start::Quiet);
    return QApplication::exec();
}
