#include "stage/PrivateDesktop.h"

#include <QFile>
#include <QPainter>

PrivateDesktop::PrivateDesktop(Options options)
    : m_scale(options.scale)
{
    m_server = &launch(QStringLiteral("Xvfb"),
        {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
            QStringLiteral("%1x%2x24").arg(1024 * m_scale).arg(720 * m_scale), QStringLiteral("-nolisten"),
            QStringLiteral("tcp")});
    m_display = u':' + QString::fromLatin1(firstLine(*m_server));
    m_screen = std::make_unique<XServer>(m_display);

    launch(QStringLiteral("openbox"), {});
    paintWallpaper();
    if (options.hasCompositor)
        launch(QStringLiteral("picom"), {QStringLiteral("--backend"), QStringLiteral("xrender")});
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
    m_server->kill();
    m_server->waitForFinished();
}

QProcessEnvironment PrivateDesktop::environment() const
{
    QProcessEnvironment environment = PrivateSession::environment();
    if (m_scale != 1)
        environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::number(m_scale));
    if (!m_display.isEmpty())
        environment.insert(QStringLiteral("DISPLAY"), m_display);
    return environment;
}

void PrivateDesktop::startTray()
{
    m_tray = &launch(QStringLiteral("tint2"), {});
    if (!waitUntil([this] { return !m_screen->windowsOfClass(QStringLiteral("tint2")).isEmpty(); }))
        qFatal("tint2 does not come up");
}

void PrivateDesktop::stopTray()
{
    m_tray->kill();
    m_tray->waitForFinished();
}

void PrivateDesktop::startDunst()
{
    const QString path = this->file(QStringLiteral("dunstrc"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(path));
    file.write("[global]\n"
               "    width = 300\n"
               "    origin = top-right\n"
               "    offset = 16x16\n"
               "    font = Noto Sans CJK SC 11\n"
               "    frame_width = 1\n"
               "    mouse_left_click = do_action, close_current\n");
    file.close();
    launch(QStringLiteral("dunst"), {QStringLiteral("-conf"), path});
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
