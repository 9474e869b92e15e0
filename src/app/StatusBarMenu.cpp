#include "app/StatusBarMenu.h"

#include "desktop/ApplicationIdentity.h"
#include "text/L10n.h"
#include "ui/looks/MenuLooks.h"
#include "ui/looks/Symbol.h"

#include <QApplication>
#include <QMenu>
#include <QSystemTrayIcon>
#include <QTimer>

namespace {
constexpr std::chrono::seconds embedTimeout{2};

QIcon icon(TrayHost::Kind kind)
{
    // The colour of an XEmbed tray is unknown: a light drawing with a dark edge is visible on any. Other
    // hosts recolour a symbolic icon to match their own.
    const auto drawn = [](const QList<int> &sizes) {
        return Symbol::icon(QStringLiteral("tray"), {}, sizes);
    };
    if (kind == TrayHost::Kind::XEmbed)
        return drawn({22, 44});
    return QIcon::fromTheme(ApplicationIdentity::id + QStringLiteral("-symbolic"), drawn({16, 22, 32, 64}));
}
} // namespace

StatusBarMenu::StatusBarMenu(QObject *parent)
    : QObject(parent)
{
    connect(&m_host, &TrayHost::appeared, this, &StatusBarMenu::makeIcon);
    connect(&m_host, &TrayHost::missing, this, &StatusBarMenu::trayMissing);
}

StatusBarMenu::~StatusBarMenu() = default;

void StatusBarMenu::install()
{
    m_host.watch();
}

QRect StatusBarMenu::iconRect() const
{
    const QRect rect = m_icon ? m_icon->geometry() : QRect();
    // The corner of the screen is reported until the tray has embedded the icon.
    return rect.topLeft().isNull() ? QRect() : rect;
}

void StatusBarMenu::makeIcon(TrayHost::Kind kind)
{
    m_menu = std::make_unique<QMenu>();
    m_menu->addAction(L10n::text("导入"), this, &StatusBarMenu::importChosen);
    m_menu->addAction(L10n::text("导出"), this, &StatusBarMenu::exportChosen);
    m_menu->addSeparator();
    m_menu->addAction(L10n::text("退出"), qApp, &QApplication::quit);
    connect(m_menu.get(), &QMenu::aboutToShow, m_menu.get(), [this] { MenuLooks::apply(*m_menu); });
    m_icon = std::make_unique<QSystemTrayIcon>(icon(kind));
    m_icon->setToolTip(QStringLiteral("Quillet"));
    m_icon->setContextMenu(m_menu.get());
    connect(
        m_icon.get(), &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
            // Where a click opens the menu, a double click or the middle button arrives here.
            if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::MiddleClick)
                Q_EMIT clicked();
        });
    m_icon->show();
    if (kind == TrayHost::Kind::XEmbed) {
        // Right after the program was killed and restarted, the icon's window may get the id of the previous
        // one, and a tray that has not noticed the end of that one ignores it.
        QTimer::singleShot(embedTimeout, this, [this] {
            if (iconRect().isEmpty()) {
                m_icon->hide();
                m_icon->show();
            }
        });
    }
}
