#include "app/QuilletApp.h"
#include "desktop/ApplicationIdentity.h"
#include "desktop/ApplicationService.h"
#include "desktop/SingleInstance.h"
#include "model/AppPaths.h"
#include "text/L10n.h"
#include "ui/lists/RowListAccessible.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLibraryInfo>
#include <QTranslator>

namespace {
struct Options {
    bool toggles = false;
    bool isHidden = false;
};

/// Needs neither a display nor the data folder, so that --help works while the program runs.
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
    // Unknown options belong to Qt, for example -session.
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
    RowListAccessible::install();
    // For Qt's own texts, in the file dialogs and in the menu of the field.
    QTranslator qtTranslator;
    if (qtTranslator.load(
            QStringLiteral("qtbase_") + QString::fromLatin1(L10n::locale(L10n::currentLanguage())),
            QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&qtTranslator);
    using Start = QuilletApp::Start;
    const QuilletApp quillet(options.isHidden                                 ? Start::Hidden
                             : options.toggles || instance.isVeryFirstStart() ? Start::Open
                                                                              : Start::Quiet);
    return QApplication::exec();
}
