#include "ui/panel/KeyPage.h"

#include "text/L10n.h"
#include "ui/dialogs/Sheet.h"
#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"
#include "ui/looks/SlimScrollBar.h"

#include <QFormLayout>
#include <QLabel>
#include <QScrollArea>
#include <QShortcut>

#include <utility>

namespace {
struct RowKey {
    int list; ///< the number of its mode
    QKeySequence key;
    const char *text;
};
} // namespace

void KeyPage::show(QWidget &panel, const QString &hotKey, const QList<Entry> &modes)
{
    Sheet sheet(&panel, L10n::text("键盘快捷键"));
    auto *table = new QWidget(&sheet);
    auto *rows = new QFormLayout(table);
    rows->setContentsMargins(0, 0, Design::edge, 0);
    rows->setHorizontalSpacing(Design::edge);
    rows->setVerticalSpacing(Design::grid);
    const auto addText = [rows, table](const QString &key, const QString &text) {
        QLabel *name = NoteStyle::newLabel(key, NoteStyle::font(), table);
        name->setWordWrap(false);
        name->setForegroundRole(QPalette::PlaceholderText);
        rows->addRow(name, NoteStyle::newLabel(text, NoteStyle::font(), table));
    };
    const auto add = [&addText](const QKeySequence &key, const QString &text) {
        addText(key.toString(QKeySequence::NativeText), text);
    };
    if (!hotKey.isEmpty())
        addText(hotKey, L10n::text("随时打开或收起"));
    add(Qt::Key_Escape, L10n::text("逐级返回，最后收起"));
    add(Qt::Key_Return, L10n::text("保存输入的笔记"));
    addText(QStringLiteral("↑ ↓"), L10n::text("在输入框和列表之间移动"));
    addText(QStringLiteral("→ ←"), L10n::text("展开、收起长笔记"));
    add(Qt::Key_Menu, L10n::text("当前项的菜单"));
    add(QKeySequence::Undo, L10n::text("撤销刚才的删除"));
    add(Qt::Key_F1, L10n::text("本页"));
    addText(L10n::text("托盘图标"), L10n::text("右键：导入、导出、退出"));
    // What the lists do with the current row, as in its menu.
    const RowKey rowKeys[] = {
        {0, Qt::Key_Return, "编辑"},
        {0, Qt::CTRL | Qt::Key_R, "引用"},
        {0, QKeySequence::Copy, "复制"},
        {0, Qt::Key_Delete, "删除"},
        {0, Qt::CTRL | Qt::Key_D, "取消提醒"},
        {0, Qt::CTRL | Qt::Key_L, "相关笔记"},
        {0, Qt::CTRL | Qt::Key_Return, "打开链接"},
        {0, Qt::ALT | Qt::Key_Left, "跳转到引用的笔记"},
        {0, Qt::ALT | Qt::Key_Right, "跳转到最新回复"},
        {1, Qt::Key_Return, "筛选笔记"},
        {1, Qt::Key_F2, "重命名"},
        {1, Qt::Key_Delete, "删除"},
        {2, Qt::Key_Return, "跳转到笔记"},
        {2, Qt::Key_Delete, "取消提醒"},
        {2, QKeySequence::Copy, "复制"},
        {3, Qt::Key_Return, "恢复到时间线"},
        {3, QKeySequence::Copy, "复制"},
    };
    for (const Entry &mode : modes) {
        add(mode.key, mode.text);
        for (int column = 0; column < 2; ++column)
            rows->itemAt(rows->rowCount() - 1, QFormLayout::ItemRole(column))
                ->widget()
                ->setFont(NoteStyle::headerFont());
        for (const RowKey &row : rowKeys) {
            if (row.list == &mode - modes.data())
                add(row.key, L10n::text(row.text));
        }
    }

    auto *scroll = new QScrollArea(&sheet);
    scroll->setAccessibleName(sheet.accessibleName());
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setVerticalScrollBar(new SlimScrollBar(scroll));
    scroll->setWidget(table);
    scroll->viewport()->setAutoFillBackground(false);
    table->setAutoFillBackground(false);
    scroll->setFocusPolicy(Qt::NoFocus);
    using Step = QAbstractSlider::SliderAction;
    for (const auto &[key, step] :
        {std::pair(Qt::Key_Up, Step::SliderSingleStepSub), std::pair(Qt::Key_Down, Step::SliderSingleStepAdd),
            std::pair(Qt::Key_PageUp, Step::SliderPageStepSub),
            std::pair(Qt::Key_PageDown, Step::SliderPageStepAdd)}) {
        QObject::connect(new QShortcut(key, scroll), &QShortcut::activated, scroll,
            [scroll, step = step] { scroll->verticalScrollBar()->triggerAction(step); });
    }
    sheet.setBody(scroll);
    sheet.addButton(L10n::text("好"));
    QObject::connect(new QShortcut(Qt::Key_F1, scroll), &QShortcut::activated, &sheet,
        [&sheet] { sheet.answer(Sheet::noAnswer); });
    sheet.ask();
}
