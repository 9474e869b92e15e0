#include "app/QuilletApp.h"

#include "desktop/ApplicationIdentity.h"
#include "ui/dialogs/ImportExport.h"
#include "ui/looks/NoteStyle.h"
#include "ui/panel/ContentView.h"

#include <QApplication>
#include <QIcon>
#include <QTimer>

namespace {
/// The panel is built after the desktop has taken in the icon, unless it is wanted sooner.
constexpr std::chrono::milliseconds timeToSettle{200};
} // namespace

QuilletApp::QuilletApp(Start start)
    : m_dateDetector(m_clock)
    , m_notifications(m_clock)
    , m_reminders(ReminderStore::defaultFilePath(), m_notifications, m_clock)
    , m_notes(NoteStore::defaultFilePath(), m_clock)
    , m_panel(
          [this] {
              m_dateDetector.prepare();
              m_notes.prepareSearch();
              m_appearance.follow();
              // Not before the tray has its icon: it takes a library more.
              QApplication::setWindowIcon(
                  QIcon(QStringLiteral(":/icons/%1.svg").arg(ApplicationIdentity::id)));
              return new ContentView(m_notes, m_reminders, m_dateDetector, m_titles, m_clock);
          },
          [this] { return m_statusBar.iconPlace(); })
    , m_delegate(m_notifications, m_notes, m_panel)
{
    m_notes.setReminderStore(&m_reminders);
    m_notes.setEmbeddingProvider(&m_embeddings);
    connect(&m_notifications, &DesktopNotificationCenter::authorizationChanged, &m_reminders,
        &ReminderStore::refreshAuthorizationStatus);

    connect(&m_statusBar, &StatusBarMenu::clicked, &m_panel, &PanelController::toggleByClick);
    connect(&m_statusBar, &StatusBarMenu::importChosen, this,
        [this] { ImportExport::importNotes(m_notes, m_clock); });
    connect(&m_statusBar, &StatusBarMenu::exportChosen, this,
        [this] { ImportExport::exportNotes(m_notes, m_clock); });
    if (start != Start::Hidden)
        connect(&m_statusBar, &StatusBarMenu::noTray, &m_panel, &PanelController::open);
    connect(&m_service, &ApplicationService::activated, &m_panel, &PanelController::open);
    connect(&m_service, &ApplicationService::toggled, &m_panel, &PanelController::toggle);

    connect(&m_appearance, &Appearance::schemeChanged, this, &QuilletApp::applyAppearance);
    applyAppearance();

    m_delegate.didFinishLaunching(); // whoever sees the icon can press the hot key
    m_statusBar.install();
    presentMissedReminders();
    m_service.publish();
    if (start == Start::Open)
        m_panel.open();
    else
        QTimer::singleShot(timeToSettle, &m_panel, &PanelController::prepare);
}

void QuilletApp::applyAppearance()
{
    // Without a preference it is as the desktop's own palette.
    static const bool isDarkByPalette = NoteStyle::isDark(QGuiApplication::palette());
    const bool isDark = m_appearance.scheme() == Appearance::Scheme::NoPreference
                            ? isDarkByPalette
                            : m_appearance.scheme() == Appearance::Scheme::Dark;
    QApplication::setPalette(NoteStyle::palette(isDark));
}

void QuilletApp::presentMissedReminders()
{
    // The store submits only what is still to come; what came due while nobody was there to show it is shown
    // now.
    const Instant now = m_clock.now();
    for (const Reminder &reminder : m_reminders.reminders()) {
        if (reminder.fireAt <= now)
            m_notifications.add(ReminderStore::notificationRequest(reminder, m_clock.calendar()));
    }
}
