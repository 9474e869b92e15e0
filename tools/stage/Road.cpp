#include "stage/Road.h"

#include "foundation/Clock.h"
#include "model/NoteCoding.h"
#include "ui/looks/Design.h"

#include <QDebug>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {
/// The title of the panel, and the class of panel and tray icon.
const QString name = u"Quillet"_s;
constexpr int smallestPanel = 100;

QByteArray bytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

void Road::start(std::chrono::milliseconds clockShift, const QStringList &arguments)
{
    m_process = m_desktop.start(m_program, clockShift, arguments);
}

void Road::stop()
{
    if (m_process)
        PrivateDesktop::stop(*m_process);
}

std::optional<QRect> Road::trayIcon() const
{
    for (const XServer::Window &window : m_desktop.screen().windowsOfClass(name)) {
        if (window.isInner && window.frame.height() < smallestPanel)
            return window.frame;
    }
    return std::nullopt;
}

bool Road::waitForTrayIcon()
{
    const bool isThere = PrivateDesktop::waitUntil([this] { return trayIcon().has_value(); });
    if (!isThere) {
        for (const XServer::Window &window : m_desktop.screen().windowsOfClass(name))
            qWarning() << "a window, not an icon in the tray:" << window.frame << window.isInner;
        qWarning("the program says: %s", m_process->readAll().constData());
    }
    return isThere;
}

std::optional<QRect> Road::panel() const
{
    for (const XServer::Window &window : m_desktop.screen().windowsTitled(name)) {
        if (window.frame.height() >= smallestPanel)
            return window.frame;
    }
    return std::nullopt;
}

bool Road::waitForPanel(bool isOpen)
{
    return PrivateDesktop::waitUntil([this, isOpen] { return panel().has_value() == isOpen; });
}

void Road::pressHotKey()
{
    m_desktop.screen().press({Keysym::control, Keysym::alt, Keysym::space});
}

bool Road::isFlashing() const
{
    const auto rect = panel();
    if (!rect)
        return false;
    const QImage image = m_desktop.screen().screenshot(*rect);
    int lit = 0;
    for (int y = 0; y < image.height(); ++y)
        lit += (image.pixel(12, y) & RGB_MASK) == (Design::flashGround.light & RGB_MASK);
    return lit > 20;
}

QList<Note> Road::savedNotes(const QString &file) const
{
    const auto notes = noteDecoder::decodeNotes(bytes(m_desktop.dataFile(file)));
    return notes ? notes.value() : QList<Note>();
}

QList<Reminder> Road::savedReminders() const
{
    const auto reminders = noteDecoder::decodeReminders(bytes(m_desktop.dataFile(u"reminders.json"_s)));
    return reminders ? reminders.value() : QList<Reminder>();
}

std::chrono::milliseconds Road::shiftTo(Instant instant, std::chrono::milliseconds before)
{
    return instant - before - SystemClock().now();
}
