#pragma once

#include <QString>

class QWidget;

/// The modal questions and reports. A test answers in advance, and reads what was told.
namespace ModalQuestion {
/// A warning with two buttons, of which the first does what cannot be undone; whether that was chosen.
[[nodiscard]] bool confirm(
    QWidget *parent, const QString &title, const QString &message, const QString &confirmTitle);
void inform(QWidget *parent, const QString &title, const QString &message);

struct Told {
    QString title;
    QString message;
    bool operator==(const Told &) const = default;
};
/// The next question gets this answer without being shown, and the next report is not shown either.
void setNextAnswer(bool answer);
[[nodiscard]] const Told &lastTold();
} // namespace ModalQuestion
