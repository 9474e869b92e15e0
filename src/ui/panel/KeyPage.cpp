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

namespace {
QLabel *label(const QString &text, Design::Tint tint, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setFont(NoteStyle::font());
    label->setWordWrap(true);
    QPalette colors = label->palette();
    colors.setColor(QPalette::WindowText, NoteStyle::color(colors, tint));
    label->setPalette(colors);
    return label;
}
} // namespace

void KeyPage::show(QWidget &panel, const QString &hotKey, const QList<Entry> &modes)
{
    Sheet sheet(&panel, L10n::text("键盘快捷键"));
    auto *table = new QWidget(&sheet);
    auto *rows = new QFormLayout(table);
    rows->setContentsMargins(0, 0, Design::edge, 0);
    rows->setHorizontalSpacing(Design::edge);
    rows->setVerticalSpacing(Design::rowPadding);
    const auto addText = [rows, table](const QString &key, const QString &text) {
        auto *name = label(key, Design::metaText, table);
        name->setWordWrap(false);
        rows->addRow(name, label(text, Design::text, table));
    };
    const auto add = [&addText](const QKeySequence &key, const QString &text) {
        addText(key.toString(QKeySequence::NativeText), text);
    };
    if (!hotKey.isEmpty())
        addText(hotKey, L10n::text("随时打开或收起"));
    add(Qt::Key_Return, L10n::text("保存；在列表中编辑、打开或恢复"));
    addText(QStringLiteral("↑ ↓"), L10n::text("在输入框和列表之间移动"));
    add(Qt::Key_Menu, L10n::text("列表项的菜单，含各项的按键"));
    add(QKeySequence::Copy, L10n::text("复制笔记"));
    add(Qt::Key_Delete, L10n::text("删除，或取消提醒"));
    add(QKeySequence::Undo, L10n::text("撤销刚才的删除"));
    for (const Entry &mode : modes)
        add(mode.key, mode.text);
    add(Qt::Key_Escape, L10n::text("逐级返回，最后收起"));
    add(Qt::Key_F1, L10n::text("本页"));
    addText(L10n::text("托盘图标"), L10n::text("右键：导入、导出、退出"));

    auto *scroll = new QScrollArea(&sheet);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setVerticalScrollBar(new SlimScrollBar(scroll));
    scroll->setWidget(table);
    scroll->viewport()->setAutoFillBackground(false);
    table->setAutoFillBackground(false);
    sheet.setBody(scroll);
    sheet.addButton(L10n::text("好"));
    QObject::connect(new QShortcut(Qt::Key_F1, scroll), &QShortcut::activated, &sheet,
        [&sheet] { sheet.answer(Sheet::noAnswer); });
    sheet.ask();
}
