#include "stage/WaylandDesktop.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace std::chrono_literals;

WaylandDesktop::WaylandDesktop()
{
    const QString configuration = file(QStringLiteral("sway"));
    QFile write(configuration);
    if (!write.open(QIODevice::WriteOnly) || write.write("output HEADLESS-1 resolution 1024x720\n") < 0)
        qFatal("cannot write %s", qPrintable(configuration));
    write.close();
    QStringList command{QStringLiteral("env"), QStringLiteral("WLR_BACKENDS=headless"),
        QStringLiteral("WLR_RENDERER=pixman"), QStringLiteral("WLR_LIBINPUT_NO_DEVICES=1"),
        QStringLiteral("sway"), QStringLiteral("-c"), configuration};
    const QString run = file(QStringLiteral("run"));
    if (::geteuid() == 0) { // sway refuses to run as root
        const passwd *nobody = ::getpwnam("nobody");
        if (!nobody || ::chown(QFile::encodeName(run).constData(), nobody->pw_uid, nobody->pw_gid) != 0)
            qFatal("cannot give %s away", qPrintable(run));
        QFile::setPermissions(QFileInfo(run).path(),
            QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
        command = QStringList{QStringLiteral("setpriv"), QStringLiteral("--reuid=nobody"),
                      QStringLiteral("--regid=nogroup"), QStringLiteral("--clear-groups")}
                  + command;
    }
    launch(command.first(), command.sliced(1));
    const auto find = [&run](const QString &pattern) {
        const QStringList found = QDir(run).entryList({pattern}, QDir::System | QDir::Files);
        return found.isEmpty() ? QString() : run + u'/' + found.first();
    };
    const auto isUp = [&] {
        m_display = find(QStringLiteral("wayland-?"));
        m_socket = find(QStringLiteral("sway-ipc*"));
        return !m_display.isEmpty() && !m_socket.isEmpty();
    };
    if (!waitUntil(isUp))
        qFatal("sway does not come up");
    // A keyboard that stays: otherwise the focus is lost with the keyboard of each wtype that ends.
    launch(QStringLiteral("wtype"), {QStringLiteral("-s"), QStringLiteral("600000")});
}

bool WaylandDesktop::isPossible()
{
    for (const QString &program :
        {QStringLiteral("sway"), QStringLiteral("wtype"), QStringLiteral("setpriv")}) {
        if (QStandardPaths::findExecutable(program).isEmpty())
            return false;
    }
    // Sway allocates its buffers there, as any user.
    struct stat sharedMemory {
    };
    return ::stat("/dev/shm", &sharedMemory) == 0 && (sharedMemory.st_mode & S_IWOTH) != 0;
}

QProcessEnvironment WaylandDesktop::environment() const
{
    QProcessEnvironment environment = PrivateSession::environment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("wayland"));
    if (!m_display.isEmpty())
        environment.insert(QStringLiteral("WAYLAND_DISPLAY"), m_display);
    if (!m_socket.isEmpty())
        environment.insert(QStringLiteral("SWAYSOCK"), m_socket);
    return environment;
}

QByteArray WaylandDesktop::output(const QString &program, const QStringList &arguments) const
{
    const auto process = start(program, {}, arguments);
    if (!process->waitForFinished())
        qFatal("%s does not end", qPrintable(program));
    return process->readAll();
}

void WaylandDesktop::type(const QStringList &arguments) const
{
    // The program must first be told of the new keyboard.
    (void)output(QStringLiteral("wtype"), QStringList{QStringLiteral("-s"), QStringLiteral("200")} + arguments
                                              + QStringList{QStringLiteral("-s"), QStringLiteral("100")});
}

bool WaylandDesktop::hasWindow(const QString &applicationID) const
{
    return output(
        QStringLiteral("swaymsg"), {QStringLiteral("-t"), QStringLiteral("get_tree"), QStringLiteral("-r")})
        .contains("\"app_id\": \"" + applicationID.toUtf8() + '"');
}
