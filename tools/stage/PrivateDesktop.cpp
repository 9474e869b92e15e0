#include "stage/PrivateDesktop.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QPainter>
#include <QThread>

using namespace std::chrono_literals;

namespace {
QByteArray firstLine(QProcess &process)
{
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(10'000))
            qFatal("%s did not say where it is", qPrintable(process.program()));
    }
    return process.readLine().trimmed();
}
} // namespace

PrivateDesktop::PrivateDesktop(Options options)
    : m_scale(options.scale)
{
    QDir(m_home.path()).mkpath(QStringLiteral("run"));
    QFile::setPermissions(
        m_home.filePath(QStringLiteral("run")), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

    QProcess &server = launch(QStringLiteral("Xvfb"),
        {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
            QStringLiteral("%1x%2x24").arg(1024 * m_scale).arg(720 * m_scale), QStringLiteral("-nolisten"),
            QStringLiteral("tcp")});
    m_display = u':' + QString::fromLatin1(firstLine(server));
    QProcess &bus = launch(QStringLiteral("dbus-daemon"),
        {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
    m_busAddress = QString::fromLatin1(firstLine(bus));
    m_screen = std::make_unique<XServer>(m_display);

    launch(QStringLiteral("openbox"), {});
    paintWallpaper();
    if (options.hasCompositor)
        launch(QStringLiteral("picom"), {QStringLiteral("--backend"), QStringLiteral("xrender")});
    if (options.hasTray) {
        launch(QStringLiteral("tint2"), {});
        if (!waitUntil([this] { return !m_screen->windowsOfClass(QStringLiteral("tint2")).isEmpty(); }))
            qFatal("tint2 does not come up");
    }
    if (options.hasDunst)
        startDunst();
}

PrivateDesktop::~PrivateDesktop()
{
    m_screen.reset();
    while (!m_processes.empty()) {
        stop(*m_processes.back());
        m_processes.pop_back();
    }
}

void PrivateDesktop::startDunst()
{
    const QString path = m_home.filePath(QStringLiteral("dunstrc"));
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
    // Of many colours, so that a corner or a shadow that is wrong is seen.
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

QProcess &PrivateDesktop::launch(const QString &program, const QStringList &arguments)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment());
    process->setProcessChannelMode(QProcess::SeparateChannels);
    process->setStandardErrorFile(QProcess::nullDevice());
    process->start(program, arguments);
    if (!process->waitForStarted())
        qFatal("cannot start %s: %s", qPrintable(program), qPrintable(process->errorString()));
    m_processes.push_back(std::move(process));
    return *m_processes.back();
}

QProcessEnvironment PrivateDesktop::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name :
        {"WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID",
            "DBUS_SESSION_BUS_ADDRESS", "XDG_CURRENT_DESKTOP", "QT_IM_MODULE", "LD_PRELOAD"})
        environment.remove(QString::fromLatin1(name));
    environment.insert(QStringLiteral("HOME"), m_home.path());
    environment.insert(QStringLiteral("XDG_DATA_HOME"), m_home.filePath(QStringLiteral("data")));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_home.filePath(QStringLiteral("config")));
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), m_home.filePath(QStringLiteral("cache")));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_home.filePath(QStringLiteral("run")));
    environment.insert(QStringLiteral("TZ"), QStringLiteral("Asia/Shanghai"));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("QT_LOGGING_TO_CONSOLE"), QStringLiteral("1"));
    if (m_scale != 1)
        environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::number(m_scale));
    if (!m_display.isEmpty())
        environment.insert(QStringLiteral("DISPLAY"), m_display);
    if (!m_busAddress.isEmpty())
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_busAddress);
    return environment;
}

QString PrivateDesktop::dataFile(const QString &name) const
{
    return m_home.filePath(QStringLiteral("data/Quillet/") + name);
}

std::unique_ptr<QProcess> PrivateDesktop::start(
    const QString &program, std::chrono::milliseconds clockShift) const
{
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = this->environment();
    if (clockShift != 0ms) {
        environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(SHIFTED_CLOCK));
        environment.insert(QStringLiteral("STAGE_CLOCK_SHIFT_MS"), QString::number(clockShift.count()));
        // The sanitizer wants to be the first library, and does as well when it is not.
        environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("verify_asan_link_order=0"));
    }
    process->setProcessEnvironment(environment);
    process->setProcessChannelMode(QProcess::MergedChannels);
    process->start(program, QStringList());
    if (!process->waitForStarted())
        qFatal("cannot start %s: %s", qPrintable(program), qPrintable(process->errorString()));
    return process;
}

void PrivateDesktop::stop(QProcess &process)
{
    process.terminate();
    if (!process.waitForFinished(5000)) {
        process.kill();
        process.waitForFinished();
    }
}

bool PrivateDesktop::waitUntil(const std::function<bool()> &holds, std::chrono::milliseconds limit)
{
    QElapsedTimer timer;
    timer.start();
    while (!holds()) {
        if (timer.elapsed() > limit.count())
            return false;
        QCoreApplication::processEvents();
        QThread::msleep(1);
    }
    return true;
}
