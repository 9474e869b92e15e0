#include "stage/WaylandDesktop.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

WaylandDesktop::WaylandDesktop()
{
    const QString configuration = writeFile(u"sway"_s, "output HEADLESS-1 resolution 1024x720\n");
    QStringList sway{u"env"_s, u"WLR_BACKENDS=headless"_s, u"WLR_RENDERER=pixman"_s,
        u"WLR_LIBINPUT_NO_DEVICES=1"_s, u"sway"_s, u"-c"_s, configuration};
    if (::geteuid() == 0) // as which sway refuses to run
        sway = asNobody() + sway;
    launch(sway.first(), sway.sliced(1));
    const auto socket = [this](const QString &pattern) {
        const QDir run(file(u"run"_s));
        const QStringList found = run.entryList({pattern}, QDir::System | QDir::Files);
        return found.isEmpty() ? QString() : run.filePath(found.first());
    };
    const bool isUp = waitUntil([&] {
        m_display = socket(u"wayland-?"_s);
        m_socket = socket(u"sway-ipc*"_s);
        return !m_display.isEmpty() && !m_socket.isEmpty();
    });
    if (!isUp)
        qFatal("sway does not come up");
    // A keyboard that stays: otherwise the focus is lost with the keyboard of each wtype that ends.
    launch(u"wtype"_s, {u"-s"_s, u"600000"_s});
}

/// Gives the folder of the sockets to the user nobody, and returns the command that becomes this user.
QStringList WaylandDesktop::asNobody() const
{
    const QString run = file(u"run"_s);
    const passwd *nobody = ::getpwnam("nobody");
    if (!nobody || ::chown(QFile::encodeName(run).constData(), nobody->pw_uid, nobody->pw_gid) != 0)
        qFatal("cannot give %s away", qPrintable(run));
    QFile::setPermissions(file({}),
        QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    return {u"setpriv"_s, u"--reuid=nobody"_s, u"--regid=nogroup"_s, u"--clear-groups"_s};
}

bool WaylandDesktop::isPossible()
{
    for (const QString &program : {u"sway"_s, u"wtype"_s, u"setpriv"_s}) {
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
    environment.insert(u"QT_QPA_PLATFORM"_s, u"wayland"_s);
    if (!m_display.isEmpty())
        environment.insert(u"WAYLAND_DISPLAY"_s, m_display);
    if (!m_socket.isEmpty())
        environment.insert(u"SWAYSOCK"_s, m_socket);
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
    (void)output(u"wtype"_s, QStringList{u"-s"_s, u"200"_s} + arguments + QStringList{u"-s"_s, u"100"_s});
}

bool WaylandDesktop::hasWindow(const QString &applicationID) const
{
    return output(u"swaymsg"_s, {u"-t"_s, u"get_tree"_s, u"-r"_s})
        .contains("\"app_id\": \"" + applicationID.toUtf8() + '"');
}
