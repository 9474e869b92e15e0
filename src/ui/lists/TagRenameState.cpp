#include "ui/lists/TagRenameState.h"

QPointer<TagRenameState> TagRenameState::s_active;

TagRenameState::TagRenameState(QObject *parent)
    : QObject(parent)
{
    s_active = this;
}

void TagRenameState::setRenaming(const std::optional<QString> &tag)
{
    if (m_renaming == tag)
        return;
    m_renaming = tag;
    Q_EMIT changed();
}
