#include "stage/PrivateSession.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QThread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {
void begin(QProcess &process, const QString &program, const QStringList &arguments)
{
    process.start(program, arguments);
    if (!process.waitForStarted())
        qFatal("cannot start %s: %s", qPrintable(program), qPrintable(process.errorString()));
}
} // namespace

PrivateSession::PrivateSession()
{
    QDir(m_home.path()).mkpath(u"run"_s);
    QFile::setPermissions(file(u"run"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    // Without the system's service files, so that only this desktop's own servers are started.
    const QString configuration = writeFile(u"bus.conf"_s,
        "<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen>"
        "<policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
        "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>");
    m_bus =
        &launch(u"dbus-daemon"_s, {u"--config-file="_s + configuration, u"--nofork"_s, u"--print-address"_s});
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

QString PrivateSession::writeFile(const QString &name, const QByteArray &bytes) const
{
    QFile file(QDir(m_home.path()).filePath(name));
    QDir().mkpath(QFileInfo(file).path());
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
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
    process->setStandardErrorFile(QProcess::nullDevice());
    begin(*process, program, arguments);
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
    environment.insert(u"HOME"_s, m_home.path());
    environment.insert(u"XDG_DATA_HOME"_s, file(u"data"_s));
    environment.insert(u"XDG_CONFIG_HOME"_s, file(u"config"_s));
    environment.insert(u"XDG_CACHE_HOME"_s, file(u"cache"_s));
    environment.insert(u"XDG_RUNTIME_DIR"_s, file(u"run"_s));
    environment.insert(u"TZ"_s, u"Asia/Shanghai"_s);
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    environment.insert(u"QT_LOGGING_TO_CONSOLE"_s, u"1"_s);
    if (!m_busAddress.isEmpty())
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, m_busAddress);
    return environment;
}

std::unique_ptr<QProcess> PrivateSession::start(
    const QString &program, std::chrono::milliseconds clockShift, const QStringList &arguments) const
{
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = this->environment();
    if (clockShift != 0ms) {
        environment.insert(u"LD_PRELOAD"_s, QStringLiteral(SHIFTED_CLOCK));
        environment.insert(u"STAGE_CLOCK_SHIFT_MS"_s, QString::number(clockShift.count()));
        // AddressSanitizer insists on being the first library, although it works when it is not.
        environment.insert(u"ASAN_OPTIONS"_s, u"verify_asan_link_order=0"_s);
    }
    process->setProcessEnvironment(environment);
    process->setProcessChannelMode(QProcess::MergedChannels);
    begin(*process, program, arguments);
    return process;
}

void PrivateSession::stop(QProcess &process)
{
    process.terminate();
    if (!process.waitForFinished(5000))
        kill(process);
}

void PrivateSession::kill(QProcess &process)
{
    process.kill();
    process.waitForFinished();
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
