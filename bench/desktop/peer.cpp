// An empty program of Quillet's kind: a tray icon, the hot key, a panel of the same size with nothing in it.
#include "desktop/X11HotKey.h"
#include "ui/looks/Design.h"

#include <QApplication>
#include <QSystemTrayIcon>
#include <QWidget>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillet"));
    QApplication::setQuitOnLastWindowClosed(false);

    QPixmap pixmap(22, 22);
    pixmap.fill(Qt::white);
    QSystemTrayIcon icon{QIcon(pixmap)};
    icon.show();

    QWidget panel;
    panel.setWindowTitle(QStringLiteral("Quillet"));
    panel.setFixedSize(Design::panelSize);
    QPalette colors = panel.palette();
    colors.setColor(QPalette::Window, Design::ground.light); // as Quillet's panel, to be found the same way
    panel.setPalette(colors);
    panel.winId();

    X11HotKey hotKey;
    QObject::connect(&hotKey, &X11HotKey::pressed, &panel, [&panel, &hotKey] {
        panel.setVisible(!panel.isVisible());
        if (panel.isVisible())
            panel.activateWindow();
        hotKey.releaseKeyboard();
    });
    bool failed = false;
    QObject::connect(&hotKey, &X11HotKey::failed, [&failed] { failed = true; });
    hotKey.request();
    return failed ? 1 : QApplication::exec();
}
