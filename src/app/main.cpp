#include "app/QuilletApp.h"
#include "desktop/ApplicationIdentity.h"
#include "desktop/ApplicationService.h"
#include "desktop/SingleInstance.h"
#include "model/AppPaths.h"
#include "text/L10n.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>

namespace {
/// For a start with any argument: to tell the options takes no window and disturbs no running program.
bool isToToggle(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A quick-capture notebook in the tray."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption toggle(
        QStringLiteral("toggle"), QStringLiteral("Opens the panel, or closes it where it is open."));
    parser.addOption(toggle);
    // What is not known here is Qt's, as -session is, with which a session brings back what ran at its end.
    (void)parser.parse(QCoreApplication::arguments());
    if (parser.isSet(help))
        parser.showHelp();
    if (parser.isSet(version))
        parser.showVersion();
    return parser.isSet(toggle);
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("Quillet"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUILLET_VERSION));
    const bool toggles = argc > 1 && isToToggle(argc, argv);

    const SingleInstance instance(AppPaths::dataFolder());
    if (!instance.isOnly()) {
        const QCoreApplication application(argc, argv);
        ApplicationService::callRunning(
            toggles ? ApplicationService::Call::Toggle : ApplicationService::Call::Activate);
        return 0;
    }

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
        toggles || instance.isVeryFirstStart() ? QuilletApp::Start::Open : QuilletApp::Start::Quiet);
    return QApplication::exec();
}
