#include "stage/PrivateDesktop.h"

#include <QPainter>

using namespace Qt::StringLiterals;

PrivateDesktop::PrivateDesktop(Options options)
    : m_scale(options.scale)
{
    m_server = &launch(
        u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s,
                       u"%1x%2x24"_s.arg(1024 * m_scale).arg(720 * m_scale), u"-nolisten"_s, u"tcp"_s});
    m_display = u':' + QString::fromLatin1(firstLine(*m_server));
    m_screen = std::make_unique<XServer>(m_display);

    launch(u"openbox"_s, {});
    paintWallpaper();
    if (options.hasCompositor)
        launch(u"picom"_s, {u"--backend"_s, u"xrender"_s});
    if (options.hasTray)
        startTray();
    if (options.hasDunst)
        startDunst();
}

PrivateDesktop::~PrivateDesktop()
{
    m_screen.reset();
    stopAll();
}

void PrivateDesktop::stopScreen()
{
    m_screen.reset();
    kill(*m_server);
}

QProcessEnvironment PrivateDesktop::environment() const
{
    QProcessEnvironment environment = PrivateSession::environment();
    if (m_scale != 1)
        environment.insert(u"QT_SCALE_FACTOR"_s, QString::number(m_scale));
    if (!m_display.isEmpty())
        environment.insert(u"DISPLAY"_s, m_display);
    return environment;
}

void PrivateDesktop::startTray()
{
    m_tray = &launch(u"tint2"_s, {});
    if (!waitUntil([this] { return !m_screen->windowsOfClass(u"tint2"_s).isEmpty(); }))
        qFatal("tint2 does not come up");
}

void PrivateDesktop::startDunst()
{
    const QString configuration =
        writeFile(u"dunstrc"_s, "[global]\n"
                                "    width = 300\n"
                                "    origin = top-right\n"
                                "    offset = 16x16\n"
                                "    font = Noto Sans CJK SC 11\n"
                                "    frame_width = 1\n"
                                "    mouse_left_click = do_action, close_current\n");
    launch(u"dunst"_s, {u"-conf"_s, configuration});
}

void PrivateDesktop::paintWallpaper()
{
    // Of many colours, so that wrong corners and shadows are visible.
    QImage wallpaper(QSize(1024, 720) * m_scale, QImage::Format_RGB32);
    QPainter painter(&wallpaper);
    QLinearGradient sky(0, 0, wallpaper.width(), wallpaper.height());
    sky.setColorAt(0, QColor(0x5b, 0x8c, 0xb8));
    sky.setColorAt(0.5, QColor(0xb9, 0xc8, 0xbf));
    sky.setColorAt(1, QColor(0xd8, 0x9b, 0x6a));
    painter.fillRect(wallpaper.rect(), sky);
    painter.end();
    m_screen->setWallpaper(wallpaper);
}
