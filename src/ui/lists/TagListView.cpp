#include "ui/lists/TagListView.h"

#include "foundation/Characters.h"
#include "model/NoteStore.h"
#include "text/L10n.h"
#include "text/TagEditing.h"
#include "ui/dialogs/ModalQuestion.h"
#include "ui/lists/TagModel.h"
#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace {
/// The name while it is edited. Its keys are not the list's, not even Return after it has ended the edit.
class TagNameField final : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        QLineEdit::keyPressEvent(event);
        event->accept();
    }
};
} // namespace

TagListView::TagListView(NoteStore &notes, TagModel &model, QWidget *parent)
    : RowListView(model, parent)
    , m_notes(notes)
    , m_tags(model)
{
    setObjectName(QStringLiteral("tagList"));
    setAccessibleName(L10n::text("标签"));
    connect(&m_rename, &TagRenameState::changed, this, &TagListView::editDidChange);
}

void TagListView::setQuery(const QString &query)
{
    m_tags.setQuery(query);
    forgetHeights();
}

RowPainter::EmptyState TagListView::emptyState() const
{
    if (m_notes.tagSummaries().isEmpty())
        return {
            QStringLiteral("number"), L10n::text("无标签"), {L10n::text("带 # 的词成为标签，如「#购物」")}};
    return {QStringLiteral("number"), L10n::text("无匹配标签"), {}};
}

QList<RowListView::Action> TagListView::actionsOf(int row)
{
    const QString name = m_tags.row(row).name;
    return {
        {L10n::text("重命名"), Qt::Key_F2, [this, name] { m_rename.setRenaming(name); }},
        {L10n::text("删除"), Qt::Key_Delete, [this, name] { deleteTag(name); }, {}, true},
        {},
        {L10n::text("筛选笔记"), Qt::Key_Return, [this, name] { Q_EMIT selected(name); },
            RowPart::Kind::Body},
    };
}

// Renaming

void TagListView::editDidChange()
{
    endEdit();
    const auto &renaming = m_rename.renaming();
    if (!renaming || m_tags.rowOf(*renaming) < 0)
        return;
    m_editor = new TagNameField(*renaming, this);
    m_editor->setObjectName(QStringLiteral("tagNameField"));
    m_editor->setPlaceholderText(L10n::text("标签名"));
    m_editor->setAccessibleName(m_editor->placeholderText());
    m_editor->setFont(NoteStyle::font());
    // On the row's own ground and within its outline, in place of the name.
    m_editor->setStyleSheet(QStringLiteral("background: %1; border: none; padding: 0")
                                .arg(NoteStyle::color(palette(), Design::editingGround).name()));
    m_editor->selectAll();
    // On Return or when the focus leaves, whichever comes first.
    connect(m_editor, &QLineEdit::editingFinished, this, [this, from = *renaming, editor = m_editor] {
        if (m_editor == editor)
            commitRename(from, editor->text());
    });
    didMoveRows();
    m_editor->show();
    m_editor->setFocus();
}

void TagListView::endEdit()
{
    if (!m_editor)
        return;
    QLineEdit *editor = std::exchange(m_editor, nullptr);
    if (editor->hasFocus())
        setFocus(); // or hiding it would give the focus to the next in the order of the Tab key
    else
        setCurrentRow(-1);
    editor->hide();
    editor->deleteLater();
}

void TagListView::didMoveRows()
{
    if (!m_editor || !m_rename.renaming())
        return;
    const int row = m_tags.rowOf(*m_rename.renaming());
    if (row < 0) {
        m_rename.setRenaming({}); // the tag is gone
        return;
    }
    const int sign = m_editor->fontMetrics().horizontalAdvance(u'#');
    m_editor->setGeometry(rectOf(row).adjusted(Design::edge + sign, 3, -Design::edge, -3));
}

void TagListView::commitRename(const QString &from, const QString &to)
{
    const QString name = Characters::trimmedOfBlanks(to).toString();
    m_rename.setRenaming({});
    if (!TagEditing::isValidName(name) || name == from)
        return;
    const bool isMerge = m_notes.tags().contains(name);
    if (isMerge) {
        const QString message =
            L10n::text("把「#%@」改名为已存在的「#%@」，涉及 %@ 条笔记，合并后无法再分开。",
                {from, name, QString::number(m_notes.noteCount(from))});
        if (!ModalQuestion::confirm(this, L10n::text("合并标签？"), message, L10n::text("合并")))
            return;
    }
    if (m_notes.noteCount(from) == 0)
        return; // it has gone meanwhile
    m_notes.renameTag(from, name);
    if (const int row = m_tags.rowOf(name); row >= 0 && hasFocus()) {
        setCurrentRow(row);
        scrollTo(row);
    }
    Q_EMIT done(isMerge ? L10n::text("已合并标签") : L10n::text("已重命名"));
}

void TagListView::deleteTag(const QString &tag)
{
    const QString title = L10n::text("删除标签「#%@」？", QStringList{tag});
    const QString message = L10n::text(
        "将从 %@ "
        "条笔记中移除该标签（含回收站）；时间线中因此变空的笔记会移入回收站。标签文本的改动不可撤销。",
        QStringList{QString::number(m_notes.noteCount(tag))});
    if (!ModalQuestion::confirm(this, title, message, L10n::text("删除")))
        return;
    if (m_notes.noteCount(tag) == 0)
        return; // it has gone meanwhile
    m_notes.removeTag(tag);
    Q_EMIT done(L10n::text("已删除标签"));
}
