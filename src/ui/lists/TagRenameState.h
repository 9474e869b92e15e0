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
    explicit TagRenameState(QObject *parent = nullptr);
    /// The instance created last, while it exists.
    [[nodiscard]] static TagRenameState *active() { return s_active; }

    [[nodiscard]] const std::optional<QString> &renaming() const { return m_renaming; }
    void setRenaming(const std::optional<QString> &tag);

Q_SIGNALS:
    void changed();

private:
    static QPointer<TagRenameState> s_active;

    std::optional<QString> m_renaming;
};
