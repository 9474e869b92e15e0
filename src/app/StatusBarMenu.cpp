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
constexpr std::chrono::seconds aWhile{2};

QIcon icon(TrayHost::Kind kind)
{
    // An XEmbed tray tells nobody its colour: a light drawing with a dark edge can be seen on any. Other
    // hosts colour a symbolic icon as they do their own.
    const auto own = [](const QList<int> &sizes) { return Symbol::icon(QStringLiteral("tray"), {}, sizes); };
    if (kind == TrayHost::Kind::XEmbed)
        return own({22, 44});
    return QIcon::fromTheme(ApplicationIdentity::id + QStringLiteral("-symbolic"), own({16, 22, 32, 64}));
}
} // namespace

StatusBarMenu::StatusBarMenu(QObject *parent)
    : QObject(parent)
{
    connect(&m_host, &TrayHost::appeared, this, &StatusBarMenu::makeIcon);
    connect(&m_host, &TrayHost::missing, this, &StatusBarMenu::noTray);
}

StatusBarMenu::~StatusBarMenu() = default;

void StatusBarMenu::install()
{
    m_host.watch();
}

QRect StatusBarMenu::iconPlace() const
{
    const QRect place = m_icon ? m_icon->geometry() : QRect();
    // Until the tray has taken it in, it says that it is in the very corner.
    return place.topLeft().isNull() ? QRect() : place;
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
            // Where one click opens the menu, a second or the middle button comes here.
            if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::MiddleClick)
                Q_EMIT clicked();
        });
    m_icon->show();
    if (kind == TrayHost::Kind::XEmbed) {
        // Started right after it was killed, its window bears the number of the one before, and a tray that
        // has not noticed yet leaves it alone.
        QTimer::singleShot(aWhile, this, [this] {
            if (iconPlace().isEmpty()) {
                m_icon->hide();
                m_icon->show();
            }
        });
    }
    Q_EMIT shown();
}
