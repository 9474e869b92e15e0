#pragma once

#include <QString>

class QWidget;

/// Modal questions and reports, on a sheet over the panel that @p owner is in if that shows. A test answers
/// them in advance, and reads what they said.
namespace ModalQuestion {
/// A warning with a button for a destructive action and one to cancel; true if the action was chosen.
[[nodiscard]] bool confirm(
    QWidget *owner, const QString &title, const QString &message, const QString &confirmTitle);
void inform(QWidget *owner, const QString &title, const QString &message);

struct Message {
    QString title;
    QString details;
    bool operator==(const Message &) const = default;
};
/// Answers the next question, or closes the next report, which is then not shown.
void setNextAnswer(bool answer);
[[nodiscard]] const Message &lastMessage();
} // namespace ModalQuestion
