#include "stage/PrivateSession.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QThread>

using namespace std::chrono_literals;

PrivateSession::PrivateSession()
{
    QDir(m_home.path()).mkpath(QStringLiteral("run"));
    QFile::setPermissions(
        m_home.filePath(QStringLiteral("run")), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    // Without the system's service files, so that only this desktop's own servers are started.
    QFile configuration(file(QStringLiteral("bus.conf")));
    if (!configuration.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(configuration.fileName()));
    configuration.write("<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen>"
                        "<policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
                        "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>");
    configuration.close();
    m_bus = &launch(
        QStringLiteral("dbus-daemon"), {QStringLiteral("--config-file=") + configuration.fileName(),
                                           QStringLiteral("--nofork"), QStringLiteral("--print-address")});
    m_busAddress = QString::fromLatin1(firstLine(*m_bus));
}

PrivateSession::~PrivateSession()
{
    stopAll();
}

void PrivateSession::stopAll()
{
    while (!m_processes.empty()) {
        stop(*m_processes.back());
        m_processes.pop_back();
    }
}

void PrivateSession::stopBus()
{
    m_bus->kill();
    m_bus->waitForFinished();
}

QByteArray PrivateSession::firstLine(QProcess &process)
{
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(10'000))
            qFatal("%s did not print its address", qPrintable(process.program()));
    }
    return process.readLine().trimmed();
}

QProcess &PrivateSession::launch(const QString &program, const QStringList &arguments)
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

QProcessEnvironment PrivateSession::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_ACTIVATION_TOKEN",
             "DESKTOP_STARTUP_ID", "DBUS_SESSION_BUS_ADDRESS", "AT_SPI_BUS_ADDRESS", "XDG_CURRENT_DESKTOP",
             "QT_IM_MODULE", "LD_PRELOAD"})
        environment.remove(QString::fromLatin1(name));
    environment.insert(QStringLiteral("HOME"), m_home.path());
    environment.insert(QStringLiteral("XDG_DATA_HOME"), m_home.filePath(QStringLiteral("data")));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_home.filePath(QStringLiteral("config")));
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), m_home.filePath(QStringLiteral("cache")));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_home.filePath(QStringLiteral("run")));
    environment.insert(QStringLiteral("TZ"), QStringLiteral("Asia/Shanghai"));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("QT_LOGGING_TO_CONSOLE"), QStringLiteral("1"));
    if (!m_busAddress.isEmpty())
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_busAddress);
    return environment;
}

QString PrivateSession::dataFile(const QString &name) const
{
    return m_home.filePath(QStringLiteral("data/Quillet/") + name);
}

std::unique_ptr<QProcess> PrivateSession::start(
    const QString &program, std::chrono::milliseconds clockShift, const QStringList &arguments) const
{
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = this->environment();
    if (clockShift != 0ms) {
        environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(SHIFTED_CLOCK));
        environment.insert(QStringLiteral("STAGE_CLOCK_SHIFT_MS"), QString::number(clockShift.count()));
        // AddressSanitizer insists on being the first library, although it works when it is not.
        environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("verify_asan_link_order=0"));
    }
    process->setProcessEnvironment(environment);
    process->setProcessChannelMode(QProcess::MergedChannels);
    process->start(program, arguments);
    if (!process->waitForStarted())
        qFatal("cannot start %s: %s", qPrintable(program), qPrintable(process->errorString()));
    return process;
}

void PrivateSession::stop(QProcess &process)
{
    process.terminate();
    if (!process.waitForFinished(5000)) {
        process.kill();
        process.waitForFinished();
    }
}

bool PrivateSession::waitUntil(const std::function<bool()> &condition, std::chrono::milliseconds timeLimit)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > timeLimit.count())
            return false;
        QCoreApplication::processEvents();
        QThread::msleep(1);
    }
    return true;
}
