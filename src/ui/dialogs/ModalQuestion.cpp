#include "ui/dialogs/ModalQuestion.h"

#include "text/L10n.h"
#include "ui/dialogs/Sheet.h"

#include <optional>
#include <utility>

namespace {
std::optional<bool> s_nextAnswer;
ModalQuestion::Message s_lastMessage;
} // namespace

void ModalQuestion::setNextAnswer(bool answer)
{
    s_nextAnswer = answer;
}

const ModalQuestion::Message &ModalQuestion::lastMessage()
{
    return s_lastMessage;
}

bool ModalQuestion::confirm(
    QWidget *owner, const QString &title, const QString &message, const QString &confirmTitle)
{
    s_lastMessage = {title, message};
    if (s_nextAnswer)
        return *std::exchange(s_nextAnswer, std::nullopt);
    Sheet sheet(owner, title, message);
    sheet.addButton(confirmTitle, CapsuleButton::Kind::Destructive);
    sheet.addButton(L10n::text("取消"));
    return sheet.ask() == 0;
}

void ModalQuestion::inform(QWidget *owner, const QString &title, const QString &message)
{
    s_lastMessage = {title, message};
    if (std::exchange(s_nextAnswer, std::nullopt))
        return;
    Sheet sheet(owner, title, message);
    sheet.addButton(L10n::text("好"));
    sheet.ask();
}
