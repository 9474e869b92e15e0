#include "app/QuilletApp.h"

#include "desktop/ApplicationIdentity.h"
#include "reminders/ReminderDetector.h"
#include "ui/dialogs/ImportExport.h"
#include "ui/looks/NoteStyle.h"
#include "ui/panel/ContentView.h"

#include <QApplication>
#include <QIcon>
#include <QTimer>
#include <QToolTip>

namespace {
/// The panel is built after the desktop has received the icon, unless it is opened before.
constexpr std::chrono::milliseconds panelDelay{200};
} // namespace

QuilletApp::QuilletApp(Start start)
    : m_dateDetector(m_clock)
    , m_notifications(m_clock)
    , m_reminders(ReminderStore::defaultFilePath(), m_notifications, m_clock)
    , m_notes(NoteStore::defaultFilePath(), m_clock)
    , m_search(m_notes, &m_embeddings, m_clock)
    , m_panel(
          [this] {
              ReminderDetector::prepare(m_clock, m_dateDetector);
              m_search.prepare();
              m_appearance.follow();
              // After the tray has its icon, because these load fonts and a library.
              QToolTip::setFont(NoteStyle::quoteFont());
              QApplication::setWindowIcon(
                  QIcon(QStringLiteral(":/icons/%1.svg").arg(ApplicationIdentity::id)));
              auto *content =
                  new ContentView(m_notes, m_search, m_reminders, m_dateDetector, m_titles, m_clock);
              content->state().setHotKey(m_hotKey.certainKey());
              return content;
          },
          [this] { return m_statusBar.iconRect(); })
    , m_delegate(m_notes, m_panel)
{
    m_notes.setReminderStore(&m_reminders);
    connectAll();
    if (start != Start::Hidden)
        connect(&m_statusBar, &StatusBarMenu::trayMissing, &m_panel, &PanelController::open);
    applyAppearance();

    // Before the icon: once that is visible, the hot key must work.
    m_hotKey.registerHandler([this] {
        m_panel.toggle();
        m_hotKey.releaseKeyboardTo(m_panel.openWindow());
    });
    m_statusBar.install();
    presentMissedReminders();
    m_service.publish();
    if (start == Start::Open)
        m_panel.open();
    else
        QTimer::singleShot(panelDelay, &m_panel, &PanelController::prepare);
}

void QuilletApp::connectAll()
{
    connect(&m_notifications, &DesktopNotificationCenter::authorizationChanged, &m_reminders,
        &ReminderStore::refreshAuthorizationStatus);
    connect(&m_notifications, &DesktopNotificationCenter::willPresent, &m_delegate,
        &AppDelegate::willPresentNotification);
    connect(&m_notifications, &DesktopNotificationCenter::didReceive, &m_delegate,
        &AppDelegate::didReceiveNotification);
    connect(&m_notifications, &DesktopNotificationCenter::didSnooze, &m_delegate,
        &AppDelegate::didSnoozeNotification);

    connect(&m_statusBar, &StatusBarMenu::clicked, &m_panel, &PanelController::toggleByClick);
    connect(&m_statusBar, &StatusBarMenu::importChosen, this,
        [this] { ImportExport::importNotes(m_notes, m_clock, m_panel.content()); });
    connect(&m_statusBar, &StatusBarMenu::exportChosen, this,
        [this] { ImportExport::exportNotes(m_notes, m_clock, m_panel.content()); });
    connect(&m_service, &ApplicationService::activated, &m_panel, &PanelController::open);
    connect(&m_service, &ApplicationService::toggled, &m_panel, &PanelController::toggle);
    connect(&m_appearance, &Appearance::schemeChanged, this, &QuilletApp::applyAppearance);
}

void QuilletApp::applyAppearance()
{
    // Without a preference the desktop's own palette decides.
    static const bool isDarkByPalette = NoteStyle::isDark(QGuiApplication::palette());
    const bool isDark = m_appearance.scheme() == Appearance::Scheme::NoPreference
                            ? isDarkByPalette
                            : m_appearance.scheme() == Appearance::Scheme::Dark;
    QApplication::setPalette(NoteStyle::palette(isDark));
}

void QuilletApp::presentMissedReminders()
{
    // The store submits only future reminders. Those that came due while the program was not running are
    // shown now.
    const Instant now = m_clock.now();
    for (const Reminder &reminder : m_reminders.reminders()) {
        if (reminder.fireAt <= now)
            m_notifications.add(ReminderStore::notificationRequest(reminder, m_clock.calendar()));
    }
}
