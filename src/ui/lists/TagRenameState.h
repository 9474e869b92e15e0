#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <optional>

/// Which tag's name is being edited.
class TagRenameState final : public QObject
{
    Q_OBJECT

public:
    TagRenameState() { s_active = this; }
    /// The instance created last, while it exists.
    [[nodiscard]] static TagRenameState *active() { return s_active; }

    [[nodiscard]] const std::optional<QString> &renaming() const { return m_renaming; }
    void setRenaming(const std::optional<QString> &tag)
    {
        if (m_renaming == tag)
            return;
        m_renaming = tag;
        Q_EMIT changed();
    }

Q_SIGNALS:
    void changed();

private:
    static inline QPointer<TagRenameState> s_active;

    std::optional<QString> m_renaming;
};
