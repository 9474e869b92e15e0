#include "ui/dialogs/ModalQuestion.h"

#include "text/L10n.h"
#include "ui/looks/NoteStyle.h"

#include <QMessageBox>
#include <QPushButton>

#include <optional>
#include <utility>

namespace {
std::optional<bool> s_nextAnswer;
ModalQuestion::Message s_lastMessage;

void prepare(QMessageBox &box, const QString &title, const QString &message)
{
    box.setWindowTitle(QStringLiteral("Quillet"));
    box.setTextFormat(Qt::PlainText);
    box.setText(title);
    box.setInformativeText(message);
    QFont font = box.font();
    font.setPixelSize(NoteStyle::font().pixelSize());
    box.setFont(font);
}
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
    QWidget *parent, const QString &title, const QString &message, const QString &confirmTitle)
{
    s_lastMessage = {title, message};
    if (s_nextAnswer)
        return *std::exchange(s_nextAnswer, std::nullopt);
    QMessageBox box(parent);
    prepare(box, title, message);
    box.setIcon(QMessageBox::Warning);
    QPushButton *destructive = box.addButton(confirmTitle, QMessageBox::DestructiveRole);
    QPalette colors = destructive->palette();
    colors.setColor(QPalette::ButtonText, NoteStyle::color(colors, Design::destructiveText));
    destructive->setPalette(colors);
    QPushButton *cancel = box.addButton(L10n::text("取消"), QMessageBox::RejectRole);
    box.setDefaultButton(cancel);
    box.setEscapeButton(cancel);
    box.exec();
    return box.clickedButton() == destructive;
}

void ModalQuestion::inform(const QString &title, const QString &message)
{
    s_lastMessage = {title, message};
    if (std::exchange(s_nextAnswer, std::nullopt))
        return;
    QMessageBox box;
    prepare(box, title, message);
    box.setIcon(QMessageBox::Information);
    box.addButton(L10n::text("好"), QMessageBox::AcceptRole);
    box.exec();
}
