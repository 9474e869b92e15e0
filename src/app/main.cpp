#include "app/QuilletApp.h"
#include "desktop/ApplicationIdentity.h"
#include "desktop/ApplicationService.h"
#include "desktop/SingleInstance.h"
#include "model/AppPaths.h"
#include "text/L10n.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLibraryInfo>
#include <QTranslator>

namespace {
struct Options {
    bool toggles = false;
    bool isHidden = false;
};

/// For a start with any argument: to tell the options takes no window and disturbs no running program.
Options optionsOf(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A quick-capture notebook in the tray."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption toggle(
        QStringLiteral("toggle"), QStringLiteral("Opens the panel, or closes it where it is open."));
    const QCommandLineOption hidden(
        QStringLiteral("hidden"), QStringLiteral("Shows no window, the very first time too."));
    parser.addOptions({toggle, hidden});
    // What is not known here is Qt's, as -session is, with which a session brings back what ran at its end.
    (void)parser.parse(QCoreApplication::arguments());
    if (parser.isSet(help))
        parser.showHelp();
    if (parser.isSet(version))
        parser.showVersion();
    return {parser.isSet(toggle), parser.isSet(hidden)};
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("Quillet"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUILLET_VERSION));
    const Options options = argc > 1 ? optionsOf(argc, argv) : Options();

    const SingleInstance instance(AppPaths::dataFolder());
    if (!instance.isOnly()) {
        if (options.isHidden)
            return 0;
        const QCoreApplication application(argc, argv);
        ApplicationService::callRunning(
            options.toggles ? ApplicationService::Call::Toggle : ApplicationService::Call::Activate);
        return 0;
    }

    QGuiApplication::setDesktopFileName(ApplicationIdentity::id);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    // Qt's own words, in the file dialogs and in the menu of the field, are in the interface language too.
    QTranslator qtWords;
    if (qtWords.load(QStringLiteral("qtbase_") + QString::fromLatin1(L10n::locale(L10n::currentLanguage())),
            QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&qtWords);
    using Start = QuilletApp::Start;
    const QuilletApp quillet(options.isHidden                                 ? Start::Hidden
                             : options.toggles || instance.isVeryFirstStart() ? Start::Open
                                                                              : Start::Quiet);
    return QApplication::exec();
}
